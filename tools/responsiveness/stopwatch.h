// Stopwatch: one run of the game or its subject on the X display, measured from outside.
#ifndef TOOLS_RESPONSIVENESS_STOPWATCH_H
#define TOOLS_RESPONSIVENESS_STOPWATCH_H

#include "tools/demo/xdisplay.h"

#include <QImage>
#include <QProcess>

#include <functional>
#include <optional>

// Starts the program and stops it at its end. All times in milliseconds. Nothing comes back when
// what is to be timed did not happen.
class Stopwatch {
public:
    Stopwatch(XDisplay &display, const QString &program, const QStringList &arguments);
    ~Stopwatch();

    // Waits until the window is there.
    bool windowAppears();
    // The moment of a line that the subject tells, such as "flies".
    std::optional<double> told(const QByteArray &what);
    // From a press of BREAK to the start of the flight; nothing when the flight came first. A
    // flight that never comes counts as one after half a minute.
    std::optional<double> pressBreak();
    // From the moment when another window goes away that was on top to when all is seen again.
    std::optional<double> uncover();
    // From the title bar's close to the end of the process, which has to exit with status 0.
    std::optional<double> close();
    void tap(QPoint at) { display_.tap(window_, at); }

private:
    XDisplay &display_;
    QProcess program_;
    xcb_window_t window_ = 0;
};

void sleepMs(int ms);

#endif
