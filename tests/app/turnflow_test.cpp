// The turns of a game: taps, flights, answers, the end.

#include "tests/rig/gametest.h"

#include <QTimer>

#include <set>

namespace {

const QColor blue(108, 108, 255);
const QColor red(255, 108, 108);
const QColor grey(118, 118, 118);

// The periods of the timers that run out while it lives, in ms.
struct TimerSpy : QObject {
    TimerSpy() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override {
        const auto *timer = qobject_cast<QTimer *>(watched);
        if (event->type() == QEvent::Timer && timer != nullptr)
            periods.insert(timer->interval());
        return false;
    }
    std::set<int> periods;
};

} // namespace

TEST_F(GameTest, TapsSelectReselectAndClear) {
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
    expectAgreement();
    const struct {
        const char *what, *square, *offered;
    } cases[] = {
        {.what = "a man", .square = "53", .offered = "(4,4) (6,4)"},
        {.what = "a black man", .square = "86", .offered = ""},
        {.what = "a man again", .square = "13", .offered = "(0,4) (2,4)"},
        {.what = "another", .square = "53", .offered = "(4,4) (6,4)"},
        {.what = "a light square", .square = "43", .offered = "(4,4) (6,4)"},
        {.what = "the same man again", .square = "53", .offered = "(4,4) (6,4)"},
        {.what = "an empty square not offered", .square = "24", .offered = ""},
    };
    for (const auto &c : cases) {
        taps(c.square);
        EXPECT_EQ(marked(MarkNext), c.offered) << c.what;
    }
    taps("53");
    EXPECT_EQ(squareColour(4, 4), blue);
    taps("24");
    EXPECT_EQ(squareColour(4, 4), grey);
}

TEST_F(GameTest, NothingButTheFlightActsWhileThePlayersManFlies) {
    taps("53 44");
    ASSERT_TRUE(game.flies());
    EXPECT_EQ(status(), "[Your Move] 20/20 NewGame");
    const std::string before = position();
    for (QPushButton *button : {game.btnPrev, game.btnFwd, game.btnAbout, game.btnForce,
                                game.btnSettings, game.btnNewGame})
        press(button);
    tap(3, 3);
    game.setPosXY(0, 0, true);
    game.resize(240, 312);
    EXPECT_EQ(position(), before);
    land(2);
    expectAgreement();
}

// The canvas's own timer brings the man home and the computer answers.
TEST_F(GameTest, MovesFlyByTheCanvassTimer) {
    const TimerSpy timers;
    taps("53 44");
    ASSERT_TRUE(QTest::qWaitFor([this] { return game.pBoard->plyCount == 2; }));
    EXPECT_EQ(timers.periods.count(25), 1U);
    EXPECT_EQ(host.beeps, 1);
    EXPECT_TRUE(status().ends_with("20/20 Prev About Force Settings NewGame"));
    EXPECT_EQ(marked(MarkNext), "");
    EXPECT_EQ(game.pHist->getBoard()->plyCount, 1) << "recorded before it is counted";
    expectAgreement();
}

// Half way to (3,3) the white man is over the piece that it takes.
TEST_F(GameTest, ThePieceThatFliesIsAboveTheOthers) {
    game.setBSize(sixSquares);
    place("w .....b ...... ...... ..b... .w.... ......");
    taps("11 33");
    for (int step = 0; step < 5; ++step)
        game.pCanvas->advance();
    EXPECT_EQ(shown(), picture(drawn("b .....b ...... ...... ..w... ...... ......")));
    land();
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
    EXPECT_EQ(shown(), "b\n..........\n..........\n..........\n..........\n.b...x....\nw.........\n"
                       "...x......\n..w.......\n..........\n........w.\n");
    land();
    EXPECT_EQ(status(), "[Your Move] 3/1 Prev About Force Settings NewGame");
    EXPECT_EQ(squareColour(2, 2), red);
    EXPECT_EQ(squareColour(3, 3), grey);
    expectAgreement();
}

TEST_F(GameTest, MovesEndAsTheRulesHaveIt) {
    const struct {
        const char *what;
        int rules;
        const char *before, *path, *last, *offered, *after;
    } cases[] = {
        {.what = "white crowns",
         .rules = international,
         .before = "w ...... ..w... ...... ...... .b.... ......",
         .path = "24",
         .last = "35",
         .offered = "(1,5) (3,5)",
         .after = "b ...W.. ...... ...... ...... .b.... ......"},
        {.what = "black crowns",
         .rules = american,
         .before = "b ...... ...... ...w.. ...... .b.... ......",
         .path = "11",
         .last = "00",
         .offered = "(0,0) (2,0)",
         .after = "w ...... ...... ...w.. ...... ...... B....."},
        {.what = "no crown in passing",
         .rules = international,
         .before = "w ...... ..b.b. .w.... b..... ...... ......",
         .path = "13 35",
         .last = "53",
         .offered = "(5,3)",
         .after = "b ...... ...... .....w b..... ...... ......"},
        {.what = "a flying king chooses",
         .rules = international,
         .before = "w ...... b..... ...... ..b... ...... W.....",
         .path = "00",
         .last = "44",
         .offered = "(3,3) (4,4) (5,5)",
         .after = "b ...... b...W. ...... ...... ...... ......"},
        {.what = "a short king does not",
         .rules = american,
         .before = "w ...... b..... ...... ...... .b.... W.....",
         .path = "00",
         .last = "22",
         .offered = "(2,2)",
         .after = "b ...... b..... ...... ..W... ...... ......"},
        {.what = "round to where it began",
         .rules = international,
         .before = "w .....b ...... .b.b.. ...... .b.b.. ..w...",
         .path = "20 42 24 02",
         .last = "20",
         .offered = "(2,0)",
         .after = "b .....b ...... ...... ...... ...... ..w..."},
    };
    game.setBSize(sixSquares);
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        game.setRules(c.rules);
        place(c.before);
        taps(c.path);
        EXPECT_EQ(marked(MarkNext), c.offered);
        taps(c.last);
        land();
        EXPECT_EQ(position(), picture(drawn(c.after)));
        expectAgreement();
    }
}

TEST_F(GameTest, GameOverLeavesNewGameSettingsAndTheWayBack) {
    game.setBSize(sixSquares);
    place("w ...... ...... ...... ..b... .w.... ......");
    taps("11 33");
    land();
    EXPECT_EQ(boxes(), gameOverBox);
    EXPECT_EQ(status(), "[Game Over] 1/0 Prev About Settings NewGame");
    tap(3, 3);
    press(game.btnForce);
    EXPECT_EQ(marked(MarkNext), "");
    EXPECT_EQ(status(), "[Game Over] 1/0 Prev About Settings NewGame");
    press(game.btnPrev);
    EXPECT_EQ(status(), "[You Must Capture] 1/1 Fwd About Force Settings NewGame");
    press(game.btnFwd);
    EXPECT_EQ(boxes(), gameOverBox);
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), newGameBox);
    EXPECT_EQ(status(), "[Your Move] 6/6 About Force Settings NewGame");
}

// What the search takes for the horizon counts from the ply that the game has reached.
TEST_F(GameTest, TheComputerThinksAlikeAtAnyPly) {
    const auto answerAt = [this](int ply) {
        place(startOfTen, humans);
        game.pBoard->plyCount = ply;
        game.pStat->setReqDepth(5);
        game.pStat->scoreNoise = 1;
        press(game.btnForce);
        land();
        return std::to_string(game.pStat->nodes) + " nodes, " + position();
    };
    EXPECT_EQ(answerAt(31), answerAt(0));
}
