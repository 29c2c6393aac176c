// The turns of a game: taps, flights, answers, the end.

#include "tests/app/gamerig.h"

#include <algorithm>

namespace {

const QColor blue(108, 108, 255);
const QColor red(255, 108, 108);
const QColor grey(118, 118, 118);

} // namespace

TEST_F(GameTest, TapsSelectReselectAndClear) {
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
    expectAgreement();
    const std::string both = "(4,4) (6,4)";
    const struct {
        const char *what, *square;
        std::string offered;
    } cases[] = {
        {"a man", "53", both},
        {"a black man", "86", ""},
        {"a man again", "13", "(0,4) (2,4)"},
        {"another", "53", both},
        {"a light square", "43", both},
        {"the same again, as a double click", "53", both},
        {"an empty square not offered", "24", ""},
    };
    for (const auto &[what, square, offered] : cases) {
        taps(square);
        EXPECT_EQ(marked(MarkNext), offered) << what;
        EXPECT_EQ(squareColour(4, 4), offered == both ? blue : grey);
    }
}

TEST_F(GameTest, NothingButTheFlightActsWhileThePlayersManFlies) {
    taps("53 44");
    ASSERT_TRUE(game.flying());
    EXPECT_EQ(status(), "[Your Move] 20/20 NewGame");
    const std::string before = picture(*game.pBoard);
    for (QPushButton *button : {game.btnPrev, game.btnFwd, game.btnAbout, game.btnForce,
                                game.btnSettings, game.btnNewGame})
        press(button);
    tap(3, 3);
    game.resize(240, 312);
    EXPECT_EQ(picture(*game.pBoard), before);

    // The canvas's own timer brings the man home and the computer answers.
    ASSERT_TRUE(QTest::qWaitFor([this] { return game.pBoard->plyCount == 2; }));
    EXPECT_EQ(status().substr(status().find("20/20")), "20/20 Prev About Force Settings NewGame");
    EXPECT_EQ(marked(MarkNext), "");
    EXPECT_EQ(marked(MarkPath).size(), std::string("(4,4) (5,5)").size()) << "the answer's path";
    expectAgreement();
    EXPECT_EQ(host.beeps, 1);
}

constexpr const char *twoOrOne =
    "w .......... .......... .......... .......... .b...b.... w......... "
    "...b...... ..w....... .......... ........w.";

TEST_F(GameTest, LongestCaptureIsEnteredSquareBySquare) {
    place(twoOrOne);
    EXPECT_EQ(status(), "[You Must Capture] 3/3 About Force Settings NewGame");
    taps("80 04");
    EXPECT_EQ(marked(MarkNext), "") << "a quiet move, and a capture of one";
    taps("22 44");
    EXPECT_EQ(marked(MarkNext), "(6,6)");
    tap(6, 6);
    const std::string flight = shown();
    EXPECT_EQ(std::count(flight.begin(), flight.end(), 'x'), 2) << flight;
    land();
    EXPECT_EQ(status(), "[Your Move] 3/1 Prev About Force Settings NewGame");
    EXPECT_EQ(squareColour(2, 2), red);
    EXPECT_EQ(squareColour(3, 3), grey);
    expectAgreement();
    game.setRules(2);
    place(twoOrOne);
    tap(0, 4);
    EXPECT_EQ(marked(MarkNext), "(2,6)") << "Polish rules leave the choice";
}

TEST_F(GameTest, MovesEndAsTheRulesHaveIt) {
    const struct {
        const char *what;
        int rules;
        const char *before, *path;
        const char *offered; // before the last tap
        const char *after;
    } cases[] = {
        {"white crowns", 0, "w ...... ..w... ...... ...... .b.... ......", "24 35", "(1,5) (3,5)",
         "b ...W.. ...... ...... ...... .b.... ......"},
        {"black crowns", 1, "b ...... ...... ...w.. ...... .b.... ......", "11 00", "(0,0) (2,0)",
         "w ...... ...... ...w.. ...... ...... B....."},
        {"no crown in passing", 0, "w ...... ..b.b. .w.... b..... ...... ......", "13 35 53",
         "(5,3)", "b ...... ...... .....w b..... ...... ......"},
        {"a flying king chooses", 0, "w ...... b..... ...... ..b... ...... W.....", "00 44",
         "(3,3) (4,4) (5,5)", "b ...... b...W. ...... ...... ...... ......"},
        {"a short king does not", 1, "w ...... b..... ...... ...... .b.... W.....", "00 22",
         "(2,2)", "b ...... b..... ...... ..W... ...... ......"},
        {"round to where it began", 0, "w .....b ...... .b.b.. ...... .b.b.. ..w...",
         "20 42 24 02 20", "(2,0)", "b .....b ...... ...... ...... ...... ..w..."},
    };
    game.setBSize(sixSquares);
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        game.setRules(c.rules);
        place(c.before);
        const std::string path = c.path;
        taps(path.substr(0, path.size() - 2));
        EXPECT_EQ(marked(MarkNext), c.offered);
        taps(path.substr(path.size() - 2));
        land();
        EXPECT_EQ(picture(*game.pBoard), picture(drawn(c.after)));
        expectAgreement();
    }
}

TEST_F(GameTest, GameOverLeavesNewGameSettingsAndTheWayBack) {
    game.setBSize(sixSquares);
    place("w ...... ...... ...... ..b... .w.... ......");
    taps("11 33");
    land();
    EXPECT_EQ(boxes(), "Game Over: Game Over; ");
    const std::string over = "[Game Over] 1/0 Prev About Settings NewGame";
    EXPECT_EQ(status(), over);
    tap(3, 3);
    press(game.btnForce);
    EXPECT_EQ(status() + marked(MarkNext), over);
    press(game.btnPrev);
    EXPECT_EQ(status(), "[You Must Capture] 1/1 Fwd About Force Settings NewGame");
    press(game.btnFwd);
    EXPECT_EQ(status(), over);
    EXPECT_EQ(boxes(), "Game Over: Game Over; ");
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "confirm: confirm NewGame; ");
    EXPECT_EQ(status(), "[Your Move] 6/6 About Force Settings NewGame");
}

// The player always takes the first move of the list. Games may also go on for ever: then another.
TEST_F(GameTest, WholeGameEndsWithGameOver) {
    for (game.setBSize(sixSquares); host.boxes.empty() && host.fixedSeed < 50; ++host.fixedSeed) {
        game.pBoard->startPos(6);
        place(picture(*game.pBoard), 0);
        for (int move = 0; move < 60 && host.boxes.empty(); ++move) {
            for (const XY &square : QArray<XY>(game.pEngine->getLegalMove(0)->path))
                tap(square.x, square.y);
            for (land(); game.flying();)
                land();
            expectAgreement();
        }
    }
    EXPECT_EQ(boxes(), "Game Over: Game Over; ");
}

TEST_F(GameTest, EditsSquaresAndShowsWhoOwnsThem) {
    game.setPosXY(4, 4, false);
    game.setPosXY(1, 3, true);
    game.DoPlayerMove();
    expectAgreement();
    EXPECT_EQ(game.pBoard->squares[4][4] & codePiece, 5) << "a white man";
    EXPECT_EQ(game.pieces[1][3], nullptr);
    game.markTakenField();
    EXPECT_EQ(squareColour(1, 1), QColor(108, 128, 108));
    EXPECT_EQ(squareColour(1, 9), QColor(128, 108, 108));
}
