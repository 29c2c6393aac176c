// tavlora-subject: the game's window with a position and settings of one's own, which tells when it
// begins to think, when the piece flies and how long it took to repaint.

#include "app/draughts.h"
#include "app/gamehist.h"
#include "platform/qpeapplication.h"
#include "tools/common/commandline.h"
#include "tools/common/positionline.h"
#include "tools/responsiveness/timing.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <QCommandLineParser>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace {

constexpr int settleMs = 150;
constexpr int requestMs = 10;

void tell(const char *what, double ms) {
    QTextStream(stdout) << what << ' ' << QString::number(ms, 'f', 3) << '\n' << Qt::flush;
}

// Asks for a repaint of the board every few milliseconds and sees when it comes. A request counts
// from when it was due: the search may also hold up the asking.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget *watched) : board_(watched), due_(nowMs()) {
        board_->installEventFilter(this);
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, [this] { board_->update(); });
        timer_.start(requestMs);
    }
    // The longest of all repaints; one that is still due counts up to now.
    double longest() {
        samples_.add(std::max(0.0, nowMs() - due_ - requestMs));
        return samples_.most();
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint) {
            samples_.add(std::max(0.0, nowMs() - due_ - requestMs));
            due_ = nowMs();
        }
        return false;
    }

private:
    QWidget *board_;
    QTimer timer_;
    Samples samples_;
    double due_;
};

class Subject : public Draughts {
public:
    // The position in place of the running game, people on both sides.
    void place(const board &position) {
        const auto *size =
            std::find(std::begin(allBoardSizes), std::end(allBoardSizes), position.size);
        setBSize(static_cast<int>(size - allBoardSizes));
        trashAllPieces();
        *pBoard = position;
        CreateCanvasPieces(pCanvas.get(), pBoard.get());
        pHist->clear();
        pHist->insert(pBoard.get());
        whiteComputer = blackComputer = 0;
        DoPlayerMove();
    }

    void think() {
        PaintWatch watch(pView->viewport());
        tell("thinks", nowMs());
        forceMove();
        if (phase() == Phase::Closed)
            return;
        tell("flies", nowMs());
        tell("painted", watch.longest());
    }
};

} // namespace

int main(int argc, char **argv) {
    QPEApplication application(argc, argv, QPEApplication::GuiClient);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Shows the game and has the computer move, telling the times on standard output.");
    parser.addOptions({{"rules", "Item of the settings, 0 if not given.", "n", "0"},
                       {"level", "Item of the settings, 3 if not given.", "n", "3"}});
    parser.addPositionalArgument("position", "A position line.");
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    QString error;
    const std::optional<board> position =
        readPositionLine(parser.positionalArguments().value(0), error);
    if (!position)
        return fail(error);
    // As in the game, the window lives as long as the process.
    auto *window = new Subject;
    window->setRules(parser.value("rules").toInt());
    window->setLevel(parser.value("level").toInt());
    window->show();
    window->place(*position);
    QObject::connect(&application, &QPEApplication::lastWindowClosed, &application,
                     &QPEApplication::quit);
    QTimer::singleShot(settleMs, window, &Subject::think);
    return QPEApplication::exec();
}
