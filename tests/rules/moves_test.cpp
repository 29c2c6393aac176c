// Rule positions: what each rule set lists, in order, and what playing a move leaves.

#include "rules/amengine.h"
#include "search/thinkstatistic.h"
#include "tests/support/drawnboard.h"

#include <gtest/gtest.h>

namespace {

// Expected lists in order; an empty one: the side to move has lost. The Polish list is the
// international one where it is not given.
struct Position {
    const char *name;
    const char *picture;
    const char *international;
    const char *american;
    const char *polish = nullptr;
};

const Position positions[] = {
    {"start of 10 x 10", R"(w
        .b.b.b.b.b
        b.b.b.b.b.
        .b.b.b.b.b
        b.b.b.b.b.
        ..........
        ..........
        .w.w.w.w.w
        w.w.w.w.w.
        .w.w.w.w.w
        w.w.w.w.w.)",
     "(1,3)-(0,4) (1,3)-(2,4) (3,3)-(2,4) (3,3)-(4,4) (5,3)-(4,4) (5,3)-(6,4) (7,3)-(6,4) "
     "(7,3)-(8,4) (9,3)-(8,4)",
     "(1,3)-(0,4) (1,3)-(2,4) (3,3)-(2,4) (3,3)-(4,4) (5,3)-(4,4) (5,3)-(6,4) (7,3)-(6,4) "
     "(7,3)-(8,4) (9,3)-(8,4)"},
    {"men capture backwards, American ones do not", "w ...... ...... ...... ..w... .b.... ......",
     "(2,2)x(0,0)", "(2,2)-(1,3) (2,2)-(3,3)"},
    {"the longest capture, or a free choice", R"(w
        ........
        ........
        ........
        ....b...
        ........
        ..b...B.
        .w...w..
        ........)",
     "(1,1)x(3,3)x(5,5)", "(1,1)x(3,3)x(5,5) (5,1)x(7,3)", "(1,1)x(3,3)x(5,5) (5,1)x(7,3)"},
    {"equally long captures, by direction", R"(b
        ........
        ........
        ...w.W..
        ....b...
        ...w.w..
        ........
        ........
        ........)",
     "(4,4)x(6,6) (4,4)x(6,2) (4,4)x(2,2) (4,4)x(2,6)", "(4,4)x(6,2) (4,4)x(2,2)"},
    {"flying and short kings", "w ...... ...... ...... ..W... ...... ......",
     "(2,2)-(3,3) (2,2)-(4,4) (2,2)-(5,5) (2,2)-(3,1) (2,2)-(4,0) (2,2)-(1,1) (2,2)-(0,0) "
     "(2,2)-(1,3) (2,2)-(0,4)",
     "(2,2)-(3,3) (2,2)-(3,1) (2,2)-(1,1) (2,2)-(1,3)"},
    {"kings capture in every direction", R"(b
        ........
        ........
        ........
        ..w.....
        ...B....
        ....w...
        ........
        ........)",
     "(3,3)x(5,1) (3,3)x(6,0) (3,3)x(1,5) (3,3)x(0,6)", "(3,3)x(5,1) (3,3)x(1,5)"},
    {"a flying king stops anywhere behind a distant piece", R"(w
        ........
        ........
        ........
        ....b...
        ........
        ........
        .W......
        ........)",
     "(1,1)x(5,5) (1,1)x(6,6) (1,1)x(7,7)", "(1,1)-(2,2) (1,1)-(2,0) (1,1)-(0,0) (1,1)-(0,2)"},
    {"but only where the capture goes on, if it does somewhere", R"(w
        ........
        ........
        ........
        ......b.
        ...b....
        ........
        ........
        W.......)",
     "(0,0)x(5,5)x(7,3)", "(0,0)-(1,1)"},
    {"no jump over edge pieces, pairs or own pieces", R"(w
        ........
        b.....b.
        .....b..
        ........
        ...W....
        ........
        .w......
        ......b.)",
     "(1,1)-(0,2) (1,1)-(2,2) (3,3)-(4,4) (3,3)-(4,2) (3,3)-(5,1) (3,3)-(2,2) (3,3)-(2,4) "
     "(3,3)-(1,5)",
     "(1,1)-(0,2) (1,1)-(2,2) (3,3)-(4,4) (3,3)-(4,2) (3,3)-(2,2) (3,3)-(2,4)"},
    {"a jumped piece blocks the way to (1,3)", R"(w
        ........
        ........
        ........
        ........
        .b...b..
        ..b.....
        .....b..
        W.......)",
     "(0,0)x(4,4)x(6,2)x(4,0)", "(0,0)-(1,1)", "(0,0)x(3,3)x(6,0) (0,0)x(4,4)x(6,2)x(4,0)"},
    {"around in a circle, no piece twice", R"(w
        ........
        ........
        ........
        ..b.b...
        ........
        ..b.b...
        ...w....
        ........)",
     "(3,1)x(5,3)x(3,5)x(1,3)x(3,1) (3,1)x(1,3)x(3,5)x(5,3)x(3,1)",
     "(3,1)x(5,3)x(3,5) (3,1)x(1,3)x(3,5)"},
    {"over the promotion row and on, white", "w ...... ..b.b. .w.... ...... ...... ......",
     "(1,3)x(3,5)x(5,3)", "(1,3)x(3,5)"},
    {"over the promotion row and on, black", "b ...... ...... ...... ....b. .w.w.. ......",
     "(4,2)x(2,0)x(0,2)", "(4,2)x(2,0)"},
    {"blocked but for a capture backwards", "w ...... ..b... .b.... w..... .b.... ......",
     "(0,2)x(2,0)", ""},
    {"blocked, white", "w ...... ..b... .b.... w..... ...... ......", "", ""},
    {"blocked, black", "b ...... ...... .....b ....w. ...w.. ......", "", ""},
    {"no piece left", "w .b.... ...... ...... ...... ...... ......", "", ""},
};

TEST(Moves, RulePositions) {
    thinkStatistic statistic;
    for (const Position &p : positions) {
        const char *const polish = p.polish != nullptr ? p.polish : p.international;
        const char *const expected[] = {p.international, p.american, polish};
        for (const Rules rules : allRules) {
            const std::string want = expected[static_cast<int>(rules)];
            board b = drawn(p.picture);
            const std::unique_ptr<IntEngine> engine = makeEngine(rules, &b, &statistic);
            const bool noMoves = engine->FillMoveList();
            EXPECT_EQ(moveText(engine->moveList), want)
                << p.name << ", " << testing::PrintToString(rules) << "\n"
                << picture(b);
            EXPECT_EQ(noMoves, want.empty()) << p.name;
            EXPECT_EQ(engine->isCapture(), want.find('x') != std::string::npos);
            EXPECT_EQ(engine->getLegalMove(engine->moveList.count()), nullptr);
        }
    }
}

// The first listed move is played.
TEST(Moves, PlayingAMove) {
    const struct {
        const char *name;
        Rules rules;
        const char *before;
        const char *after;
    } cases[] = {
        {"a capture that ends where it began keeps the piece", Rules::International,
         "w ........ ........ ........ ..b.b... ........ ..b.b... ...w.... ........",
         "b ........ ........ ........ ........ ........ ........ ...w.... ........"},
        {"the same for a king", Rules::American,
         "w ........ ........ ........ ..b.b... ........ ..b.b... ...W.... ........",
         "b ........ ........ ........ ........ ........ ........ ...W.... ........"},
        {"no crown in passing", Rules::Polish, "w ...... ..b.b. .w.... ...... ...... ......",
         "b ...... ...... .....w ...... ...... ......"},
        {"a crown where the capture ends", Rules::American,
         "w ...... ..b.b. .w.... ...... ...... ......",
         "b ...W.. ....b. ...... ...... ...... ......"},
        {"no crown in passing, black", Rules::International,
         "b ...... ...... ...... ....b. .w.w.. ......",
         "w ...... ...... ...... b..... ...... ......"},
        {"a crown at the end, black", Rules::American,
         "b ...... ...... ...... ....b. .w.w.. ......",
         "w ...... ...... ...... ...... .w.... ..B..."},
        {"a crown by a simple move", Rules::International,
         "w ...... ..w... ...... ...... ...... ......",
         "b .W.... ...... ...... ...... ...... ......"},
        {"the other side's row crowns nobody", Rules::International,
         "b ...b.. ...... ...... ...... ...... ......",
         "w ...... ..b... ...... ...... ...... ......"},
        {"a king stays a king", Rules::American, "w ...... ....W. ...... ...... ...... ......",
         "b .....W ...... ...... ...... ...... ......"},
    };
    thinkStatistic statistic;
    for (const auto &c : cases) {
        board b = drawn(c.before);
        b.plyCount = 5;
        b.hashScore = 42;
        const std::unique_ptr<IntEngine> engine = makeEngine(c.rules, &b, &statistic);
        ASSERT_FALSE(engine->FillMoveList()) << c.name;
        engine->makeMove(&b, &engine->moveList.first());
        EXPECT_EQ(picture(b), picture(drawn(c.after))) << c.name;
        EXPECT_EQ(b.plyCount, 6);
        EXPECT_EQ(b.hashScore, 42);
    }
}

TEST(Moves, CanMoveMarksAndMenAboutToPass) {
    const struct {
        const char *name;
        const char *picture;
        bool aboutToPass;
    } cases[] = {
        {"white, free", "w ...... ..w... ...... ...... ...... ......", true},
        {"white, blocked", "w .b.b.. ..w... ...... ...... ...... w.....", false},
        {"white, a row too low", "w ...... ...... ...w.. ...... ...... ......", false},
        {"white king", "w ...... ..W... ...... ...... ...... ......", false},
        {"black, free", "b ...... ...... ...... ...... ...b.. ......", true},
        {"black, blocked", "b ...... b..... ...... ...... ...b.. ..w.w.", false},
        {"black, but white was listed", "w ...... ...... ...... ...... ...b.. w.....", false},
    };
    thinkStatistic statistic;
    for (const auto &c : cases) {
        board b = drawn(c.picture);
        const std::unique_ptr<IntEngine> engine = makeEngine(Rules::International, &b, &statistic);
        EXPECT_FALSE(engine->aboutToPass()) << c.name << ", nothing listed yet";
        engine->FillMoveList();
        EXPECT_EQ(engine->aboutToPass(), c.aboutToPass) << c.name;
        b.whiteToMove = !b.whiteToMove;
        EXPECT_EQ(engine->aboutToPass(), c.aboutToPass) << c.name << ", the other side to move";
    }
}

TEST(Moves, QuietListingIgnoresCapturesAndMarks) {
    thinkStatistic statistic;
    board b = drawn("w ...... ...... ...... ..b... .w...w ......");
    const std::unique_ptr<IntEngine> engine = makeEngine(Rules::International, &b, &statistic);
    engine->FillMoveList();
    EXPECT_EQ(moveText(engine->moveList), "(1,1)x(3,3)");
    EXPECT_EQ(b.Get({5, 1}), whiteMan) << "captures leave no marks";
    QValueList<LegalMove> list;
    list.append(LegalMove({0, 0}, {1, 1}));
    EXPECT_TRUE(engine->FillNotCapturingMoveList(&list, &b));
    EXPECT_EQ(moveText(list), "(1,1)-(0,2) (5,1)-(4,2)");
    EXPECT_EQ(b.Get({1, 1}), whiteMan | codeCanMove);
    EXPECT_EQ(b.Get({5, 1}), whiteMan | codeCanMove);
    b.Get({0, 2}) = blackMan;
    b.Get({4, 2}) = blackKing;
    EXPECT_FALSE(engine->FillNotCapturingMoveList(&list, &b));
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(b.Get({1, 1}), whiteMan) << "the mark of the former listing is gone";
}

// Overrides change what the inherited code does.
class OwnRules : public PolEngine {
public:
    using PolEngine::PolEngine;
    bool captureAtAll = true;
    bool flying = true;
    std::string visited;

    void FillCaptureMoves() override {
        if (captureAtAll)
            PolEngine::FillCaptureMoves();
    }
    void genCapManMove(XY pos, ::board *b, int level, LegalMove *m) override {
        visited += 'm' + std::to_string(level);
        PolEngine::genCapManMove(pos, b, level, m);
    }
    bool genCapKingMove(XY pos, ::board *b, int level, LegalMove *m) override {
        visited += 'k' + std::to_string(level);
        return flying && PolEngine::genCapKingMove(pos, b, level, m);
    }
    void genNManMove(XY, int, QValueList<LegalMove> *, ::board *) override { visited += "n"; }
    void genNKingMove(XY, int, QValueList<LegalMove> *, ::board *) override { visited += "N"; }
};

TEST(Moves, OverridesTakePartEverywhere) {
    thinkStatistic statistic;
    board b = drawn(R"(w
        ........
        ........
        ........
        ....b...
        ........
        ..b.....
        .w......
        ......W.)");
    OwnRules engine(&b, 1, &statistic, 8);
    EXPECT_FALSE(engine.FillMoveList());
    EXPECT_EQ(engine.visited, "m1m2m3k1");
    EXPECT_EQ(moveText(engine.moveList), "(1,1)x(3,3)x(5,5)");
    engine.visited.clear();
    engine.captureAtAll = false;
    EXPECT_TRUE(engine.FillMoveList());
    EXPECT_EQ(engine.visited, "nN");

    b = drawn("w ........ ........ ........ ....b... ........ ........ .W...... ........");
    engine.captureAtAll = true;
    engine.visited.clear();
    EXPECT_FALSE(engine.FillMoveList());
    EXPECT_EQ(engine.visited, "k1k2k2k2");
    engine.flying = false;
    EXPECT_TRUE(engine.FillMoveList());
}

} // namespace
