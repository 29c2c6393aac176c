#include "eval/heuristic.h"
#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace {

struct Piece {
    int x;
    int y;
    unsigned char code;
};

board placed(int size, const std::vector<Piece> &pieces) {
    board b(size);
    b.clear();
    for (const Piece &p : pieces)
        b.squares[p.x][p.y] = p.code;
    return b;
}

constexpr unsigned char w = whiteMan, W = whiteKing, b = blackMan, B = blackKing;
constexpr Rules International = Rules::International;
constexpr Rules American = Rules::American;

// Values for white to move, without an analysis.
const struct {
    const char *name;
    Rules rules;
    int size;
    std::vector<Piece> pieces;
    bool gambit;
    int value;
} values[] = {
    {"a man in the middle", International, 10, {{4, 4, w}}, false, 1000 + 80},
    {"a man on the edge column", International, 10, {{0, 4, w}}, false, 1000 + 0 + 15},
    {"a man in the corner", International, 10, {{0, 0, w}}, false, 1000 + 10 + 20},
    {"black reads the table from its side",
     International,
     10,
     {{9, 1, b}},
     false,
     -1000 - 100 - 15},
    {"two men on one diagonal", Rules::Polish, 10, {{3, 3, w}, {4, 4, w}}, false, 1035 + 1085},
    {"protected on both diagonals",
     American,
     10,
     {{4, 4, w}, {3, 3, w}, {3, 5, w}},
     false,
     (1080 + 15) + (1030 + 5) + (1000 + 40 + 5)},
    {"an enemy protects nothing", International, 6, {{1, 1, w}, {2, 2, b}}, false, 1030 - 1060},
    {"first and further kings", International, 10, {{2, 2, W}, {6, 2, W}}, false, 2800 + 2100},
    {"the same with few pieces", Rules::Polish, 10, {{2, 2, W}, {6, 2, W}}, true, 3200 + 2100},
    {"three kings", International, 10, {{2, 2, W}, {6, 2, W}, {4, 6, W}}, true, 3200 + 2 * 2100},
    {"each side has a first king",
     International,
     10,
     {{2, 2, W}, {6, 2, B}, {4, 6, B}},
     false,
     -2100},
    {"a king has no square value", International, 10, {{4, 4, W}}, false, 2800},
    {"a king on the edge", International, 10, {{0, 4, W}}, false, 2800 + 15},
    {"American kings, gambit or not", American, 10, {{2, 2, W}, {7, 3, W}}, true, 1910 + 1810},
    {"an American king in the centre", American, 10, {{3, 3, W}}, false, 1920},
    {"at the centre's other end", American, 10, {{6, 6, W}}, false, 1920},
    {"just outside the centre", American, 10, {{7, 5, W}}, false, 1910},
    {"centre of 8 x 8", American, 8, {{2, 2, B}, {6, 4, B}}, false, -1920 - 1810},
    {"centre of 12 x 12", American, 12, {{4, 4, B}, {3, 7, B}}, false, -1910 - 1820},
    {"centre of 6 x 6", American, 6, {{1, 1, W}}, false, 1920},
    {"an American king on the edge", American, 10, {{0, 4, W}}, false, 1900 - 100 + 15},
    {"in the corner", American, 10, {{9, 9, W}}, false, 1900 - 100 + 20},
};

TEST(MaterialScore, Table) {
    for (const auto &c : values) {
        EngineRig rig(c.rules, placed(c.size, c.pieces));
        AbstractEngine::isGambit = c.gambit;
        EXPECT_EQ(rig.engine->materialScore(nullptr), c.value) << c.name;
        rig.position.whiteToMove = false;
        EXPECT_EQ(rig.engine->materialScore(nullptr), -c.value) << c.name << ", black to move";
        EXPECT_EQ(rig.statistic.scoresCalculated, 2);
    }
}

// The square values 80, 30, 30 and 0 of (2,2) are those of the sizes.
TEST(MaterialScore, MenOnPassagesGainByTheRow) {
    constexpr int steps[][3] = {{6, 80, 110}, {8, 30, 83}, {10, 30, 66}, {12, 0, 55}};
    for (const auto &[size, square, step] : steps) {
        for (const bool white : {true, false}) {
            const int at = white ? 2 : size - 3;
            for (const Rules rules : allRules) {
                EngineRig rig(rules, placed(size, {{at, at, white ? w : b}}));
                heuristic h;
                int freedom = 0;
                bool canPass = false;
                ASSERT_EQ(rig.engine->doHeuristic(&h, freedom, canPass), &h);
                const int bonus = rules == American ? 0 : 2 * step;
                const int value = 1000 + square + bonus;
                EXPECT_EQ(rig.engine->materialScore(&h), white ? value : -value)
                    << size << ", " << testing::PrintToString(rules);
                EXPECT_EQ(rig.engine->materialScore(nullptr),
                          white ? 1000 + square : -1000 - square);
            }
        }
    }
}

TEST(MaterialScore, Noise) {
    EngineRig rig(International, placed(10, {{4, 4, w}}));
    for (const int none : {1, 0, -3}) {
        rig.statistic.scoreNoise = none;
        EXPECT_EQ(rig.engine->materialScore(nullptr), 1080);
    }
    rig.statistic.scoreNoise = 100;
    std::srand(7);
    const int first = std::rand() % 100;
    const int second = std::rand() % 100;
    std::srand(7);
    EXPECT_EQ(rig.engine->materialScore(nullptr), 1080 + first);
    rig.position.whiteToMove = false;
    EXPECT_EQ(rig.engine->materialScore(nullptr), -1080 + second);
}

TEST(MaterialScore, SafeDiagCountsOwnPiecesAndTheEdge) {
    EngineRig rig(International,
                  placed(10, {{4, 4, w}, {5, 5, W}, {3, 3, w}, {3, 5, b}, {0, 2, b}, {1, 3, b}}));
    const struct {
        XY piece;
        int first;
        int second;
    } cases[] = {{{4, 4}, 2, 0}, {{5, 5}, 1, 0}, {{3, 5}, 0, 0}, {{0, 2}, 2, 1}, {{1, 3}, 1, 0}};
    for (const auto &c : cases) {
        EXPECT_EQ(rig.engine->SafeDiag(c.piece, 0), c.first);
        EXPECT_EQ(rig.engine->SafeDiag(c.piece, 1), c.second);
    }
}

} // namespace
