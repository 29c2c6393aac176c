#include "tests/rig/hand.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

static constexpr int pauseMs = 1000; // so that two clicks are no double click

void Hand::send(QEvent::Type type, QPoint at, Qt::MouseButtons down, Qt::MouseButton changed) {
    now_ += pauseMs;
    qt_handleMouseEvent(pressedOn_, at, pressedOn_->mapToGlobal(at), down, changed, type,
                        Qt::NoModifier, now_);
}

void Hand::press(const QWidget *window, QPoint at, Qt::MouseButton button) {
    pressedOn_ = window->windowHandle();
    held_ = button;
    send(QEvent::MouseButtonPress, at, button, button);
}

void Hand::drag(QPoint to) {
    send(QEvent::MouseMove, to, held_, Qt::NoButton);
}

void Hand::release(QPoint at) {
    const Qt::MouseButton button = held_;
    held_ = Qt::NoButton;
    send(QEvent::MouseButtonRelease, at, Qt::NoButton, button);
}

void Hand::click(const QWidget *window, QPoint at, Qt::MouseButton button) {
    press(window, at, button);
    if (holds())
        release(at);
}

void Hand::turnWheel(QWidget *widget, bool up) {
    const QPoint at = widget->rect().center();
    constexpr int notch = 120;
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, up ? notch : -notch}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void Hand::type(const QWidget *window, Qt::Key key) {
    if (!window->isVisible())
        return;
    // What a window manager does when another window closes.
    if (QGuiApplication::focusWindow() != window->windowHandle())
        window->windowHandle()->requestActivate();
    QTest::keyClick(window->windowHandle(), key);
}

void Hand::holdKey(const QWidget *window, Qt::Key key, int repeats) {
    qt_handleKeyEvent(window->windowHandle(), QEvent::KeyPress, key, Qt::NoModifier);
    repeatKey(window, key, repeats);
    qt_handleKeyEvent(window->windowHandle(), QEvent::KeyRelease, key, Qt::NoModifier);
}

void Hand::repeatKey(const QWidget *window, Qt::Key key, int repeats) {
    QWindow *keyboard = window->windowHandle();
    for (int repeat = 0; repeat < repeats; ++repeat) {
        qt_handleKeyEvent(keyboard, QEvent::KeyRelease, key, Qt::NoModifier, {}, true);
        qt_handleKeyEvent(keyboard, QEvent::KeyPress, key, Qt::NoModifier, {}, true);
    }
}
