// The game without a mouse or without eyes: keys, names and descriptions.

#include "tests/rig/gametest.h"

#include "forms/fabout.h"

#include <QAccessible>
#include <QApplication>

#include <algorithm>

namespace {

std::string focusOrder(const QWidget &window, int stops) {
    QStringList order;
    for (; stops > 0; --stops, Hand::type(&window, Qt::Key_Tab)) {
        const auto *button = qobject_cast<QPushButton *>(QApplication::focusWidget());
        order << (button != nullptr && button->objectName().isEmpty()
                      ? button->text().remove('&')
                      : QApplication::focusWidget()->objectName());
    }
    return order.join(' ').toStdString();
}

std::string textOf(QObject *object, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(object)->text(kind).toStdString();
}

bool isPartOfAChooser(const QWidget *widget) {
    const QWidget *above = widget->parentWidget();
    return above->inherits("QComboBox") || above->inherits("QComboBoxPrivateContainer");
}

class AccessibilityTest : public GameTest {
protected:
    // As many presses of Tab as it takes, then Space.
    void pressWithKeys(const QPushButton *button) {
        while (QApplication::focusWidget() != button)
            keys(game, {Qt::Key_Tab});
        keys(game, {Qt::Key_Space});
    }
    void inSettings(const std::function<void()> &act) {
        whileOpen(
            game.pSettings.get(), [this] { pressWithKeys(game.btnSettings); }, act);
    }
};

} // namespace

TEST_F(AccessibilityTest, TabGoesAsTheEye) {
    place(startOfTen, humans);
    for (const char *move : {"53 44", "46 35"}) {
        taps(move);
        land();
    }
    press(game.btnPrev);
    game.btnPrev->setFocus();
    EXPECT_EQ(focusOrder(game, 7),
              "btnPrev btnFwd btnAbout btnForce btnSettings btnNewGame btnPrev");
    formsettings &dialog = *game.pSettings;
    inSettings([&dialog] {
        EXPECT_EQ(focusOrder(dialog, 8),
                  "cmbRules cmbSize cmbLevel cmbPlayers chGiveAway OK Cancel cmbRules");
        keys(dialog, {Qt::Key_Escape});
    });
}

TEST_F(AccessibilityTest, TheFocusIsBackWhereItWasWhenTheTurnIs) {
    place(startOfTen, humans);
    game.btnForce->setFocus();
    for (int move = 0; move < 2; ++move) {
        keys(game, {Qt::Key_Space});
        land();
        EXPECT_EQ(game.focusWidget(), game.btnForce);
    }
}

TEST_F(AccessibilityTest, TheFocusIsGivenBackOnce) {
    place(startOfTen, humans);
    game.btnForce->setFocus();
    keys(game, {Qt::Key_Space});
    land();
    keys(game, {Qt::Key_Tab});
    EXPECT_EQ(game.focusWidget(), game.btnSettings);
    taps("46 35");
    land(2);
    EXPECT_EQ(game.focusWidget(), game.btnSettings) << "where it was before this move";
}

TEST_F(AccessibilityTest, AKeyHeldDownPressesAButtonOnce) {
    place(startOfTen, humans);
    taps("53 44");
    land();
    host.answer = false;
    game.btnNewGame->setFocus();
    Hand::holdKey(&game, Qt::Key_Space, 5);
    EXPECT_EQ(boxes(), newGameBox);
}

TEST_F(AccessibilityTest, SettingsAreChosenByKeyboardAlone) {
    using namespace Qt;
    formsettings &dialog = *game.pSettings;
    inSettings([&dialog] {
        keys(dialog, {Key_Down, Key_Tab, Key_F4, Key_Up, Key_Return, Key_Tab, Key_Home, Key_Down,
                      Key_Tab, Key_Down, Key_Tab, Key_Space});
        EXPECT_EQ(textOf(QApplication::focusWidget(), QAccessible::Name), "Give Away");
        keys(dialog, {Key_Return});
    });
    EXPECT_EQ(request(), "AmEngine, depth 2, noise 400, give-away");
    EXPECT_EQ(settingsText(game), "rules 1, size 1, level 1, players 1, give-away 1");
    EXPECT_EQ(status(), "[Your Move] 12/12 About Force Settings NewGame");
}

TEST_F(AccessibilityTest, EscapeAndReturnOnCancelRejectTheSettings) {
    using namespace Qt;
    formsettings &dialog = *game.pSettings;
    const QList<Key> ways[] = {{Key_A, Key_Escape}, {Key_A, Key_Backtab, Key_Return}};
    for (const QList<Key> &way : ways) {
        inSettings([&] {
            dialog.cmbRules->setFocus();
            keys(dialog, way);
        });
        EXPECT_EQ(settingsText(game), "rules 0, size 2, level 3, players 0, give-away 0");
        EXPECT_STREQ(game.pEngine->className(), "IntEngine");
    }
}

TEST_F(AccessibilityTest, EveryControlHasAName) {
    whileOpen(
        game.pAbout, [this] { press(game.btnAbout); }, [this] { game.pAbout->reject(); });
    reject({});
    int named = 0;
    for (QWidget *widget : game.findChildren<QWidget *>()) {
        QAccessibleInterface *control = QAccessible::queryAccessibleInterface(widget);
        const QAccessible::Role role = control->role();
        if (role == QAccessible::Client || role == QAccessible::Grouping ||
            role == QAccessible::ScrollBar || isPartOfAChooser(widget))
            continue;
        ++named;
        const std::string name = textOf(widget, QAccessible::Name);
        EXPECT_TRUE(std::any_of(name.begin(), name.end(), ::isalnum))
            << widget->objectName().toStdString();
        if (role == QAccessible::ComboBox) {
            EXPECT_FALSE(control->relations(QAccessible::Label).isEmpty()) << name;
        }
    }
    EXPECT_EQ(named, 26);
    EXPECT_EQ(textOf(game.pView, QAccessible::Name), "Board");
}

TEST_F(AccessibilityTest, TheBoardIsDescribedAsItStands) {
    game.setBSize(sixSquares);
    place("w .....b w..... .W.... ..b... ...... ......");
    const std::string placed = "White to move. White 2, black 2. White men: (0,4). "
                               "White kings: (1,3). Black men: (2,2) (5,5).";
    EXPECT_EQ(textOf(game.pView, QAccessible::Description), placed);
    taps("13 31");
    land();
    EXPECT_EQ(textOf(game.pView, QAccessible::Description),
              "Black to move. White 2, black 1. White men: (0,4). White kings: (3,1). "
              "Black men: (5,5).");
    press(game.btnPrev);
    EXPECT_EQ(textOf(game.pView, QAccessible::Description), placed);
}
