// The search of nodes, on trees small enough for paper.

#include "rules/intengine.h"
#include "tests/search/drawntree.h"

#include <gtest/gtest.h>

namespace {

constexpr int none = Score::none;

// From reply a to the last, as the other side sees them.
TEST(Nodes, TheMoveThatLeavesTheOtherSideLeastIsChosen) {
    DrawnTree tree("(30 -50 40)");
    EXPECT_EQ(tree.iterate(1), 50);
    EXPECT_EQ(tree.lineName(), "b");
    EXPECT_EQ(tree.move('a').score, -30);
    EXPECT_EQ(tree.move('c').score, -40);
    EXPECT_EQ(tree.score.depth, 1) << "the ply where it was valued";
    EXPECT_EQ(tree.statistic.nodes, 4);
    EXPECT_EQ(tree.statistic.movesGenerated, 3 + 3 * 3);
    EXPECT_EQ(tree.statistic.scoresCalculated, 3);
}

TEST(Nodes, AFreshListIsSearchedFromItsEnd) {
    DrawnTree tree("((1 2 3) (4 5 6))");
    tree.iterate(2);
    EXPECT_EQ(tree.listed, "  b bc bb ba a ac ab aa");
}

TEST(Nodes, OfEqualMovesTheOneSearchedFirstIsChosen) {
    DrawnTree tree("(-40 -40 0)");
    tree.iterate(1);
    EXPECT_EQ(tree.lineName(), "b");
}

// Three moves as good are worth 14 points: next to the horizon, not above.
TEST(Nodes, SeveralGoodMovesCountAtTheHorizonOnly) {
    DrawnTree tree("(-10 -10 -10)");
    EXPECT_EQ(tree.iterate(1), 10 + 14);
    EXPECT_EQ(tree.iterate(2), 10 - 14) << "black's, below each of white's moves";
}

TEST(Nodes, GivingAwayTurnsValuesRound) {
    DrawnTree tree("(-100 0 50)");
    tree.statistic.giveAway = true;
    EXPECT_EQ(tree.iterate(1), 50);
    EXPECT_EQ(tree.lineName(), "c");
}

// A level where a capture must be made adds 0.7 plies; two of them move the horizon.
TEST(Extensions, CapturesDeepenTheSearch) {
    const struct {
        const char *tree, *budgets;
        int deepest;
    } cases[] = {{"(((5)))", " a:30 aa:30 aaa:30", 3},
                 {"(x((5)))", " a:37 aa:37 aaa:37", 3},
                 {"(x(x(5)))", " a:37 aa:44 aaa:44", 4}};
    for (const auto &c : cases) {
        DrawnTree tree(c.tree);
        tree.iterate(3);
        EXPECT_EQ(tree.cloned.substr(0, std::string(c.budgets).size()), c.budgets);
        EXPECT_EQ(tree.statistic.maxLevel, c.deepest) << c.tree;
    }
}

// Material of 9000 is more than the parent would allow, and three moves beyond the horizon would do
// for a static value.
TEST(Extensions, ACaptureToMakeIsAlwaysSearched) {
    constexpr struct { int level, beta; } cases[] = {{1, -1000}, {7, none}};
    for (const auto &[level, beta] : cases) {
        DrawnTree quiet("9000(-100 0 0)");
        EXPECT_EQ(quiet.searchAt(level, 20, none, beta), "none");
        EXPECT_EQ(quiet.score.value, 9000) << "level " << level;
        DrawnTree capture("9000(x-100 x0 x0)");
        EXPECT_EQ(capture.searchAt(level, 20, none, beta), "a");
        EXPECT_EQ(capture.score.value, 100) << "level " << level;
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
        {"the window one point open", "(0 -40 40)", 49, "b", 40, 4, 0, 1},
        {"a closed window, one move: no record", "(-30)", 50, "a", 30, 2, 0, 0},
    };
    for (const auto &c : cases) {
        DrawnTree tree(c.tree);
        EXPECT_EQ(tree.searchAt(1, 20, c.alpha, -50), c.best) << c.name;
        EXPECT_EQ(tree.score.value, c.value) << c.name;
        EXPECT_EQ(tree.statistic.nodes, c.nodes) << c.name;
        EXPECT_EQ(tree.statistic.cutoffs, c.cutoffs) << c.name;
        EXPECT_EQ(tree.table.count, c.stored) << c.name;
    }
}

TEST(CutOffs, TheRecordHasTheWindowAtEntry) {
    DrawnTree tree("(0 -50 0)", 40);
    AbstractEngine::absHorizon = 47;
    tree.searchAt(1, 20, -Score::none, -50);
    EXPECT_EQ(tree.position.hashScore, 50);
    EXPECT_EQ(tree.position.hashAlpha, none) << "a negated none is none";
    EXPECT_EQ(tree.position.hashBeta, -50);
    EXPECT_EQ(tree.position.hashHorizon, 47);
    EXPECT_EQ(tree.move('a').score, none) << "not searched any more";
}

TEST(Iterations, ADecidedMoveKeepsItsValueAndIsNotSearchedAgain) {
    DrawnTree tree("(-40 (# 0 0))");
    const int first = tree.iterate(2);
    EXPECT_EQ(tree.move('b').score, Score::lost + 2);
    EXPECT_EQ(tree.statistic.nodes, 9);
    EXPECT_EQ(tree.iterate(2), first);
    EXPECT_EQ(tree.lineName().front(), 'a');
    EXPECT_EQ(tree.statistic.nodes, 9 + 1 + 4) << "the root, a and its three replies";
}

TEST(Iterations, TheBestMoveOfTheLastOneComesFirst) {
    DrawnTree tree("((0 0 0) (90 90 90) (-90 -90 -90))");
    tree.iterate(2);
    EXPECT_EQ(tree.listed.substr(0, 11), "  c cc cb c");
    tree.iterate(2);
    EXPECT_EQ(tree.listed, "") << "the children were kept with their lists";
    EXPECT_EQ(tree.engine->moveList.last().to().y, 1);
}

// 300 points behind cost half a ply, a value not known as much. Engines are made with the full
// budget and then get the reduced one.
TEST(Iterations, WorseMovesAreSearchedLessDeep) {
    DrawnTree tree("((1) (2) (3))");
    tree.engine->FillMoveList();
    tree.move('a').score = 0;
    tree.move('b').score = 300;
    tree.move('c').score = none;
    tree.iterate(3);
    EXPECT_EQ(tree.move('a').subEngine->depth, 25);
    EXPECT_EQ(tree.move('b').subEngine->depth, 30);
    EXPECT_EQ(tree.move('c').subEngine->depth, 25);
    for (const char *made : {" a:30", " b:30", " c:30"})
        EXPECT_NE(tree.cloned.find(made), std::string::npos) << made;
}

// Also in a game that is under way, and with an empty table in every iteration.
TEST(Transpositions, APositionReachedAgainIsNotSearchedAgain) {
    for (const int ply : {0, 40}) {
        DrawnTree tree("((5) (=aa))", ply);
        tree.iterate(3);
        EXPECT_EQ(AbstractEngine::absHorizon, ply + 3);
        EXPECT_EQ(tree.statistic.hashHits, 1) << ply;
        EXPECT_EQ(tree.statistic.nodes, 7) << ply;
        tree.iterate(3);
        EXPECT_EQ(tree.statistic.hashHits, 2) << ply;
        EXPECT_EQ(tree.statistic.nodes, 14) << ply;
    }
}

// A record with the window -20 (of the other side) to 10, asked for at a node that is sure of 7 and
// whose parent is sure of `beta`.
TEST(Transpositions, ARecordAnswersWithinItsWindow) {
    constexpr struct {
        const char *name;
        int alpha, beta, horizon, stored;
        bool usable;
        int score;
    } cases[] = {{"inside", -20, 10, 9, 5, true, 5},
                 {"alpha below its beta", -21, 10, 9, 5, false, 0},
                 {"beta below its alpha", -20, 9, 9, 5, false, 0},
                 {"an earlier horizon", -20, 10, 8, 5, false, 0},
                 {"a later horizon", -20, 10, 10, 5, true, 5},
                 {"just no use to the node", -20, 10, 9, 20, true, none},
                 {"just of use to the node", -20, 10, 9, 19, true, 19}};
    for (const auto &c : cases) {
        DrawnTree tree("(1 2)");
        board b = tree.position;
        b.hashAlpha = 10;
        b.hashBeta = -20;
        b.hashScore = c.stored;
        b.hashHorizon = c.horizon;
        tree.table.insert(&b);
        AbstractEngine::absHorizon = 9;
        EXPECT_EQ(tree.engine->canUseHT(&tree.position, c.beta, c.alpha), c.usable) << c.name;
        EXPECT_EQ(tree.position.hashScore, c.score) << c.name;
        EXPECT_EQ(tree.position.hashHorizon, c.usable ? c.horizon : -1) << c.name;
    }
}

TEST(Break, NodesBelowTheRootAnswerNothing) {
    DrawnTree tree("((1) (2))");
    AbstractEngine::breakThinking = true;
    EXPECT_EQ(tree.searchAt(1, 20, none, none), "none");
    EXPECT_EQ(tree.score.value, none);
    EXPECT_EQ(tree.score.depth, -1);
    EXPECT_EQ(tree.statistic.nodes, 0);
    EXPECT_EQ(tree.iterate(2), none);
    EXPECT_EQ(tree.move('a').score, none);
    EXPECT_EQ(tree.statistic.nodes, 1);
}

// An engine that is counted.
struct CountedEngine : IntEngine {
    static inline int alive = 0;

    CountedEngine(::board *b, int budget, thinkStatistic *stat, int n)
        : IntEngine(b, budget, stat, n) {
        ++alive;
    }
    ~CountedEngine() override { --alive; }
    AbstractEngine *selfClone(::board *b, int budget, thinkStatistic *stat, int n) override {
        return new CountedEngine(b, budget, stat, n);
    }
};

// Engines that a node of this level keeps under its moves, on the way of the first.
int keptAt(const AbstractEngine *engine, int level) {
    for (; level > 0 && engine != nullptr; --level)
        engine = engine->moveList.first().subEngine;
    int kept = 0;
    for (int i = 0; engine != nullptr && i < engine->moveList.count(); ++i) {
        const LegalMove &m = engine->moveList[i];
        EXPECT_EQ(m.subEngine == nullptr, m.subBoard == nullptr);
        kept += m.subEngine != nullptr;
    }
    return kept;
}

TEST(Tree, ThreeLevelsAreKeptUntilTheNextListing) {
    {
        EngineRig rig(RuleSet::International, board(6));
        rig.engine = std::make_unique<CountedEngine>(&rig.position, 1, &rig.statistic, 6);
        rig.statistic.setReqDepth(5);
        rig.search();
        EXPECT_EQ(keptAt(rig.engine.get(), 0), 5) << "all of the root's moves";
        EXPECT_GT(keptAt(rig.engine.get(), 1), 0);
        EXPECT_GT(keptAt(rig.engine.get(), 2), 0);
        EXPECT_EQ(keptAt(rig.engine.get(), 3), 0);
        rig.engine->FillMoveList();
        EXPECT_EQ(CountedEngine::alive, 1) << "the root alone";
        rig.search();
        EXPECT_GT(CountedEngine::alive, 6);
    }
    EXPECT_EQ(CountedEngine::alive, 0);
}

} // namespace
