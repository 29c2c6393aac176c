#include "tools/monkey/monkey.h"

#include "search/abstractengine.h"

#include <QApplication>
#include <QDialog>

#include <utility>

namespace {

// Events come at one in so many of a search's rounds, at each when it has lasted for very long.
constexpr int roundsBetweenEvents = 24;
constexpr int veryManyRounds = 400;
constexpr int applicationPoints = 9;

// Runs events inside the event loop of a dialog.
class DialogShown : public QEvent {
public:
    explicit DialogShown(QDialog *dialog) : QEvent(kind()), shown(dialog) {}
    static Type kind() {
        static const auto type = static_cast<Type>(registerEventType());
        return type;
    }
    QPointer<QDialog> shown;
};

} // namespace

Monkey::Monkey(unsigned seed, int events, bool trace, Tally &tally)
    : dice_(seed), journal_(seed, events, trace), referee_(journal_, tally),
      user_(referee_, journal_, dice_), tally_(tally), limit_(events) {
    QFont font = QApplication::font();
    font.setPointSize(applicationPoints);
    font.setBold(false);
    QApplication::setFont(font);
    AbstractEngine::eventLoop = 0;
    host_.onSearch = [this] {
        referee_.noteSearch();
        rounds_ = 0;
        return static_cast<unsigned>(dice_.below(1000));
    };
    host_.onEvents = [this] { stepInSearch(); };
    host_.onBox = [this](const QString &title, const QString &text) {
        referee_.noteBox(title, text);
    };
    host_.onAnswer = [this](bool confirmed) { referee_.noteAnswer(confirmed); };
    referee_.onDialog = [this](QDialog *dialog) {
        QCoreApplication::postEvent(this, new DialogShown(dialog));
    };
}

std::uint64_t Monkey::run() {
    referee_.openWindow();
    while (!isOver()) {
        step();
        if (referee_.game().closed())
            startAgain();
    }
    referee_.closeWindow();
    return journal_.hash();
}

// A dialog that was just left returns to whoever opened it first.
void Monkey::step() {
    user_.act();
    QCoreApplication::processEvents();
    if (dialog_.isNull() || dialog_->isVisible())
        referee_.check();
}

// A search without limit ends sooner or later with BREAK.
void Monkey::stepInSearch() {
    referee_.check();
    ++rounds_;
    if (referee_.game().closed() && ++roundsClosed_ > 1)
        journal_.fail("the search goes on although the window is closed", "its end\n");
    QCoreApplication::processEvents();
    if (isOver()) {
        AbstractEngine::breakThinking = true;
        return;
    }
    if (!dice_.oneIn(rounds_ < veryManyRounds ? roundsBetweenEvents : 1))
        return;
    for (int n = dice_.between(1, 3); n > 0 && !referee_.game().closed(); --n)
        step();
}

bool Monkey::event(QEvent *event) {
    if (event->type() != DialogShown::kind())
        return QObject::event(event);
    const QPointer<QDialog> behind =
        std::exchange(dialog_, static_cast<DialogShown *>(event)->shown);
    while (!dialog_.isNull() && dialog_->isVisible()) {
        if (isOver())
            dialog_->reject();
        else
            step();
    }
    dialog_ = behind;
    return true;
}

// Nothing of a closed window may be left open, and its event loops have ended.
void Monkey::startAgain() {
    ++tally_.restarts;
    roundsClosed_ = 0;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            journal_.fail("a window stays open: " + window->windowTitle(), "none\n");
    }
    journal_.note("start again");
    user_.windowChanged();
    referee_.closeWindow();
    referee_.openWindow();
}
