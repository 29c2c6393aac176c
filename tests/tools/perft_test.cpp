// The sizes of move trees from the start position, as they are known for these games, where
// captures that take the same pieces by different routes count once.

#include "tools/perft/perft.h"

#include <gtest/gtest.h>

TEST(Perft, KnownTrees) {
    const struct {
        RuleSet rules;
        int size;
        std::vector<quint64> counts; // from depth 0 on
    } trees[] = {
        {RuleSet::International, 10, {1, 9, 81, 658, 4265, 27117, 167140, 1049442, 6483961}},
        {RuleSet::International, 8, {1, 7, 49, 302, 1469, 7473, 37628, 187302, 907830, 4431766}},
        {RuleSet::American, 8, {1, 7, 49, 302, 1469, 7361, 36768, 179740, 845931, 3963680}}};
    for (const auto &tree : trees) {
        Perft perft(tree.rules, board(tree.size));
        perft.setDistinct(true);
        for (std::size_t depth = 0; depth < tree.counts.size(); ++depth)
            EXPECT_EQ(perft.count(static_cast<int>(depth)), tree.counts[depth])
                << "size " << tree.size << ", depth " << depth;
    }
}

TEST(Perft, TheSharesOfTheFirstMovesAreAllOfTheTree) {
    Perft perft(RuleSet::International, board(10));
    quint64 sum = 0;
    for (const Perft::Share &share : perft.divide(4))
        sum += share.positions;
    EXPECT_EQ(sum, 4265U);
}
