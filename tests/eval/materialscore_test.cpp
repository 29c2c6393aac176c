#include "eval/heuristic.h"
#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

struct Piece {
    int x, y;
    unsigned char code;
};

board boardWith(int size, const std::vector<Piece> &pieces) {
    board b(size);
    b.clear();
    for (const Piece &p : pieces)
        b.squares[p.x][p.y] = p.code;
    return b;
}

constexpr unsigned char w = whiteMan, W = whiteKing, b = blackMan, B = blackKing;
constexpr RuleSet inter = RuleSet::International, american = RuleSet::American;

// Values for white to move, without an analysis.
const struct {
    const char *name;
    RuleSet rules;
    int size;
    bool gambit;
    std::vector<Piece> pieces;
    int value;
} values[] = {
    {"a man in the middle", inter, 10, false, {{4, 4, w}}, 1000 + 80},
    {"black reads the table from its side", inter, 10, false, {{9, 1, b}}, -1000 - 100 - 15},
    {"a man in a corner", inter, 10, false, {{0, 0, w}}, 1000 + 10 + 20},
    {"an enemy protects nothing", inter, 6, false, {{1, 1, w}, {2, 2, b}}, 1030 - 1060},
    {"protection both ways", american, 10, false, {{4, 4, w}, {3, 3, w}, {3, 5, w}}, 1095 + 2080},
    {"first and further kings", inter, 10, false, {{2, 2, W}, {6, 2, W}}, 2800 + 2100},
    {"few pieces left", inter, 10, true, {{2, 2, W}, {6, 2, W}}, 3200 + 2100},
    {"each side's first", inter, 10, false, {{2, 2, W}, {6, 2, B}, {4, 6, B}}, -2100},
    {"American kings, gambit or not", american, 10, true, {{2, 2, W}, {7, 3, W}}, 1910 + 1810},
    {"central in one direction only", american, 10, false, {{4, 2, W}}, 1910},
    {"on the edge", american, 10, false, {{0, 4, B}}, -(1900 - 100 + 15)},
    {"in a corner", american, 10, false, {{9, 9, W}}, 1900 - 100 + 20},
    {"centre of 6 x 6", american, 6, false, {{1, 1, W}}, 1920},
    {"centre of 8 x 8", american, 8, false, {{2, 2, W}, {6, 6, B}}, 1920 - 1910},
    {"centre of 10 x 10", american, 10, false, {{3, 3, W}, {7, 7, B}}, 1920 - 1910},
    {"centre of 12 x 12", american, 12, false, {{4, 4, B}, {8, 8, B}}, -1920 - 1810},
};

TEST(MaterialScore, Values) {
    for (const auto &c : values) {
        EngineRig rig(c.rules, boardWith(c.size, c.pieces));
        AbstractEngine::isGambit = c.gambit;
        EXPECT_EQ(rig.engine->materialScore(nullptr), c.value) << c.name;
        rig.position.whiteToMove = false;
        EXPECT_EQ(rig.engine->materialScore(nullptr), -c.value) << c.name << ", black to move";
    }
}

// A man in the middle with a free path counts its rows from the start.
TEST(MaterialScore, MenOnPassages) {
    const struct {
        const char *name;
        RuleSet rules;
        int size;
        Piece man;
        int value;
    } cases[] = {{"6 x 6", inter, 6, {2, 2, w}, 1080 + 2 * 110},
                 {"8 x 8", inter, 8, {3, 3, w}, 1080 + 3 * 83},
                 {"10 x 10", inter, 10, {4, 4, w}, 1080 + 4 * 66},
                 {"12 x 12", inter, 12, {5, 5, w}, 1080 + 5 * 55},
                 {"black, from the top", inter, 10, {5, 5, b}, -1080 - 4 * 66},
                 {"nothing for Americans", american, 10, {4, 4, w}, 1080}};
    for (const auto &c : cases) {
        EngineRig rig(c.rules, boardWith(c.size, {c.man}));
        heuristic h;
        h.analyse(&rig.position);
        h.findPassage(c.man.code & (codeWhite | codeBlack));
        EXPECT_EQ(rig.engine->materialScore(&h), c.value) << c.name;
    }
}

TEST(MaterialScore, Noise) {
    EngineRig rig(inter, boardWith(10, {{4, 4, w}}));
    rig.statistic.scoreNoise = 100;
    std::srand(7);
    const int random = std::rand() % 100;
    std::srand(7);
    EXPECT_EQ(rig.engine->materialScore(nullptr), 1080 + random);
    rig.statistic.scoreNoise = -3;
    EXPECT_EQ(rig.engine->materialScore(nullptr), 1080);
}

} // namespace
