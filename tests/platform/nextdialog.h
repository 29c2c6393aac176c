// onNextDialog: a hand on the modal dialog that is about to open.
#ifndef TESTS_PLATFORM_NEXTDIALOG_H
#define TESTS_PLATFORM_NEXTDIALOG_H

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

// Calls `act` once, from the event loop, when a modal dialog is open.
inline void onNextDialog(const std::function<void(QDialog &)> &act) {
    QTimer::singleShot(0, qApp, [act] {
        auto *open = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        open != nullptr ? act(*open) : onNextDialog(act);
    });
}

#endif
