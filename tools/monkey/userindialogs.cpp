// User: dialogs, boxes and the keyboard.

#include "forms/formsettings.h"
#include "tools/monkey/user.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>

void User::typeKey() {
    struct Named {
        Qt::Key key;
        const char *name;
    };
    constexpr Named keys[] = {{Qt::Key_Tab, "Tab"},       {Qt::Key_Backtab, "Backtab"},
                              {Qt::Key_Space, "Space"},   {Qt::Key_Space, "Space"},
                              {Qt::Key_Return, "Return"}, {Qt::Key_Escape, "Escape"},
                              {Qt::Key_Up, "Up"},         {Qt::Key_Down, "Down"},
                              {Qt::Key_Left, "Left"},     {Qt::Key_Right, "Right"}};
    const Named &chosen = keys[dice_.below(std::size(keys))];
    journal_.event(QString("key ") + chosen.name);
    const QWidget *dialog = QApplication::activeModalWidget();
    Hand::type(dialog != nullptr ? dialog : &referee_.game(), chosen.key);
}

// In a list of items: keys that move and choose, or a click beside it, which closes it.
void User::actInPopup(QWidget *popup) {
    if (dice_.oneIn(6)) {
        journal_.event("click beside the list");
        hand_.click(popup, {-3, -3});
        return;
    }
    constexpr Qt::Key keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape};
    const Qt::Key key = keys[dice_.below(std::size(keys))];
    journal_.event(QString("key %1 in the list").arg(key));
    Hand::type(popup, key);
}

void User::actInDialog(QDialog *dialog) {
    if (hand_.holds()) {
        journal_.event("release");
        hand_.canRelease() ? hand_.release({1, 1}) : hand_.drop();
        return;
    }
    const int choice = dice_.below(10);
    const QList<QComboBox *> combos = dialog->findChildren<QComboBox *>();
    if (choice < 5 && !combos.isEmpty()) {
        QComboBox *combo = combos[dice_.below(static_cast<int>(combos.size()))];
        const int item = dice_.below(combo->count());
        journal_.event(QString("wheel over %1 to item %2").arg(combo->objectName()).arg(item));
        for (int turn = 0; turn < combo->count() && combo->currentIndex() != item; ++turn)
            Hand::turnWheel(combo, item < combo->currentIndex());
    } else if (choice < 7) {
        clickInDialog(dialog);
    } else if (choice < 8) {
        typeKey();
    } else {
        leaveDialog(dialog);
    }
}

void User::clickInDialog(QDialog *dialog) {
    QPoint at = somewhere(dialog);
    if (dice_.oneIn(2)) {
        const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
        const QWidget *widget = widgets[dice_.below(static_cast<int>(widgets.size()))];
        if (widget->window() == dialog && widget->isVisible())
            at = widget->mapTo(dialog, widget->rect().center());
    }
    journal_.event(QString("click in the dialog at (%1,%2)").arg(at.x()).arg(at.y()));
    hand_.click(dialog, at, anyMouseButton());
}

// By one of its buttons, the keyboard or its title bar.
void User::leaveDialog(QDialog *dialog) {
    const int choice = dice_.below(6);
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    if (choice == 0) {
        journal_.event("close the dialog by its title bar");
        QCloseEvent close;
        QApplication::sendEvent(dialog->windowHandle(), &close);
    } else if (choice == 1 || buttons.isEmpty()) {
        journal_.event("key Escape");
        Hand::type(dialog, Qt::Key_Escape);
    } else {
        const QPushButton *button = buttons[dice_.below(static_cast<int>(buttons.size()))];
        journal_.event("click on " + button->text());
        hand_.click(dialog, button->mapTo(dialog, button->rect().center()));
    }
}
