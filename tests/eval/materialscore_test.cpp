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
        EXPECT_EQ(rig.statistic.scoresCalculated, 2);
    }
}

// A man in the middle with a free path, and black's mirror image.
TEST(MaterialScore, MenOnPassages) {
    constexpr struct {
        int size, place, bonus;
    } cases[] = {{6, 2, 2 * 110}, {8, 3, 3 * 83}, {10, 4, 4 * 66}, {12, 5, 5 * 55}};
    for (const auto &c : cases) {
        const int mirrored = c.size - 1 - c.place;
        for (const bool white : {true, false}) {
            const Piece man = white ? Piece{c.place, c.place, w} : Piece{mirrored, mirrored, b};
            for (const RuleSet rules : {inter, american}) {
                EngineRig rig(rules, boardWith(c.size, {man}));
                rig.position.whiteToMove = white;
                heuristic h;
                h.analyse(&rig.position);
                h.findPassage(white ? codeWhite : codeBlack);
                EXPECT_EQ(rig.engine->materialScore(nullptr), 1080) << c.size;
                EXPECT_EQ(rig.engine->materialScore(&h), 1080 + (rules == inter ? c.bonus : 0))
                    << c.size;
            }
        }
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
