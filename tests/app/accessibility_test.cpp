// The game without a mouse or without eyes: keys and descriptions.

#include "tests/rig/gametest.h"

#include <QAccessible>
#include <QApplication>

namespace {

std::string textOf(QObject *object, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(object)->text(kind).toStdString();
}

} // namespace

TEST_F(GameTest, TheFocusIsGivenBackOnce) {
    place(startOfTen, humans);
    game.btnForce->setFocus();
    keys(game, {Qt::Key_Space});
    land();
    EXPECT_EQ(game.focusWidget(), game.btnForce) << "where it was before the search";
    keys(game, {Qt::Key_Tab});
    taps("46 35");
    land(2);
    EXPECT_EQ(game.focusWidget(), game.btnSettings) << "where it was before this move";
}

TEST_F(GameTest, SettingsAreReachedAndChosenByKeyboardAlone) {
    using namespace Qt;
    formsettings &dialog = *game.pSettings;
    const auto choose = [&dialog] {
        keys(dialog, {Key_Down, Key_Tab, Key_F4, Key_Up, Key_Return, Key_Tab, Key_Home, Key_Down,
                      Key_Tab, Key_Down, Key_Tab, Key_Space});
        EXPECT_EQ(textOf(QApplication::focusWidget(), QAccessible::Name), "Give Away");
        keys(dialog, {Key_Return});
    };
    game.btnAbout->setFocus();
    whileOpen(
        &dialog,
        [this] {
            keys(game, {Key_Tab, Key_Tab, Key_Return});
        },
        choose);
    EXPECT_EQ(request(), "AmEngine, depth 2, noise 400, give-away");
    EXPECT_EQ(settingsText(game), "rules 1, size 1, level 1, players 1, give-away 1");
}
