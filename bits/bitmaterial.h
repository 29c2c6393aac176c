// BitMaterial: the material score on bit sets.
#ifndef BITS_BITMATERIAL_H
#define BITS_BITMATERIAL_H

#include "bits/bitposition.h"
#include "eval/piecevalues.h"
#include "eval/squaresvalue.h"

#include <algorithm>
#include <numeric>

// The values of a side's men by square. The table is taken apart into sets of squares, one for each
// binary digit of a square's value (above the least, in units of the common divisor); the sum over
// the men is then a handful of counts.
template <int N>
class BitSquareValues {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;

public:
    // For black the table is read turned by half a turn.
    BitSquareValues(const SquaresValue &table, bool white) {
        int most = table.values[0][0];
        least_ = most;
        forEach(table, white, [&](int, int value) {
            least_ = std::min(least_, value);
            most = std::max(most, value);
        });
        unit_ = 0;
        forEach(table, white, [&](int, int value) { unit_ = std::gcd(unit_, value - least_); });
        unit_ = std::max(unit_, 1);
        forEach(table, white, [&](int i, int value) { addDigits(i, (value - least_) / unit_); });
    }

    // Sum over `men`, of which there are `count`.
    int sum(Bits men, int count) const {
        int units = 0;
        for (int digit = 0; digit < digits_; ++digit)
            units += countBits(men & planes_[digit]) << digit;
        return least_ * count + unit_ * units;
    }

private:
    template <class Use>
    static void forEach(const SquaresValue &table, bool white, Use use) {
        for (int x = 0; x < N; ++x) {
            for (int y = x % 2; y < N; y += 2) {
                use(Squares::index(x, y),
                    white ? table.values[x][y] : table.values[N - 1 - x][N - 1 - y]);
            }
        }
    }
    void addDigits(int i, int units) {
        for (int digit = 0; units >> digit != 0; ++digit) {
            if ((units >> digit & 1) != 0)
                planes_[digit] |= Squares::bit(i);
            digits_ = std::max(digits_, digit + 1);
        }
    }

    static constexpr int mostDigits = 31;

    int least_ = 0;
    int unit_ = 1;
    int digits_ = 0;
    Bits planes_[mostDigits] = {};
};

// The static evaluation of the rule engines for one search: same points as their materialScore, but
// for the random term.
template <int N, bool FlyingKings>
class BitMaterial {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;

public:
    BitMaterial(const SquaresValue &table, bool gambit)
        : whiteValues_(table, true), blackValues_(table, false),
          kings_(FlyingKings ? flyingKingValues(gambit) : shortKingValues) {}

    // White's points minus black's. `whitePassage` and `blackPassage` are the men on a free path to
    // promotion; short-king rules give nothing for those.
    int balance(const BitPosition<N> &p, Bits whitePassage, Bits blackPassage) const {
        int points =
            sidePoints(p.white, p.kings, whiteValues_) - sidePoints(p.black, p.kings, blackValues_);
        if (FlyingKings && (whitePassage | blackPassage) != 0)
            points += passageStep(N) *
                      (rowsAdvanced<true>(whitePassage) - rowsAdvanced<false>(blackPassage));
        return points;
    }

private:
    int sidePoints(Bits pieces, Bits allKings, const BitSquareValues<N> &values) const {
        const Bits kings = pieces & allKings;
        const Bits men = pieces & ~allKings;
        const int manCount = countBits(men);
        int points = manValue * manCount + values.sum(men, manCount) + protection(pieces);
        if (kings != 0)
            points += kings_.of(countBits(kings)) + kingPlaces(kings);
        return points;
    }

    static int kingPlaces(Bits kings) {
        if constexpr (FlyingKings)
            return 0;
        constexpr int margin = centreMargin(N);
        constexpr Bits centre = Squares::select([](int x, int y) {
            return margin <= x && x < N - margin && margin <= y && y < N - margin;
        });
        const int off = countBits(kings & Squares::inside);
        return kingInCentre * countBits(kings & centre) + kingOffEdge * off +
               kingOnEdge * (countBits(kings) - off);
    }

    // Neighbours of the same colour, and the board's edge, protect.
    static int protection(Bits pieces) {
        const Bits s0 = guarded<0>(pieces);
        const Bits s1 = guarded<1>(pieces);
        const Bits s2 = guarded<2>(pieces);
        const Bits s3 = guarded<3>(pieces);
        const int sides = countBits(s0) + countBits(s1) + countBits(s2) + countBits(s3);
        return protectedSide * sides + protectedBothWays * countBits((s0 | s2) & (s1 | s3));
    }

    // The pieces whose neighbour in direction d protects them.
    template <int d>
    static Bits guarded(Bits pieces) {
        return pieces &
               (Squares::template step<oppositeDirection(d)>(pieces) | Squares::template rim<d>);
    }

    template <bool White>
    static int rowsAdvanced(Bits men) {
        int rows = 0;
        while (men != 0) {
            const int y = Squares::squareOf(takeLowest(men)).y;
            rows += White ? y : N - 1 - y;
        }
        return rows;
    }

    BitSquareValues<N> whiteValues_;
    BitSquareValues<N> blackValues_;
    KingValues kings_;
};

#endif
