// Hand: a person's mouse and keyboard.
#ifndef TESTS_RIG_HAND_H
#define TESTS_RIG_HAND_H

#include <QPoint>
#include <QPointer>
#include <QWindow>

class QWidget;

// Events enter where the window system's do, so that the toolkit decides who gets them: nobody, for
// example, behind a modal dialog. One mouse button at a time. Positions are in the window's pixels.
class Hand {
public:
    // A button is down, and what it was pressed on is still there to release on.
    bool holds() const { return held_ != Qt::NoButton && !pressedOn_.isNull(); }

    void press(const QWidget *window, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    // Moves with the button down, over the window that it was pressed on.
    void drag(QPoint to);
    void release(QPoint at);
    // Forgets a button that is down: its window has gone.
    void drop() { held_ = Qt::NoButton; }
    void click(const QWidget *window, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    // One step of the wheel, up or down, over a widget.
    static void turnWheel(QWidget *widget, bool up);
    // Into the window, which gets the keyboard's focus, if it is to be seen.
    static void type(const QWidget *window, Qt::Key key);
    // The key goes down and stays down for so many repeats; then it comes up.
    static void holdKey(const QWidget *window, Qt::Key key, int repeats);
    // More repeats of a key that is down.
    static void repeatKey(const QWidget *window, Qt::Key key, int repeats);

private:
    void send(QEvent::Type type, QPoint at, Qt::MouseButtons down, Qt::MouseButton changed);

    QPointer<QWindow> pressedOn_;
    Qt::MouseButton held_ = Qt::NoButton;
    int now_ = 0; // the events' time stamps, ms
};

#endif
