// The host of the running application: real message boxes, events and beeps.
#ifndef PLATFORM_GUIHOST_H
#define PLATFORM_GUIHOST_H

#include "base/host.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

// Boxes are the toolkit's own modal ones. Where none may open, what has to be said still comes out:
//  - without an application object, on standard error, as from the display-free host;
//  - inside a paint event, in a box that opens when control is back in the event loop. Such a box
//    is for information only; a question asked while painting is answered with false at once.
//    A message that is already waiting is not queued again.
// An open box closes, as cancelled, when its window closes or the application quits.
class GuiHost : public QObject, public Host {
    Q_OBJECT

public:
    explicit GuiHost(QObject *parent = nullptr);

    bool messageBox(BoxKind kind, const QString &title, const QString &text,
                    BoxButtons buttons = BoxButtons::Ok, QWidget *parent = nullptr) override;
    // Enters the toolkit when a millisecond has passed since the last time, and else returns at
    // once. A search asks some forty thousand times a second; entering costs more than a
    // microsecond, a look at the clock a fortieth of that, and nobody can tell a click answered a
    // millisecond later.
    void processEvents() override;
    void beep() override;

private:
    struct Waiting {
        BoxKind kind;
        QString title;
        QString text;
        QPointer<QWidget> parent;
    };

    void postpone(const Waiting &box);
    void showWaiting();

    QList<Waiting> waiting;
    QElapsedTimer sinceEvents; // invalid until events are processed for the first time
};

#endif
