// Plays one move of the real program on the display in DISPLAY, as a person would: taps a white man
// and one of its targets, waits for the computer's answer, closes the window. What happened is read
// from the window's pixels and told on standard output.
#include "tools/demo/boardpicture.h"
#include "tools/demo/xdisplay.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

constexpr int formWidth = 240;
constexpr Square start = {5, 3};
constexpr Square target = {4, 4};

constexpr int pollMs = 100;
constexpr int windowMs = 30'000;
constexpr int reactionMs = 15'000;
constexpr int answerMs = 180'000;
constexpr int settledPolls = 5;

QTextStream &out() {
    static QTextStream stream(stdout);
    return stream;
}

QString text(Square square) {
    return QStringLiteral("(%1,%2)").arg(square.first).arg(square.second);
}

std::set<Square> without(const std::set<Square> &from, const std::set<Square> &taken) {
    std::set<Square> rest;
    std::set_difference(from.begin(), from.end(), taken.begin(), taken.end(),
                        std::inserter(rest, rest.end()));
    return rest;
}

class Demo {
public:
    Demo(const QString &picturePath, const QString &program, const QStringList &arguments);
    ~Demo();

    // Plays; false as soon as something does not happen.
    bool play();

private:
    bool programStarts();
    bool boardAppears();
    bool targetsShow();
    bool manMoves();
    bool computerAnswers();
    bool windowCloses();
    bool answerSettled();
    bool savePicture();
    bool failed(const QString &what);
    bool waitUntil(int limitMs, const std::function<bool()> &reached);
    BoardPicture look();

    XDisplay m_display;
    QProcess m_program;
    QString m_path;
    QStringList m_arguments;
    QString m_picturePath;
    QImage m_picture;
    xcb_window_t m_window = 0;
    std::set<Square> m_blackAtStart;
    std::set<Square> m_blackSeen;
    int m_timesSeen = 0;
};

Demo::Demo(const QString &picturePath, const QString &program, const QStringList &arguments)
    : m_path(program), m_arguments(arguments), m_picturePath(picturePath) {
    m_program.setProcessChannelMode(QProcess::ForwardedChannels);
}

Demo::~Demo() {
    if (m_program.state() != QProcess::NotRunning) {
        m_program.kill();
        m_program.waitForFinished();
    }
}

bool Demo::play() {
    if (!m_display.isConnected()) {
        return failed("there is no X display to play on");
    }
    if (!m_display.canTap()) {
        return failed("the X display has no XTEST extension, so nothing can be tapped");
    }
    const bool played =
        programStarts() && boardAppears() && targetsShow() && manMoves() && computerAnswers();
    return savePicture() && played && windowCloses();
}

bool Demo::programStarts() {
    m_program.start(m_path, m_arguments);
    return m_program.waitForStarted() || failed(m_path + " does not start");
}

bool Demo::boardAppears() {
    const bool shown = waitUntil(windowMs, [this] {
        const BoardPicture board = look();
        return board.squares(Shown::White).size() == 20 && board.squares(Shown::Black).size() == 20;
    });
    if (!shown) {
        return failed("no window with the starting position appears");
    }
    m_blackAtStart = look().squares(Shown::Black);
    out() << "The window shows the starting position, 20 men a side, at scale "
          << m_picture.width() / formWidth << "." << Qt::endl;
    return true;
}

bool Demo::targetsShow() {
    m_display.tap(m_window, look().centre(start));
    const bool shown = waitUntil(reactionMs, [this] {
        return look().squares(Shown::Target) == std::set<Square>{target, {6, 4}};
    });
    if (!shown) {
        return failed("a tap on white's man at " + text(start) + " does not show its targets");
    }
    out() << "White's man at " << text(start) << " tapped: its targets (4,4) and (6,4) are shown."
          << Qt::endl;
    return true;
}

bool Demo::manMoves() {
    m_display.tap(m_window, look().centre(target));
    const bool moved = waitUntil(reactionMs, [this] {
        const BoardPicture board = look();
        return board.shown(target) == Shown::White && board.shown(start) != Shown::White;
    });
    if (!moved) {
        return failed("a tap on the target " + text(target) + " does not move the man");
    }
    out() << "Target " << text(target) << " tapped: white played " << text(start) << "->"
          << text(target) << ". The computer thinks." << Qt::endl;
    return true;
}

bool Demo::computerAnswers() {
    if (!waitUntil(answerMs, [this] { return answerSettled(); })) {
        return failed("the computer does not answer");
    }
    const Square from = *without(m_blackAtStart, m_blackSeen).begin();
    const Square to = *without(m_blackSeen, m_blackAtStart).begin();
    out() << "Black answered " << text(from) << "->" << text(to) << "." << Qt::endl;
    return true;
}

// One black man stands elsewhere and has done so for a while: it no longer flies.
bool Demo::answerSettled() {
    const std::set<Square> black = look().squares(Shown::Black);
    m_timesSeen = black == m_blackSeen ? m_timesSeen + 1 : 0;
    m_blackSeen = black;
    return m_timesSeen >= settledPolls && without(m_blackAtStart, black).size() == 1 &&
           without(black, m_blackAtStart).size() == 1;
}

bool Demo::windowCloses() {
    m_display.close(m_window);
    waitUntil(reactionMs, [] { return false; });
    if (m_program.state() != QProcess::NotRunning) {
        return failed("the program does not end when its window is closed");
    }
    if (m_program.exitStatus() != QProcess::NormalExit || m_program.exitCode() != 0) {
        return failed("the program does not end well when its window is closed");
    }
    out() << "Window closed: the program ended." << Qt::endl;
    return true;
}

bool Demo::savePicture() {
    if (m_picture.isNull()) {
        return false;
    }
    if (!m_picture.save(m_picturePath)) {
        return failed("the picture cannot be written to " + m_picturePath);
    }
    out() << "Picture of the window: " << m_picturePath << Qt::endl;
    return true;
}

bool Demo::failed(const QString &what) {
    const bool ended = m_window != 0 && m_program.state() == QProcess::NotRunning;
    out() << "FAILED: " << what << (ended ? "; the program has ended." : ".") << Qt::endl;
    return false;
}

// Asks again and again until it is so, the program ends, or the time is over.
bool Demo::waitUntil(int limitMs, const std::function<bool()> &reached) {
    for (int waited = 0; waited < limitMs; waited += pollMs) {
        if (reached()) {
            return true;
        }
        if (m_program.state() == QProcess::NotRunning || m_program.waitForFinished(pollMs)) {
            return false;
        }
    }
    return false;
}

BoardPicture Demo::look() {
    if (m_window == 0) {
        m_window = m_display.findWindow("tavlora");
    }
    const QImage picture = m_window != 0 ? m_display.picture(m_window) : QImage();
    if (!picture.isNull()) {
        m_picture = picture;
    }
    return BoardPicture(picture);
}

} // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments == QStringList{"--probe"}) {
        return XDisplay().isConnected() ? 0 : 1;
    }
    if (arguments.size() < 2) {
        QTextStream(stderr) << "usage: tavlora-demo PICTURE PROGRAM [ARGUMENT...]\n"
                               "       tavlora-demo --probe    is there an X display?\n";
        return 2;
    }
    return Demo(arguments[0], arguments[1], arguments.mid(2)).play() ? 0 : 1;
}
