#include "platform/formwindows.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

bool MaximisedSizes::eventFilter(QObject *watched, QEvent *event) {
    // Told while the request is being made, before the compositor says how large is the most.
    if (event->type() == QEvent::Show && watched->isWindowType())
        connect(static_cast<QWindow *>(watched), &QWindow::windowStateChanged, this,
                &MaximisedSizes::dropLimit, Qt::UniqueConnection);
    return QObject::eventFilter(watched, event);
}

// For good: back from there the window is too large for its limit for a moment.
void MaximisedSizes::dropLimit(Qt::WindowState state) {
    if (state == Qt::WindowMaximized)
        static_cast<QWindow *>(sender())->setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
}
