// What breaks into the game: a turn handed over inside a search, and the window's closing.

#include "tests/rig/gametest.h"

class InterruptionTest : public GameTest {
protected:
    // Has the computer search for White at the level "infinite" and calls `act` the fourth time
    // that the search processes events. BREAK ends the searches after it.
    void search(const std::function<void()> &act) {
        host.onEvents = [this, act, begun = host.eventRounds] {
            const int round = host.eventRounds - begun;
            if (round == 4)
                act();
            else if (round > 4 && game.thinks())
                game.breakThinking();
        };
        place(startOfTen);
        game.setLevel(infinite);
        press(game.btnForce);
    }

    const std::string nested = "warning of the window: DoPlayerMove: level>1 [Ok]\n";
    const std::string playersTurn = "[Your Move] 20/20 Prev About Force Settings NewGame";
};

TEST_F(InterruptionTest, NestedHandOverBreaksTheSearchOffAndStartsItAgain) {
    search([this] { game.DoPlayerMove(); });
    EXPECT_EQ(boxes(), nested);
    ASSERT_TRUE(game.flies());
    land();
    EXPECT_EQ(status(), playersTurn);
    expectAgreement();
}

TEST_F(InterruptionTest, NestedHandOverLeavesThePlayersAsTheyAreNow) {
    search([this] {
        game.whiteComputer = 0;
        game.DoPlayerMove();
        game.DoPlayerMove();
    });
    EXPECT_EQ(boxes(), nested + nested) << "one a call";
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
    EXPECT_EQ(game.pView->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(InterruptionTest, ClosingInTheWarningEndsTheSearchWithoutAMove) {
    host.onBox = [this] { game.close(); };
    search([this] { game.DoPlayerMove(); });
    EXPECT_EQ(boxes(), nested);
    EXPECT_TRUE(game.isClosed());
    EXPECT_EQ(position(), picture(drawn(startOfTen)));
}

TEST_F(InterruptionTest, HandOverInAFlightWaitsForItsEnd) {
    place(startOfTen);
    taps("53 44");
    game.DoPlayerMove();
    land();
    EXPECT_EQ(status(), playersTurn);
    expectAgreement();
}
