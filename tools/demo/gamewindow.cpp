#include "tools/demo/gamewindow.h"

#include <QTextStream>

namespace {

constexpr int formWidth = 240;
constexpr size_t menASide = 20;
constexpr int windowMs = 30'000;
constexpr int endMs = 15'000;

} // namespace

QTextStream &out() {
    static QTextStream stream(stdout);
    return stream;
}

QString text(Square square) {
    return QStringLiteral("(%1,%2)").arg(square.first).arg(square.second);
}

GameWindow::GameWindow(const QString &program, const QStringList &arguments)
    : m_path(program), m_arguments(arguments) {
    m_program.setProcessChannelMode(QProcess::ForwardedChannels);
}

GameWindow::~GameWindow() {
    if (m_program.state() != QProcess::NotRunning) {
        m_program.kill();
        m_program.waitForFinished();
    }
}

bool GameWindow::open() {
    if (!m_display.isConnected()) {
        return failed("there is no X display to play on");
    }
    if (!m_display.canTap()) {
        return failed("the X display has no XTEST extension, so nothing can be tapped");
    }
    m_program.start(m_path, m_arguments);
    if (!m_program.waitForStarted()) {
        return failed(m_path + " does not start");
    }
    const bool shown = waitUntil(windowMs, [this] {
        const BoardPicture board = look();
        return board.squares(Shown::White).size() == menASide &&
               board.squares(Shown::Black).size() == menASide;
    });
    return shown || failed("no window with the starting position appears");
}

bool GameWindow::close() {
    m_display.close(m_window);
    waitUntil(endMs, [] { return false; });
    if (m_program.state() != QProcess::NotRunning) {
        return failed("the program does not end when its window is closed");
    }
    if (m_program.exitStatus() != QProcess::NormalExit || m_program.exitCode() != 0) {
        return failed("the program does not end well when its window is closed");
    }
    return true;
}

BoardPicture GameWindow::look() {
    if (m_window == 0) {
        m_window = m_display.findWindow("tavlora");
    }
    const QImage picture = m_window != 0 ? m_display.picture(m_window) : QImage();
    if (!picture.isNull()) {
        m_picture = picture;
    }
    return BoardPicture(picture);
}

bool GameWindow::savePicture(const QString &path) const {
    return save(m_picture, path);
}

bool GameWindow::savePicture(const QString &path, xcb_window_t window) const {
    return save(m_display.picture(window), path);
}

bool GameWindow::save(const QImage &picture, const QString &path) const {
    if (picture.isNull()) {
        return false;
    }
    if (!picture.save(path)) {
        return failed("the picture cannot be written to " + path);
    }
    out() << "Picture of the window: " << path << Qt::endl;
    return true;
}

int GameWindow::scale() const {
    return m_picture.width() / formWidth;
}

void GameWindow::tap(Square square) {
    tap(m_window, look().centre(square));
}

void GameWindow::tap(QPoint point) {
    tap(m_window, point * scale());
}

void GameWindow::tap(xcb_window_t window, QPoint point, PointerButton button) {
    m_display.tap(window, point, button);
}

bool GameWindow::waitUntil(int limitMs, const std::function<bool()> &reached, int pollMs) {
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

bool GameWindow::failed(const QString &what) const {
    const bool ended = m_window != 0 && m_program.state() == QProcess::NotRunning;
    out() << "FAILED: " << what << (ended ? "; the program has ended." : ".") << Qt::endl;
    return false;
}
