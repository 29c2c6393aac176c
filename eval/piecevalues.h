// The material constants of the evaluation, in points.
#ifndef EVAL_PIECEVALUES_H
#define EVAL_PIECEVALUES_H

inline constexpr int manValue = 1000;

// A side's first king is worth more than its further ones: it alone rules the long diagonals.
struct KingValues {
    int first;
    int further;

    constexpr int of(int kings) const { return kings == 0 ? 0 : first + (kings - 1) * further; }
};

// Flying kings; a single one decides most endings with few pieces left.
constexpr KingValues flyingKingValues(bool gambit) {
    return {gambit ? 3200 : 2800, 2100};
}

inline constexpr KingValues shortKingValues{1900, 1800};

// Where a short king stands.
inline constexpr int kingInCentre = 10;
inline constexpr int kingOffEdge = 10;
inline constexpr int kingOnEdge = -100;

// The central area of an n x n board: columns and rows margin <= x, y < n - margin.
constexpr int centreMargin(int n) {
    return n / 2 - 2;
}

// A piece's protection: for each protected side, and once more when both diagonals are protected.
inline constexpr int protectedSide = 5;
inline constexpr int protectedBothWays = 5;

// What a man on a free path to promotion gains with each row it has advanced.
constexpr int passageStep(int n) {
    return 2 * (1000 / n) / 3;
}

#endif
