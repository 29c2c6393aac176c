#include "search/movesort.h"
#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

namespace {

using Scores = std::vector<int>;
constexpr int none = Score::none;

// Moves told apart by their start column: 0, 1, 2 ...
QValueList<LegalMove> moves(const Scores &scores) {
    QValueList<LegalMove> list;
    for (const int score : scores) {
        list.append(LegalMove({list.count(), 0}, {0, 1}));
        list.last().score = score;
    }
    return list;
}

// Moves as letters by their former places, "a" the first. The heap's last two entries are a case of
// their own: one child.
TEST(MoveOrdering, SortOrder) {
    const struct {
        Scores scores;
        const char *sorted;
    } cases[] = {{{0, 0, 0, 0, 0}, "aedcb"},
                 {{0, 0, 0, 0}, "adcb"},
                 {{0, 0}, "ab"},
                 {{2, 1, 2, 1}, "bdca"},
                 {{}, ""},
                 {{3, -1, 4, none, 9}, "dbace"},
                 {{5, 4, 3, 2, 1, 0}, "fedcba"},
                 {{2, 1}, "ba"},
                 {{1, 2, 3}, "abc"},
                 {{1, 3, 2}, "acb"},
                 {{1, 2, 2}, "acb"}};
    for (const auto &c : cases) {
        QValueList<LegalMove> list = moves(c.scores);
        sortByScore(list);
        std::string order;
        for (const LegalMove &m : list)
            order += static_cast<char>('a' + m.from().x);
        EXPECT_EQ(order, c.sorted);
    }
}

TEST(MoveOrdering, Reductions) {
    const struct {
        Scores sorted, reductions;
    } cases[] = {{{none, -300, 0, 100, 160}, {5, 7, 2, 1, 0}},
                 {{-500, -400, 999950}, {0, 0, 0}},
                 {{-1000000, -999999, -999950}, {0, 0, 0}},
                 {{-1000, -501, -500, -60, -59, 0}, {8, 4, 8, 1, 0, 0}},
                 {{-1000000, -999, -600, 0}, {5, 7, 4, 0}},
                 {{none, none}, {5, 5}},
                 {{}, {}}};
    for (const auto &c : cases) {
        QValueList<LegalMove> list = moves(c.sorted);
        AbstractEngine::depthUpdate(&list);
        Scores found;
        for (const LegalMove &m : list)
            found.push_back(m.reduction);
        EXPECT_EQ(found, c.reductions);
    }
}

TEST(MoveOrdering, BonusForSeveralGoodMoves) {
    const struct {
        Scores scores;
        int result;
    } cases[] = {{{50, 80, 95, 100}, 114},
                 {{95, 100}, 100},
                 {{70, 69, 100}, 107},
                 {{1, 2, 3, 4, 5, 6}, 27},
                 {{999950, 999950, 999950}, 999950},
                 {{none, none, none}, none}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::International, board(10));
        rig.engine->moveList = moves(c.scores);
        Score s(c.scores.back(), 1);
        rig.engine->updatePoints(s);
        EXPECT_EQ(s.value, c.result);
    }
}

// The second bound is the other side's.
TEST(MoveOrdering, Windows) {
    constexpr struct {
        int value, alpha, beta;
        bool outside;
    } cases[] = {{0, none, none, false}, {5, 5, none, true},  {6, 5, none, false},
                 {4, none, -5, false},   {5, none, -5, true}, {5, 4, -6, false},
                 {4, 4, -6, true},       {6, 4, -6, true}};
    for (const auto &c : cases)
        EXPECT_EQ(AbstractEngine::outsideRange(c.value, Score(c.alpha, 0), Score(c.beta, 0)),
                  c.outside)
            << c.value;
}

TEST(MoveOrdering, Favourites) {
    const struct {
        Scores scores;
        int depth;
        bool normal, gambit;
    } cases[] = {{{1900, 0, 1000}, 30, true, false}, {{1900, 1000}, 29, false, false},
                 {{1800, 1000}, 30, false, false},   {{1801, 1000}, 30, true, false},
                 {{3000, 1000}, 50, true, false},    {{3001, 1000}, 50, true, true},
                 {{3001, 1000}, 49, true, false},    {{1900, 1900, 0}, 50, false, false}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::International, board(10));
        rig.engine->moveList = moves(c.scores);
        rig.engine->depth = c.depth;
        EXPECT_EQ(rig.engine->FavouriteMove(&rig.engine->moveList), c.normal) << c.scores[0];
        AbstractEngine::isGambit = true;
        EXPECT_EQ(rig.engine->FavouriteMove(&rig.engine->moveList), c.gambit) << c.scores[0];
        EXPECT_EQ(rig.engine->moveList.first().from().x, 0) << "the list keeps its order";
    }
}

} // namespace
