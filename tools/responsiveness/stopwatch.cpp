#include "tools/responsiveness/stopwatch.h"

#include "tools/responsiveness/timing.h"

#include <QProcessEnvironment>

#include <chrono>
#include <thread>

namespace {

constexpr int longMs = 30'000;
constexpr QPoint breakButton(75, 246);

bool waitUntil(const std::function<bool()> &reached) {
    for (const double end = nowMs() + longMs; nowMs() < end;) {
        if (reached())
            return true;
        sleepMs(1);
    }
    return false;
}

} // namespace

void sleepMs(int ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

Stopwatch::Stopwatch(XDisplay &display, const QString &program, const QStringList &arguments)
    : display_(display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "1");
    environment.insert("QT_QPA_PLATFORM", "xcb");
    program_.setProcessEnvironment(environment);
    program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program_.start(program, arguments);
    program_.waitForStarted();
}

Stopwatch::~Stopwatch() {
    if (program_.state() != QProcess::NotRunning) {
        program_.kill();
        program_.waitForFinished();
    }
}

bool Stopwatch::windowAppears() {
    return waitUntil([this] { return (window_ = display_.findWindow("tavlora")) != 0; });
}

std::optional<double> Stopwatch::told(const QByteArray &what) {
    while (program_.canReadLine() || program_.waitForReadyRead(longMs)) {
        const QList<QByteArray> line = program_.readLine().trimmed().split(' ');
        if (line.size() == 2 && line.front() == what)
            return line.back().toDouble();
    }
    return {};
}

std::optional<double> Stopwatch::pressBreak() {
    const double pressed = nowMs();
    tap(breakButton);
    const std::optional<double> flies = told("flies");
    if (flies && *flies < pressed)
        return {};
    return flies ? *flies - pressed : longMs;
}

std::optional<double> Stopwatch::uncover() {
    constexpr int coveredMs = 60;
    const QImage before = display_.picture(window_);
    const xcb_window_t cover = display_.cover(window_);
    sleepMs(coveredMs);
    if (before.isNull() || display_.picture(window_) == before)
        return {};
    const double uncovered = nowMs();
    display_.remove(cover);
    if (!waitUntil([&] { return display_.picture(window_) == before; }))
        return {};
    return nowMs() - uncovered;
}

std::optional<double> Stopwatch::close() {
    const double pressed = nowMs();
    display_.close(window_);
    if (!program_.waitForFinished(longMs) || program_.exitStatus() != QProcess::NormalExit ||
        program_.exitCode() != 0)
        return {};
    return nowMs() - pressed;
}
