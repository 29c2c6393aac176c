// Score: a search value with a note of where it comes from.
#ifndef SEARCH_SCORE_H
#define SEARCH_SCORE_H

// A value in points (a man is worth 1000) from the point of view of the side to move at the node
// that holds it, negated when it is handed up one level (negamax). Three kinds: ordinary values,
// none (nothing known), and values around game over (somewhere in the line a side cannot move).
struct Score {
    // None, as setNone() gives it; its negative is none as well.
    static constexpr int none = -1000777;
    // The loss of a side that cannot move at the root; one point less bad for every level deeper.
    static constexpr int lost = -1000000;
    // Values beyond this, either way, are decided games.
    static constexpr int decided = 999900;

    int value;
    // Where `value` was established: a depth in plies, the ply counter of a position valued
    // statically, or the horizon of one taken from the hash table. -1: nothing searched yet. Takes
    // no part in comparisons.
    int depth;

    constexpr Score(int points, int establishedAt) : value(points), depth(establishedAt) {}

    // What a node answers once the search is broken off.
    static constexpr Score brokenOff() { return {none, -1}; }

    constexpr void setNone(int establishedAt) { set(none, establishedAt); }
    constexpr void set(int points, int establishedAt) {
        value = points;
        depth = establishedAt;
    }
    constexpr void neg() { value = -value; }

    static constexpr bool isNone(int points) { return points == none || points == -none; }
    constexpr bool isNone() const { return isNone(value); }
    // A bound that was none before a change of sides is none again.
    constexpr void reviveNone() {
        if (isNone())
            value = none;
    }
    // Neither none nor decided.
    static constexpr bool isOrdinary(int points) { return points <= decided && points >= -decided; }
    static constexpr bool aroundGameOver(int points) {
        return !isOrdinary(points) && !isNone(points);
    }
    constexpr bool aroundGameOver() const { return aroundGameOver(value); }

    constexpr Score &operator+=(int points) {
        value += points;
        return *this;
    }
    constexpr bool operator>(const Score &other) const { return value > other.value; }
    constexpr bool operator<=(const Score &other) const { return value <= other.value; }

    // `points` in thousands, rounded half away from zero.
    static constexpr int hiPart(int points) {
        return points < 0 ? -((-points + 500) / 1000) : (points + 500) / 1000;
    }
};

#endif
