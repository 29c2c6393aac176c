#include "tests/monkey/user.h"

#include "forms/formsettings.h"
#include "tests/monkey/monkey.h"
#include "view/boardmetrics.h"
#include "view/mycanvasview.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QPushButton>

namespace {

constexpr Qt::Key dialogKeys[] = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space, Qt::Key_Return,
                                  Qt::Key_Escape, Qt::Key_Up,      Qt::Key_Down};
constexpr Qt::Key listKeys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape};

std::string text(QPoint at) {
    return std::to_string(at.x()) + "," + std::to_string(at.y());
}

void pressCloseButton(const QWidget &window) {
    QCloseEvent close;
    QApplication::sendEvent(window.windowHandle(), &close);
}

} // namespace

// The gestures and what the user sees before making one.
struct User::Gestures {
    explicit Gestures(User &user)
        : hand(user.hand_), dice(user.dice_), monkey(user.monkey_), game(monkey.game()),
          model(monkey.model()), list(QApplication::activePopupWidget()),
          dialog(qobject_cast<QDialog *>(QApplication::activeModalWidget())) {}

    // When a gesture is possible. A list of items takes everything while it is open.
    bool inList() const { return list != nullptr; }
    bool noList() const { return list == nullptr; }
    bool holding() const { return noList() && hand.holds(); }
    bool inDialog() const { return noList() && dialog != nullptr && !hand.holds(); }
    bool inSettings() const { return inDialog() && dialog == game.pSettings.get(); }
    bool isShown() const { return game.isVisible() && !game.isMinimized(); }
    bool isAway() const { return noList() && !isShown(); }
    bool atWindow() const { return noList() && isShown() && !hand.holds(); }
    bool free() const { return atWindow() && dialog == nullptr; }
    bool waiting() const { return free() && model.phase == GameModel::Phase::Waiting; }
    bool thinking() const { return free() && model.phase == GameModel::Phase::Thinking; }
    bool flying() const { return free() && model.phase == GameModel::Phase::Flying; }
    bool over() const { return free() && model.phase == GameModel::Phase::Over; }

    // Details of the event, for the journal.
    template <class Value>
    Value tell(Value value) {
        if constexpr (std::is_same_v<Value, QPoint>)
            monkey.journal().note("at " + text(value));
        else
            monkey.journal().note(std::to_string(value));
        return value;
    }
    template <class List>
    auto anyOf(const List &items) {
        return *(std::begin(items) + tell(dice.below(static_cast<int>(std::size(items)))));
    }
    Qt::Key anyOf(std::initializer_list<Qt::Key> keys) {
        return *(keys.begin() + tell(dice.below(static_cast<int>(keys.size()))));
    }

    // The next square of some legal move that begins with what is entered.
    void playMove() {
        std::vector<XY> squares = model.nextMarks;
        if (model.entered.empty()) {
            for (const LegalMove &m : model.legal)
                squares.push_back(m.from());
        }
        tap(dice.pick(squares), Qt::LeftButton);
    }
    void tapAnySquare() { tap({dice.below(model.squares()), dice.below(model.squares())}, any()); }
    void goOn() { click(dice.pick(std::vector{game.btnNewGame, game.btnPrev, game.btnSettings})); }
    void clickForce() { click(game.btnForce); }
    void clickBreak() { click(game.btnBreak); }
    void clickSettings() { click(game.btnSettings); }
    void clickAnyButton() { click(anyButton()); }
    void clickAnywhere() { hand.click(&game, tell(somewhere(game)), any()); }
    void clickTwice() { hand.doubleClick(&game, tell(anywhere()), any()); }
    void press() { hand.press(&game, tell(anywhere()), any()); }
    // Moves there with the button down, and lets go or not.
    void drag() {
        const QPoint at = tell(anywhere());
        if (!hand.canRelease() || !isShown())
            hand.drop();
        else
            hand.drag(at);
        if (hand.canRelease() && !dice.oneIn(3))
            hand.release(at);
    }
    void typeKey() { Hand::type(&keyboard(), anyOf(dialogKeys)); }
    void holdKey() {
        const Qt::Key key = anyOf({Qt::Key_Space, Qt::Key_Escape});
        if (keyboard().isVisible())
            Hand::holdKey(&keyboard(), key, dice.between(1, 5));
    }
    void passTime() { monkey.passTime(tell(dice.between(1, 10))); }
    // Within the limits that the window tells the window manager.
    void resize() {
        game.resize(game.width(), tell(dice.between(game.minimumHeight(), game.maximumHeight())));
    }
    void changeFont() {
        QFont font = QApplication::font();
        font.setPointSize(tell(dice.between(6, 20)));
        font.setBold(dice.oneIn(2));
        QApplication::setFont(font);
    }
    void hide() { game.hide(); }
    void minimise() { game.showMinimized(); }
    void show() {
        game.showNormal();
        game.activateWindow();
    }
    void close() {
        model.close();
        hand.drop();
        pressCloseButton(game);
    }
    void turnWheel() {
        QComboBox *chooser = anyOf(dialog->findChildren<QComboBox *>());
        const int item = tell(dice.below(chooser->count()));
        for (int turn = 0; turn < chooser->count() && chooser->currentIndex() != item; ++turn)
            Hand::turnWheel(chooser, item < chooser->currentIndex());
    }
    void clickInDialog() {
        const QWidget *widget = anyOf(dialog->findChildren<QWidget *>());
        const bool onIt = dice.oneIn(2) && widget->window() == dialog && widget->isVisible();
        hand.click(dialog,
                   tell(onIt ? widget->mapTo(dialog, widget->rect().center()) : somewhere(*dialog)),
                   any());
    }
    void clickDialogButton() {
        const QPushButton *button = anyOf(dialog->findChildren<QPushButton *>());
        hand.click(dialog, button->mapTo(dialog, button->rect().center()));
    }
    void closeDialog() { pressCloseButton(*dialog); }
    void typeInList() { Hand::type(list, anyOf(listKeys)); }
    void clickBesideList() { hand.click(list, {-3, -3}); }

    Qt::MouseButton any() { return dice.oneIn(4) ? Qt::RightButton : Qt::LeftButton; }
    QPushButton *anyButton() {
        return anyOf(std::vector{game.btnPrev, game.btnFwd, game.btnAbout, game.btnBreak,
                                 game.btnForce, game.btnSettings, game.btnNewGame});
    }
    QPoint somewhere(const QWidget &widget) {
        return {dice.below(widget.width()), dice.below(widget.height())};
    }
    // On a button, shown or not, or anywhere.
    QPoint anywhere() {
        const QPushButton *button = anyButton();
        return dice.oneIn(3) ? somewhere(game) : button->mapTo(&game, somewhere(*button));
    }
    void click(const QPushButton *button) {
        hand.click(&game, tell(button->mapTo(&game, button->rect().center())));
    }
    void tap(const XY &square, Qt::MouseButton button) {
        const boardMetrics &m = *game.pMetrics;
        const QPoint at(m.BxToScr(square.x) + dice.below(m.SquareWidthB()),
                        m.ByToScr(square.y) + dice.below(m.SquareHeightB()));
        hand.click(&game, tell(game.pView->viewport()->mapTo(&game, at)), button);
    }
    QWidget &keyboard() { return dialog != nullptr ? *static_cast<QWidget *>(dialog) : game; }

    Hand &hand;
    Dice &dice;
    Monkey &monkey;
    OpenGame &game;
    GameModel &model;
    QWidget *list;
    QDialog *dialog;
};

void User::act() {
    using G = Gestures;
    constexpr struct {
        const char *name;
        int weight;
        bool (Gestures::*possible)() const;
        void (Gestures::*make)();
    } all[] = {
        // The game, played on.
        {"play", 300, &G::waiting, &G::playMove},
        {"Force Move", 25, &G::waiting, &G::clickForce},
        {"BREAK", 120, &G::thinking, &G::clickBreak},
        {"let it land", 300, &G::flying, &G::passTime},
        {"go on", 300, &G::over, &G::goOn},
        {"open the settings", 24, &G::free, &G::clickSettings},
        // Anything, also behind a dialog.
        {"tap", 48, &G::atWindow, &G::tapAnySquare},
        {"click", 18, &G::atWindow, &G::clickAnywhere},
        {"click on a button", 90, &G::atWindow, &G::clickAnyButton},
        {"double click", 15, &G::atWindow, &G::clickTwice},
        {"press", 18, &G::atWindow, &G::press},
        {"drag", 200, &G::holding, &G::drag},
        {"key", 30, &G::noList, &G::typeKey},
        {"hold a key", 9, &G::noList, &G::holdKey},
        {"wait", 36, &G::noList, &G::passTime},
        // The window.
        {"resize", 9, &G::atWindow, &G::resize},
        {"font", 3, &G::noList, &G::changeFont},
        {"hide", 3, &G::free, &G::hide},
        {"minimise", 3, &G::atWindow, &G::minimise},
        {"show", 150, &G::isAway, &G::show},
        {"close", 2, &G::free, &G::close},
        // Dialogs and boxes, and the lists of choosers.
        {"wheel", 900, &G::inSettings, &G::turnWheel},
        {"click in the dialog", 360, &G::inDialog, &G::clickInDialog},
        {"click on its button", 300, &G::inDialog, &G::clickDialogButton},
        {"close the dialog", 90, &G::inDialog, &G::closeDialog},
        {"key in the list", 5, &G::inList, &G::typeInList},
        {"click beside the list", 1, &G::inList, &G::clickBesideList},
    };
    Gestures gestures(*this);
    int weights = 0;
    for (const auto &gesture : all)
        weights += (gestures.*gesture.possible)() ? gesture.weight : 0;
    int at = dice_.below(weights);
    for (const auto &gesture : all) {
        at -= (gestures.*gesture.possible)() ? gesture.weight : 0;
        if (at < 0) {
            monkey_.journal().event(gesture.name);
            (gestures.*gesture.make)();
            return;
        }
    }
}
