// Sizes of the move tree from the start position, by depth, as they are known for these games.

#include "search/thinkstatistic.h"
#include "tests/support/drawnboard.h"
#include "rules/intengine.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

bool sameCapture(const LegalMove &a, const LegalMove &b) {
    return a.from() == b.from() && a.to() == b.to() && a.taken.size() == b.taken.size() &&
           std::is_permutation(a.taken.begin(), a.taken.end(), b.taken.begin());
}

// The known figures count captures that take the same pieces by different routes once.
void dropOtherRoutes(QValueList<LegalMove> &list) {
    if (list.count() < 2 || list.last().taken.size() < 3)
        return;
    QValueList<LegalMove> kept;
    for (const LegalMove &m : list) {
        if (std::none_of(kept.begin(), kept.end(),
                         [&m](const LegalMove &other) { return sameCapture(m, other); }))
            kept.append(m);
    }
    list = kept;
}

// Positions after `depth` plies; the last ply is counted without playing it.
long long countTree(AbstractEngine &engine, int depth) {
    engine.FillMoveList();
    dropOtherRoutes(engine.moveList);
    if (depth == 1)
        return engine.moveList.count();
    long long sum = 0;
    for (const LegalMove &m : engine.moveList) {
        board after(engine.board);
        engine.makeMove(&after, &m);
        const std::unique_ptr<AbstractEngine> child(
            engine.selfClone(&after, 1, engine.statistic, engine.size));
        sum += countTree(*child, depth - 1);
    }
    return sum;
}

struct Tree {
    Rules rules;
    int size;
    std::vector<long long> counts; // from depth 1 on
    int quick;                     // depth of the quick run
};

const Tree trees[] = {
    {Rules::International, 10, {9, 81, 658, 4265, 27117, 167140, 1049442, 6483961}, 6},
    {Rules::International, 8, {7, 49, 302, 1469, 7473, 37628, 187302, 907830, 4431766}, 6},
    {Rules::American, 8, {7, 49, 302, 1469, 7361, 36768, 179740, 845931, 3963680}, 6}};

void expectTree(const Tree &tree, int first, int last) {
    thinkStatistic statistic;
    board start(tree.size);
    XY::B_SIZE = tree.size;
    for (int depth = first; depth <= last; ++depth) {
        const long long want = tree.counts[static_cast<std::size_t>(depth - 1)];
        EXPECT_EQ(countTree(*makeEngine(tree.rules, &start, &statistic), depth), want)
            << testing::PrintToString(tree.rules) << " rules, size " << tree.size << ", depth "
            << depth;
    }
}

TEST(Perft, FirstPlies) {
    for (const Tree &tree : trees)
        expectTree(tree, 1, tree.quick);
}

TEST(Perft, DISABLED_DeepPlies) {
    for (const Tree &tree : trees)
        expectTree(tree, tree.quick + 1, static_cast<int>(tree.counts.size()));
}

} // namespace
