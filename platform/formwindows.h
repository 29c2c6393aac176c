// What windows of forms, which have a largest size, need of a window system.
#ifndef PLATFORM_FORMWINDOWS_H
#define PLATFORM_FORMWINDOWS_H

#include <QObject>

// Lets go of a window's largest size when it is maximised. On Wayland the toolkit draws the title
// bar, always with a button that maximises; a window that stays at its largest size in spite of
// that breaks the protocol, and the compositor ends the program. Install it on the application
// object with installEventFilter(), before windows are shown.
class MaximisedSizes : public QObject {
    Q_OBJECT

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void dropLimit(Qt::WindowState state);
};

#endif
