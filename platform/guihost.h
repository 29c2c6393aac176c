// The host of a program with windows: real message boxes and beeps.
#ifndef PLATFORM_GUIHOST_H
#define PLATFORM_GUIHOST_H

#include "base/host.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

// Boxes are the toolkit's own modal ones. Where none may open, what has to be said still comes out:
//  - without an application object, on standard error, as from the display-free host;
//  - inside a paint event, in a box that opens when control is back in the event loop. Such a box
//    is for information only; a question asked while painting is answered with false at once.
//    A message that is already waiting is not queued again.
// An open box closes, as cancelled, when its window closes or the application quits. No events are
// processed inside a paint event.
class GuiHost : public QObject, public Host {
    Q_OBJECT

public:
    explicit GuiHost(QObject *parent = nullptr);

    // Makes sure that boxes are real from now on: unless some host has been installed, one of this
    // class is, until the program ends.
    static void provide();

    bool messageBox(BoxKind kind, const QString &title, const QString &text,
                    BoxButtons buttons = BoxButtons::Ok, QWidget *parent = nullptr) override;
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

    QList<Waiting> waiting_;
};

#endif
