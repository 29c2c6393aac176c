// The game without a mouse or without eyes: keys, names and descriptions.

#include "tests/app/gamerig.h"

#include "forms/fabout.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QTimer>

#include <algorithm>

namespace {

// To the window, or to the list that it has open.
void keys(const QWidget &window, const QList<Qt::Key> &typed) {
    for (const Qt::Key key : typed) {
        const QWidget *list = QApplication::activePopupWidget();
        QWindow *target = (list != nullptr ? list : &window)->windowHandle();
        if (key < Qt::Key_Escape)
            QTest::keyClick(target, static_cast<char>(key)); // with its text
        else
            QTest::keyClick(target, key);
    }
}

QStringList focusOrder(const QWidget &window, int stops) {
    QStringList order;
    for (; stops > 0; --stops, keys(window, {Qt::Key_Tab}))
        order << QApplication::focusWidget()->objectName();
    return order;
}

QString textOf(QObject *object, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(object)->text(kind);
}

bool hasName(QWidget *widget) {
    const QString name = textOf(widget, QAccessible::Name);
    const bool said =
        std::any_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); });
    const auto labels =
        QAccessible::queryAccessibleInterface(widget)->relations(QAccessible::Label);
    return said && (qobject_cast<QComboBox *>(widget) == nullptr || !labels.isEmpty());
}

bool isPartOfAChooser(const QWidget *widget) {
    const QWidget *above = widget->parentWidget();
    return above->inherits("QComboBox") || above->inherits("QComboBoxPrivateContainer");
}

class AccessibilityTest : public GameTest {
protected:
    AccessibilityTest() { activate(game); }

    static void activate(QWidget &window) {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    // Opens the settings with the keyboard and calls `act` while they are open.
    void openSettings(const std::function<void(formsettings &)> &act) {
        activate(game);
        while (QApplication::focusWidget() != game.btnSettings)
            keys(game, {Qt::Key_Tab});
        QTimer::singleShot(50, &game, [&] {
            activate(*game.pSettings);
            act(*game.pSettings);
        });
        keys(game, {Qt::Key_Space});
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
    EXPECT_EQ(focusOrder(game, 7).join(' ').toStdString(),
              "btnPrev btnFwd btnAbout btnForce btnSettings btnNewGame btnPrev");
    openSettings([](formsettings &dialog) {
        EXPECT_EQ(focusOrder(dialog, 5).join(' ').toStdString(),
                  "cmbRules cmbSize cmbLevel cmbPlayers chGiveAway");
        for (const char *button : {"OK", "Cancel"}) {
            EXPECT_EQ(textOf(QApplication::focusWidget(), QAccessible::Name), button);
            keys(dialog, {Qt::Key_Tab});
        }
        EXPECT_TRUE(dialog.cmbRules->hasFocus());
        dialog.cmbRules->setEnabled(false);
        EXPECT_EQ(focusOrder(dialog, 1).first(), "cmbSize");
        dialog.cmbRules->setEnabled(true);
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

TEST_F(AccessibilityTest, SettingsAreChosenByKeyboardAlone) {
    using namespace Qt;
    const auto choose = [](formsettings &dialog, Key american) {
        keys(dialog, {american, Key_Tab, Key_F4, Key_Up, Key_Return, Key_Tab, Key_Home, Key_Down,
                      Key_Tab, Key_Down, Key_Tab, Key_Space});
        EXPECT_EQ(textOf(QApplication::focusWidget(), QAccessible::Name), "Give Away");
        EXPECT_TRUE(dialog.giveAway);
    };
    openSettings([&](formsettings &dialog) {
        choose(dialog, Key_Down);
        keys(dialog, {Key_Escape});
    });
    EXPECT_STREQ(game.pEngine->className(), "IntEngine");
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
    openSettings([&](formsettings &dialog) {
        keys(dialog, {Key_Tab, Key_Tab, Key_Tab}); // it was left at "Give Away"
        choose(dialog, Key_A);
        keys(dialog, {Key_Return});
    });
    EXPECT_STREQ(game.pEngine->className(), "AmEngine");
    EXPECT_EQ(status(), "[Your Move] 12/12 About Force Settings NewGame");
    EXPECT_EQ(game.pStat->getReqDepth(), 2);
    EXPECT_TRUE(game.pStat->giveAway);
    EXPECT_EQ(game.whiteComputer + game.blackComputer, 0);
}

TEST_F(AccessibilityTest, EveryControlHasAName) {
    QTimer::singleShot(50, &game, [this] { game.findChild<fabout *>()->reject(); });
    game.showAbout();
    openSettings([](formsettings &dialog) { dialog.reject(); });
    int named = 0;
    for (QWidget *widget : game.findChildren<QWidget *>()) {
        const auto role = QAccessible::queryAccessibleInterface(widget)->role();
        if (role == QAccessible::Client || role == QAccessible::Grouping ||
            role == QAccessible::ScrollBar || isPartOfAChooser(widget))
            continue;
        EXPECT_TRUE(hasName(widget)) << widget->metaObject()->className() << ' '
                                     << widget->objectName().toStdString() << ' ' << role;
        ++named;
    }
    EXPECT_EQ(named, 26);
    EXPECT_EQ(textOf(game.pView, QAccessible::Name), "Board");
}

TEST_F(AccessibilityTest, TheBoardIsDescribedAsItStands) {
    const auto description = [this] {
        return textOf(game.pView, QAccessible::Description).toStdString();
    };
    game.setBSize(sixSquares);
    const std::string start = "White to move. White 6, black 6. "
                              "White men: (0,0) (2,0) (4,0) (1,1) (3,1) (5,1). "
                              "Black men: (0,4) (2,4) (4,4) (1,5) (3,5) (5,5).";
    EXPECT_EQ(description(), start);
    place("w .....b w..... .W.... ..b... ...... ......");
    const std::string placed = description();
    EXPECT_EQ(placed, "White to move. White 2, black 2. White men: (0,4). White kings: (1,3). "
                      "Black men: (2,2) (5,5).");
    taps("13 31");
    land();
    EXPECT_EQ(description(),
              "Black to move. White 2, black 1. White men: (0,4). White kings: (3,1). "
              "Black men: (5,5).");
    press(game.btnPrev);
    EXPECT_EQ(description(), placed);
    press(game.btnNewGame);
    EXPECT_EQ(description(), start);
    boxes();
}
