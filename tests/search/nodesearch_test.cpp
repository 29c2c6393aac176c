// The search of nodes, on trees small enough for paper.

#include "tests/search/drawntree.h"

#include <gtest/gtest.h>

namespace {

constexpr int none = Score::none;

// Values of replies are as the other side sees them. Without a best move the node was valued as it
// stands. The parent is sure of `beta`.
TEST(Nodes, WhereTheSearchStops) {
    const struct {
        const char *name, *tree;
        int level, beta;
        const char *best;
        int value;
    } cases[] = {{"at the horizon", "7(0 0 -100)", 2, none, "none", 7},
                 {"not before", "7(0 0 -100)", 1, none, "c", 100},
                 {"not with two moves", "7(0 -100)", 5, none, "b", 100},
                 {"but beyond", "7(0 -100)", 6, none, "none", 7},
                 {"never with one", "7(-100)", 6, none, "a", 100},
                 {"nor with captures", "7(x0 x0 x-100)", 6, none, "c", 100},
                 {"at a senseless sacrifice", "9000(0 0 -100)", 1, -8499, "none", 9000},
                 {"which is one in thousands", "9000(0 0 -100)", 1, -8500, "c", 100},
                 {"and not with captures", "9000(x0 x0 x-100)", 1, -8499, "c", 100}};
    for (const auto &c : cases) {
        DrawnTree tree(c.tree);
        EXPECT_EQ(tree.searchNode(2, c.level, none, c.beta), c.best) << c.name;
        EXPECT_EQ(tree.score.value, c.value) << c.name;
    }
}

TEST(Nodes, AFreshListIsSearchedFromItsEnd) {
    DrawnTree tree("((1 2 3) (4 5 6))");
    tree.searchNode(2);
    EXPECT_EQ(tree.listed, "  b bc bb ba a ac ab aa");
}

// A level where a capture must be made adds 0.7 plies; two of them move the horizon.
TEST(Extensions, CapturesDeepenTheSearch) {
    const struct {
        const char *tree, *budgets;
        int deepest;
    } cases[] = {{.tree = "(x((5)))", .budgets = " a:37 aa:37 aaa:37", .deepest = 3},
                 {.tree = "(x(x(5)))", .budgets = " a:37 aa:44 aaa:44", .deepest = 4}};
    for (const auto &c : cases) {
        DrawnTree tree(c.tree);
        tree.searchNode(3);
        EXPECT_EQ(tree.cloned.substr(0, std::string(c.budgets).size()), c.budgets);
        EXPECT_EQ(tree.statistic.maxLevel, c.deepest) << c.tree;
    }
}

// The parent is sure of -50: what is worth 50 here and more it will not allow.
TEST(CutOffs, OnAMoveTooGood) {
    const struct {
        const char *name, *tree;
        int alpha;
        const char *best;
        int value, nodes, cutoffs, stored;
    } cases[] = {
        {"at the limit", "(0 -50 0)", none, "none", 50, 3, 1, 1},
        {"one point less", "(0 -49 0)", none, "b", 49, 4, 0, 1},
        {"never at the move searched last", "(-90 0 0)", none, "a", 90, 4, 0, 1},
        {"on the window: the value stands, no record", "(0 0 40)", 50, "none", -40, 2, 1, 0},
    };
    for (const auto &c : cases) {
        DrawnTree tree(c.tree);
        EXPECT_EQ(tree.searchNode(2, 1, c.alpha, -50), c.best) << c.name;
        EXPECT_EQ(tree.score.value, c.value) << c.name;
        EXPECT_EQ(tree.statistic.nodes, c.nodes) << c.name;
        EXPECT_EQ(tree.statistic.cutoffs, c.cutoffs) << c.name;
        EXPECT_EQ(tree.table.count, c.stored) << c.name;
    }
}

TEST(Iterations, ADecidedMoveKeepsItsValueAndIsNotSearchedAgain) {
    DrawnTree tree("(-40 (# 0 0))");
    EXPECT_EQ(tree.searchNode(2), "a");
    const int first = tree.score.value;
    EXPECT_EQ(tree.move('b').score, Score::lost + 2);
    EXPECT_EQ(tree.statistic.nodes, 9);
    EXPECT_EQ(tree.searchNode(2), "a");
    EXPECT_EQ(tree.score.value, first);
    EXPECT_EQ(tree.statistic.nodes, 9 + 1 + 4) << "the root, a and its three replies";
}

TEST(Iterations, ThreeLevelsAreKept) {
    DrawnTree tree("(((((5)))))");
    tree.searchNode(2);
    EXPECT_EQ(tree.listed, "  a aa aaa aaaa aaaaa");
    tree.searchNode(2);
    EXPECT_EQ(tree.listed, " aaaa aaaaa");
}

// As where captures come by the thousand.
TEST(Iterations, ATreeAtRestIsSearchedOnAsItWas) {
    constexpr const char *drawing = "(((x7 5) (2 9 4)) ((3 1) (6 8)))";
    DrawnTree awake(drawing), rested(drawing);
    awake.searchNode(3);
    rested.searchNode(3);
    rested.move('a').subEngine->rest();
    EXPECT_TRUE(rested.move('a').subEngine->moveList.isEmpty());
    EXPECT_EQ(rested.searchNode(4), awake.searchNode(4));
    EXPECT_EQ(rested.listed, awake.listed);
    EXPECT_EQ(rested.score.value, awake.score.value);
}

TEST(Iterations, ACrowdedTreeIsFreedBitByBit) {
    static int alive = 0;
    struct Counted : IntEngine {
        Counted() : IntEngine(nullptr, 0, nullptr, 8) { ++alive; }
        ~Counted() override { --alive; }
    };
    EngineRig rig(RuleSet::International, board(8));
    while (alive < 2000)
        rig.engine->moveList.append(LegalMove())->subEngine = new Counted;
    rig.engine->FillMoveList();
    EXPECT_EQ(alive, 2000);
    rig.engine->freeDiscarded();
    EXPECT_LT(alive, 2000);
    EXPECT_GT(alive, 0);
    rig.engine.reset();
    EXPECT_EQ(alive, 0);
}

// 300 points behind cost half a ply, a value not known as much. Engines are made with the full
// budget and then get the reduced one.
TEST(Iterations, WorseMovesAreSearchedLessDeep) {
    DrawnTree tree("((1) (2) (3))");
    tree.engine->FillMoveList();
    tree.move('a').score = 0;
    tree.move('b').score = 300;
    tree.move('c').score = none;
    tree.searchNode(3);
    EXPECT_EQ(tree.move('a').subEngine->depth, 25);
    EXPECT_EQ(tree.move('b').subEngine->depth, 30);
    EXPECT_EQ(tree.move('c').subEngine->depth, 25);
    EXPECT_NE(tree.cloned.find(" a:30"), std::string::npos) << tree.cloned;
}

// Also in a game that is under way, and with an empty table in every iteration.
TEST(Transpositions, APositionReachedAgainIsNotSearchedAgain) {
    for (const int ply : {0, 40}) {
        DrawnTree tree("((5) (=aa))", ply);
        tree.searchNode(3);
        EXPECT_EQ(AbstractEngine::absHorizon, ply + 3);
        EXPECT_EQ(tree.statistic.hashHits, 1) << ply;
        EXPECT_EQ(tree.statistic.nodes, 7) << ply;
        tree.searchNode(3);
        EXPECT_EQ(tree.statistic.hashHits, 2) << ply;
        EXPECT_EQ(tree.statistic.nodes, 14) << ply;
    }
}

} // namespace
