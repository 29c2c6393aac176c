// The game as those know it who do not see it: squares, announcements, choosers. What is sent when
// is seen on the accessibility bus, by tests/bus.

#include "tests/rig/gametest.h"

#include <QAccessible>
#include <QDeadlineTimer>

namespace {

std::string nameOf(const QAccessibleInterface *told) {
    return told->text(QAccessible::Name).toStdString();
}

// On 6 x 6 squares.
class HearingTest : public GameTest {
protected:
    HearingTest() { game.setBSize(sixSquares); }

    QAccessibleInterface *board() const {
        return QAccessible::queryAccessibleInterface(game.pView);
    }
    QAccessibleInterface *square(const std::string &place) const {
        for (int i = 0; i < board()->childCount(); ++i) {
            if (nameOf(board()->child(i)).starts_with(place))
                return board()->child(i);
        }
        throw std::out_of_range("no square " + place);
    }
    std::string told(const std::string &place) const {
        const QAccessibleInterface *const cell = square(place);
        return nameOf(cell) + "; " + cell->text(QAccessible::Description).toStdString();
    }
    void pressSquare(const std::string &place) const {
        square(place)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    // The last announcement, which the window lists last.
    std::string announced() const {
        const QAccessibleInterface *const window =
            QAccessible::queryAccessibleInterface(game.pView->window());
        return nameOf(window->child(window->childCount() - 1));
    }
};

constexpr const char *oneCapture = "w .....b ...... ...b.. ..w... ...... w.....";
constexpr const char *lastMove = "w ...... ..w... ...w.. w.w... .b.... w.w...";

} // namespace

TEST_F(HearingTest, CellsLieInTheTableAsTheyAreSeen) {
    place("w .....b ...... ...... ..B... ...... ..w...");
    EXPECT_EQ(nameOf(board()->tableInterface()->cellAt(0, 2)), "f6, black man");
    EXPECT_EQ(nameOf(board()->tableInterface()->cellAt(3, 1)), "c3, black king");
    EXPECT_EQ(nameOf(board()->tableInterface()->cellAt(5, 1)), "c1, white man");
    const QPoint c3(2 * 38 + 19, 3 * 38 + 19); // squares of 38 pixels, counted from the top left
    const QPoint at = game.pView->viewport()->mapToGlobal(c3);
    EXPECT_EQ(board()->childAt(at.x(), at.y()), square("c3"));
}

TEST_F(HearingTest, SquaresTellWhatMattersOfTheMove) {
    place(oneCapture);
    EXPECT_EQ(told("c3"), "c3, white man; can capture");
    pressSquare("c3");
    EXPECT_EQ(told("c3"), "c3, white man; chosen");
    EXPECT_TRUE(square("c3")->state().selected);
    EXPECT_EQ(told("e5"), "e5, empty; offered");
    pressSquare("e5");
    EXPECT_EQ(told("d4"), "d4, black man; being taken");
}

TEST_F(HearingTest, EveryTapIsAnswered) {
    constexpr struct {
        const char *place, *answer;
    } taps[] = {{"a1", "a1 cannot move: you must capture with c3."},
                {"d4", "d4 is not your piece."},
                {"b2", "b2 is empty."},
                {"c3", "From c3 to e5."},
                {"b4", "c3 cannot go to b4."}};
    place(oneCapture);
    for (const auto &[place, answer] : taps) {
        pressSquare(place);
        EXPECT_EQ(announced(), answer);
    }
}

TEST_F(HearingTest, AQuickAnswerIsToldWithTheMoveBeforeIt) {
    place("w ...... b..... ...... ...... ...... w.....", humanComputer);
    taps("00 11");
    land(2);
    EXPECT_EQ(announced(), "White a1 to b2. Black a5 to b4. Your Move");
}

TEST_F(HearingTest, ALongSearchIsToldWithTheMoveBeforeIt) {
    place("w .b.b.b b.b.b. ...... ...... .w.w.w w.w.w.", humanComputer);
    game.setLevel(infinite);
    const QDeadlineTimer patience(10000);
    std::string duringSearch;
    host.onEvents = [&] {
        duringSearch = announced();
        if (duringSearch.ends_with("thinks.") || patience.hasExpired())
            game.breakThinking();
    };
    taps("11 02");
    land();
    EXPECT_EQ(duringSearch, "White b2 to a3. The computer thinks.");
}

TEST_F(HearingTest, TheLastMoveIsToldWithTheWinner) {
    place(lastMove);
    taps("24 35");
    land();
    EXPECT_EQ(announced(), "White c5 to d6. It is crowned. White has won.");
    EXPECT_EQ(boxes(), "warning of the window: Game Over: Game Over [Ok]\n");
}

TEST_F(HearingTest, InAGiveAwayWhoCannotMoveHasWon) {
    game.setGiveAway(true);
    place(lastMove);
    taps("24 35");
    land();
    EXPECT_EQ(announced(), "White c5 to d6. It is crowned. Black has won.");
    EXPECT_EQ(boxes(), "warning of the window: Game Over: Game Over [Ok]\n");
}

TEST_F(HearingTest, ChoosersAreHeardWithTheirChoiceAndTheBoardBehindThemRests) {
    place(oneCapture);
    whileOpen(
        game.pSettings.get(), [this] { press(game.btnSettings); },
        [this] {
            pressSquare("c3");
            EXPECT_EQ(told("c3"), "c3, white man; can capture") << "the dialog is in front";
            auto *const rules = QAccessible::queryAccessibleInterface(game.pSettings->cmbRules);
            EXPECT_EQ(nameOf(rules), "Rules: International");
            rules->valueInterface()->setCurrentValue(polish);
            EXPECT_EQ(nameOf(rules), "Rules: Polish Traditional");
            game.pSettings->accept();
        });
    EXPECT_EQ(request(), "PolEngine, depth 1, noise 1000");
}
