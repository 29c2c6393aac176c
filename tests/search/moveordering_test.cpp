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
    } cases[] = {
        {{0, 0, 0, 0, 0}, "aedcb"}, {{2, 1, 2, 1}, "bdca"}, {{3, -1, 4, none, 9}, "dbace"}};
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
                 {{-1000000, -999999, -999950}, {0, 0, 0}},
                 {{-1000, -501, -500, -60, -59, 0}, {8, 4, 8, 1, 0, 0}}};
    for (const auto &c : cases) {
        QValueList<LegalMove> list = moves(c.sorted);
        AbstractEngine::depthUpdate(&list);
        Scores found;
        for (const LegalMove &m : list)
            found.push_back(m.reduction);
        EXPECT_EQ(found, c.reductions);
    }
}

TEST(MoveOrdering, Favourites) {
    const struct {
        Scores scores;
        int depth;
        bool normal, gambit;
    } cases[] = {{{1801, 0, 1000}, 30, true, false}, {{1801, 1000}, 29, false, false},
                 {{1800, 1000}, 30, false, false},   {{3000, 1000}, 50, true, false},
                 {{3001, 1000}, 50, true, true},     {{3001, 1000}, 49, true, false}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::International, board(10));
        rig.engine->moveList = moves(c.scores);
        rig.engine->depth = c.depth;
        EXPECT_EQ(rig.engine->FavouriteMove(&rig.engine->moveList), c.normal) << c.scores[0];
        AbstractEngine::isGambit = true;
        EXPECT_EQ(rig.engine->FavouriteMove(&rig.engine->moveList), c.gambit) << c.scores[0];
    }
}

} // namespace
