// The real program on the display in DISPLAY, watched and worked as a person would.
#ifndef TOOLS_DEMO_GAMEWINDOW_H
#define TOOLS_DEMO_GAMEWINDOW_H

#include "tools/demo/boardpicture.h"
#include "tools/demo/xdisplay.h"

#include <QProcess>

#include <functional>

class QTextStream;

// Standard output, where it is told what happens.
QTextStream &out();
// As in "(4,5)".
QString text(Square square);

// Starts the program, finds its main window and taps on it. What cannot be done is told on standard
// output. A program that still runs when the object goes is killed.
class GameWindow {
public:
    GameWindow(const QString &program, const QStringList &arguments);
    ~GameWindow();

    // Starts the program and waits for its window to show the starting position.
    bool open();
    // Closes the window; false when the program does not end well then.
    bool close();

    // The board as the window shows it now.
    BoardPicture look();
    // Saves what the last look saw; false when the window has never been seen.
    bool savePicture(const QString &path) const;
    // Saves what another window of the program shows now.
    bool savePicture(const QString &path, xcb_window_t window) const;
    // Device pixels for one pixel of the form.
    int scale() const;

    void tap(Square square);
    // A point of the form, in its own pixels.
    void tap(QPoint point);
    // Another window of the program, by the beginning of its title; 0 when it is not shown.
    xcb_window_t findWindow(const QByteArray &title) const { return m_display.findWindow(title); }
    void tap(xcb_window_t window, QPoint point, PointerButton button = PointerButton::Left);

    // Asks again and again until it is so; false when the program ends or the time is over.
    bool waitUntil(int limitMs, const std::function<bool()> &reached, int pollMs = 100);
    // Tells that something failed; false, for the caller to return.
    bool failed(const QString &what) const;

private:
    bool save(const QImage &picture, const QString &path) const;

    XDisplay m_display;
    QProcess m_program;
    QString m_path;
    QStringList m_arguments;
    QImage m_picture;
    xcb_window_t m_window = 0;
};

#endif
