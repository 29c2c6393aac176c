// The X server seen from outside the program: its windows, their pictures, and taps on them.
#ifndef TOOLS_DEMO_XDISPLAY_H
#define TOOLS_DEMO_XDISPLAY_H

#include <QByteArray>
#include <QImage>
#include <QPoint>

#include <xcb/xcb.h>

#include <memory>

// As X numbers them.
enum class PointerButton : uint8_t { Left = 1, WheelDown = 5 };

// A connection to the display that DISPLAY names. All points and sizes are device pixels. Without a
// connection every operation does nothing and returns its empty value.
class XDisplay {
public:
    XDisplay();

    bool isConnected() const;
    // Whether the server has the XTEST extension, which taps need.
    bool canTap() const;
    // The visible top-level window whose title begins so; 0 when there is none.
    xcb_window_t findWindow(const QByteArray &titleStart) const;
    // What the window shows now; a null image when it is gone, partly off the screen, or the
    // screen has not 24-bit colour.
    QImage picture(xcb_window_t window) const;
    // Moves the pointer to a point of the window and clicks the button, as a mouse would.
    void tap(xcb_window_t window, QPoint point, PointerButton button = PointerButton::Left);
    // Asks the window to close, as the close button of a title bar does.
    void close(xcb_window_t window);
    // Puts a black window of no window manager's on top of the window, over all of it; remove()
    // takes it away again.
    xcb_window_t cover(xcb_window_t window);
    void remove(xcb_window_t cover);

private:
    bool isVisible(xcb_window_t window) const;
    QByteArray title(xcb_window_t window) const;
    xcb_atom_t atom(const QByteArray &name) const;

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_connection;
    xcb_window_t m_root = 0;
};

#endif
