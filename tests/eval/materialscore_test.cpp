#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

struct Piece {
    int x, y;
    unsigned char code;
};

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
    {"an enemy protects nothing", inter, 6, false, {{1, 1, w}, {2, 2, b}}, 1030 - 1060},
    {"protection both ways", american, 10, false, {{4, 4, w}, {3, 3, w}, {3, 5, w}}, 1095 + 2080},
    {"first and further kings", inter, 10, false, {{2, 2, W}, {6, 2, W}}, 2800 + 2100},
    {"each side's first", inter, 10, false, {{2, 2, W}, {6, 2, B}, {4, 6, B}}, -2100},
    {"American kings, gambit or not", american, 10, true, {{2, 2, W}, {7, 3, W}}, 1910 + 1810},
    {"an American king in the centre", american, 10, false, {{3, 3, W}}, 1920},
    {"centre of 12 x 12", american, 12, false, {{4, 4, B}, {3, 7, B}}, -1910 - 1820},
    {"an American king on the edge", american, 10, false, {{0, 4, W}}, 1900 - 100 + 15},
};

TEST(MaterialScore, Table) {
    for (const auto &c : values) {
        board position(c.size);
        position.clear();
        for (const Piece &p : c.pieces)
            position.squares[p.x][p.y] = p.code;
        EngineRig rig(c.rules, position);
        AbstractEngine::isGambit = c.gambit;
        EXPECT_EQ(rig.engine->materialScore(nullptr), c.value) << c.name;
        rig.position.whiteToMove = false;
        EXPECT_EQ(rig.engine->materialScore(nullptr), -c.value) << c.name << ", black to move";
        EXPECT_EQ(rig.statistic.scoresCalculated, 2);
    }
}

TEST(MaterialScore, Noise) {
    EngineRig rig(inter, "w ...... ...... ...... ..w... ...... ......");
    for (const int noise : {1, 0, -3, 100}) {
        rig.statistic.scoreNoise = noise;
        std::srand(7);
        const int random = noise > 1 ? std::rand() % noise : 0;
        std::srand(7);
        EXPECT_EQ(rig.engine->materialScore(nullptr), 1080 + random) << noise;
    }
}

} // namespace
