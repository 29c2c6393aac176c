#include "tools/monkey/user.h"

#include "forms/formsettings.h"
#include "tools/monkey/inspector.h"
#include "view/boardmetrics.h"
#include "view/mycanvasview.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>

namespace {

QString text(QPoint at) {
    return QString("(%1,%2)").arg(at.x()).arg(at.y());
}

} // namespace

bool User::windowIsUsable() {
    const OpenGame &game = referee_.game();
    return game.isVisible() && !game.isMinimized();
}

void User::act() {
    QWidget *popup = QApplication::activePopupWidget();
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (popup != nullptr)
        actInPopup(popup);
    else if (dialog != nullptr && !dice_.oneIn(8))
        actInDialog(dialog);
    else if (!windowIsUsable() && dice_.oneIn(2))
        hideOrShow();
    else if (dialog == nullptr && windowIsUsable() && !hand_.holds() && dice_.oneIn(2))
        playOn();
    else
        doAnything();
}

void User::playOn() {
    switch (referee_.model().phase) {
    case Phase::Waiting:
        if (dice_.oneIn(12))
            clickButton(Button::Force);
        else
            playMove();
        break;
    case Phase::Thinking:
        if (dice_.oneIn(3))
            clickButton(Button::Break);
        else
            tapSquare();
        break;
    case Phase::Flying:
        passTime();
        break;
    case Phase::Over:
        clickButton(dice_.pick(std::vector{Button::NewGame, Button::Prev, Button::Settings}));
        break;
    case Phase::Closed:
        break;
    }
}

// The next square of some legal move that begins with what is entered.
void User::playMove() {
    const GameModel &model = referee_.model();
    std::vector<XY> squares = model.nextMarks;
    if (model.entered.empty()) {
        for (const Move &m : model.legal)
            squares.push_back(m.from());
    }
    tapAt(dice_.pick(squares), Qt::LeftButton);
}

void User::doAnything() {
    struct Kind {
        Action action;
        int weight;
    };
    constexpr Kind kinds[] = {
        {&User::tapSquare, 16},     {&User::clickAnywhere, 6}, {&User::clickAnyButton, 30},
        {&User::clickTwice, 5},     {&User::pressAnywhere, 6}, {&User::releaseSomewhere, 6},
        {&User::typeKey, 10},       {&User::passTime, 12},     {&User::resizeWindow, 3},
        {&User::changeFont, 1},     {&User::hideOrShow, 2},    {&User::closeWindow, 1},
        {&User::chooseSettings, 8},
    };
    int all = 0;
    for (const Kind &kind : kinds)
        all += kind.weight;
    int at = dice_.below(all);
    for (const Kind &kind : kinds) {
        at -= kind.weight;
        if (at < 0) {
            (this->*kind.action)();
            return;
        }
    }
}

Qt::MouseButton User::anyMouseButton() {
    return dice_.oneIn(4) ? Qt::RightButton : Qt::LeftButton;
}

QPoint User::somewhere(const QWidget *window) {
    return {dice_.below(window->width()), dice_.below(window->height())};
}

// A button, shown or not, or anywhere.
QPoint User::somewhereInteresting() {
    const OpenGame &game = referee_.game();
    if (dice_.oneIn(3))
        return somewhere(&game);
    const QWidget *button = widgetOf(game, allButtons[dice_.below(7)]);
    return button->mapTo(&game, somewhere(button));
}

void User::tapAt(const XY &square, Qt::MouseButton button) {
    if (hand_.holds() || !windowIsUsable())
        return passTime();
    const OpenGame &game = referee_.game();
    const boardMetrics &m = *game.pMetrics;
    const QPoint at(square.x * m.SquareWidthB() + dice_.below(m.SquareWidthB()),
                    (m.size - 1 - square.y) * m.SquareHeightB() + dice_.below(m.SquareHeightB()));
    journal_.event(QString("tap with button %1 at %2").arg(button).arg(text(at)));
    hand_.click(&game, game.pView->viewport()->mapTo(&game, at), button);
}

void User::tapSquare() {
    const int n = referee_.model().squares();
    tapAt({dice_.below(n), dice_.below(n)}, anyMouseButton());
}

void User::clickButton(Button button) {
    if (hand_.holds() || !windowIsUsable())
        return passTime();
    const OpenGame &game = referee_.game();
    const QWidget *widget = widgetOf(game, button);
    journal_.event("click on " + widget->objectName());
    hand_.click(&game, widget->mapTo(&game, widget->rect().center()));
}

void User::clickAnyButton() {
    clickButton(allButtons[dice_.below(7)]);
}

void User::clickAnywhere() {
    if (hand_.holds() || !windowIsUsable())
        return passTime();
    const QPoint at = somewhere(&referee_.game());
    journal_.event("click at " + text(at));
    hand_.click(&referee_.game(), at, anyMouseButton());
}

void User::clickTwice() {
    if (hand_.holds() || !windowIsUsable())
        return passTime();
    const QPoint at = somewhereInteresting();
    journal_.event("double click at " + text(at));
    hand_.doubleClick(&referee_.game(), at, anyMouseButton());
}

void User::pressAnywhere() {
    if (hand_.holds() || !windowIsUsable())
        return releaseSomewhere();
    const QPoint at = somewhereInteresting();
    journal_.event("press at " + text(at));
    hand_.press(&referee_.game(), at, anyMouseButton());
}

// Moves there with the button down, and lets go or not.
void User::releaseSomewhere() {
    if (!hand_.canRelease() || !windowIsUsable()) {
        hand_.drop();
        return passTime();
    }
    const QPoint at = somewhereInteresting();
    journal_.event("drag to " + text(at));
    hand_.drag(at);
    if (hand_.canRelease() && !dice_.oneIn(3)) {
        journal_.note("and release");
        hand_.release(at);
    }
}

void User::passTime() {
    const int steps = dice_.between(1, 10);
    journal_.event(QString("%1 ms pass").arg(25 * steps));
    referee_.passTime(steps);
}

// Within the limits that the window tells the window manager.
void User::resizeWindow() {
    OpenGame &game = referee_.game();
    const int height = dice_.between(game.minimumHeight(), game.maximumHeight());
    journal_.event(QString("resize to height %1").arg(height));
    game.resize(game.width(), height);
}

void User::changeFont() {
    QFont font = QApplication::font();
    font.setPointSize(dice_.between(6, 20));
    font.setBold(dice_.oneIn(2));
    journal_.event(QString("font of %1 points").arg(font.pointSize()));
    QApplication::setFont(font);
}

// Behind a dialog the window stays.
void User::hideOrShow() {
    OpenGame &game = referee_.game();
    const bool dialog = QApplication::activeModalWidget() != nullptr;
    if (!windowIsUsable()) {
        journal_.event("show the window");
        game.showNormal();
        game.activateWindow();
    } else if (!dialog && dice_.oneIn(2)) {
        journal_.event("hide the window");
        game.hide();
    } else {
        journal_.event("minimise the window");
        game.showMinimized();
    }
}

// The window system passes nothing to a window behind a dialog.
void User::closeWindow() {
    if (!windowIsUsable() || QApplication::activeModalWidget() != nullptr || !dice_.oneIn(3))
        return passTime();
    journal_.event("close the window");
    referee_.noteClose();
    QCloseEvent close;
    QApplication::sendEvent(referee_.game().windowHandle(), &close);
}

void User::chooseSettings() {
    clickButton(Button::Settings);
}
