#include "tests/monkey/user.h"

#include "forms/formsettings.h"
#include "tests/monkey/monkey.h"
#include "view/boardmetrics.h"
#include "view/mycanvasview.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>

static constexpr Qt::Key keys[] = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space, Qt::Key_Return,
                                   Qt::Key_Escape, Qt::Key_Up,      Qt::Key_Down,  Qt::Key_Left,
                                   Qt::Key_Right,  Qt::Key_N,       Qt::Key_F1};

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
    int tell(int value) {
        monkey.journal().note(std::to_string(value));
        return value;
    }
    QPoint tell(QPoint at) { return {tell(at.x()), tell(at.y())}; }
    template <class List>
    auto anyOf(const List &items) {
        return *(std::begin(items) + tell(dice.below(static_cast<int>(std::size(items)))));
    }

    // The next square of some legal move that begins with what is entered.
    void playMove() {
        std::vector<XY> squares = model.nextMarks;
        if (model.entered.empty()) {
            for (const LegalMove &m : model.legal)
                squares.push_back(m.from());
        }
        tap(dice.pick(squares));
    }
    void tapAnySquare() { tap({dice.below(model.squares()), dice.below(model.squares())}); }
    // Leaves the game's hands to the computer, and back, or changes what is played.
    void clickPressable() {
        std::vector<QPushButton *> pressable;
        for (QPushButton *button : buttons()) {
            if (model.pressable(button->objectName().mid(3).toStdString()))
                pressable.push_back(button);
        }
        hand.click(&game, middle(*anyOf(pressable)));
    }
    void click() { hand.click(&game, tell(anywhere()), anyButton()); }
    void press() { hand.press(&game, tell(anywhere()), anyButton()); }
    // Moves there with the button down, and lets go or not.
    void drag() {
        const QPoint at = tell(anywhere());
        isShown() ? hand.drag(at) : hand.drop();
        if (hand.holds() && !dice.oneIn(3))
            hand.release(at);
    }
    void type() { Hand::type(&keyboard(), anyOf(keys)); }
    void holdKey() {
        if (keyboard().isVisible())
            Hand::holdKey(&keyboard(), anyOf(keys), dice.between(1, 5));
    }
    void passTime() { monkey.passTime(tell(dice.between(1, 10))); }
    // Within the limits that the window tells the window manager.
    void resize() {
        game.resize(game.width(), tell(dice.between(game.minimumHeight(), game.maximumHeight())));
    }
    void minimise() { game.showMinimized(); }
    void show() {
        game.showNormal();
        game.activateWindow();
    }
    void close() {
        model.close();
        game.windowHandle()->close();
    }
    void turnWheel() {
        QComboBox *chooser = anyOf(dialog->findChildren<QComboBox *>());
        const int item = tell(dice.below(chooser->count()));
        for (int turn = 0; turn < chooser->count() && chooser->currentIndex() != item; ++turn)
            Hand::turnWheel(chooser, item < chooser->currentIndex());
    }
    void clickInDialog() { hand.click(dialog, tell(somewhere(*dialog)), anyButton()); }
    void clickWidget() {
        const QWidget *widget = anyOf(dialog->findChildren<QWidget *>());
        if (widget->window() == dialog && widget->isVisible())
            hand.click(dialog, widget->mapTo(dialog, widget->rect().center()));
    }
    void closeDialog() { dialog->windowHandle()->close(); }
    void typeInList() { Hand::type(list, anyOf(keys)); }

    Qt::MouseButton anyButton() { return dice.oneIn(4) ? Qt::RightButton : Qt::LeftButton; }
    std::vector<QPushButton *> buttons() const {
        return {game.btnPrev,  game.btnFwd,      game.btnAbout,  game.btnBreak,
                game.btnForce, game.btnSettings, game.btnNewGame};
    }
    QPoint somewhere(const QWidget &widget) {
        return {dice.below(widget.width()), dice.below(widget.height())};
    }
    // On a button, shown or not, or anywhere.
    QPoint anywhere() { return dice.oneIn(4) ? somewhere(game) : middle(*anyOf(buttons())); }
    QPoint middle(const QWidget &widget) const {
        return widget.mapTo(&game, widget.rect().center());
    }
    void tap(const XY &square) {
        const boardMetrics &m = *game.pMetrics;
        const QPoint at(m.BxToScr(square.x) + dice.below(m.SquareWidthB()),
                        m.ByToScr(square.y) + dice.below(m.SquareHeightB()));
        hand.click(&game, tell(game.pView->viewport()->mapTo(&game, at)));
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
        {"use a button", 50, &G::waiting, &G::clickPressable},
        {"BREAK", 120, &G::thinking, &G::clickPressable},
        {"let it land", 300, &G::flying, &G::passTime},
        {"go on", 300, &G::over, &G::clickPressable},
        // Anything, also behind a dialog.
        {"tap", 48, &G::atWindow, &G::tapAnySquare},
        {"click", 120, &G::atWindow, &G::click},
        {"press", 18, &G::atWindow, &G::press},
        {"drag", 200, &G::holding, &G::drag},
        {"key", 30, &G::noList, &G::type},
        {"hold a key", 9, &G::noList, &G::holdKey},
        {"wait", 36, &G::noList, &G::passTime},
        // The window.
        {"resize", 9, &G::atWindow, &G::resize},
        {"minimise", 6, &G::atWindow, &G::minimise},
        {"show", 150, &G::isAway, &G::show},
        {"close", 2, &G::free, &G::close},
        // Dialogs and boxes, and the lists of choosers.
        {"wheel", 900, &G::inSettings, &G::turnWheel},
        {"click in the dialog", 180, &G::inDialog, &G::clickInDialog},
        {"click a part of it", 500, &G::inDialog, &G::clickWidget},
        {"close the dialog", 90, &G::inDialog, &G::closeDialog},
        {"key in the list", 5, &G::inList, &G::typeInList},
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
