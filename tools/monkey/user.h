// User: what the monkey does next.
#ifndef TOOLS_MONKEY_USER_H
#define TOOLS_MONKEY_USER_H

#include "tools/monkey/dice.h"
#include "tools/monkey/hand.h"
#include "tools/monkey/referee.h"

class QDialog;
class QPushButton;

// One event a call, of those that are possible for a person before the screen. With nothing open
// about half of them play the game on by its rules; the others are anything.
class User {
public:
    User(Referee &referee, Journal &journal, Dice &dice)
        : referee_(referee), journal_(journal), dice_(dice) {}

    void act();
    // Closes the dialog or the box in front.
    void leaveDialog(QDialog *dialog);
    // The window has gone, and what was held with it.
    void windowChanged() { hand_.drop(); }

private:
    using Action = void (User::*)();

    void playOn();
    void playMove();
    void doAnything();
    void actInDialog(QDialog *dialog);
    void actInPopup(QWidget *popup);

    void tapSquare();
    void clickAnywhere();
    void clickAnyButton();
    void clickTwice();
    void pressAnywhere();
    void releaseSomewhere();
    void typeKey();
    void passTime();
    void resizeWindow();
    void changeFont();
    void hideOrShow();
    void closeWindow();
    void chooseSettings();
    void clickInDialog(QDialog *dialog);

    void clickButton(Button button);
    void tapAt(const XY &square, Qt::MouseButton button);
    bool windowIsUsable();
    QPoint somewhere(const QWidget *window);
    QPoint somewhereInteresting();
    Qt::MouseButton anyMouseButton();

    Referee &referee_;
    Journal &journal_;
    Dice &dice_;
    Hand hand_;
};

#endif
