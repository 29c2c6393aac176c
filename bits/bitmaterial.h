// BitMaterial: the material score on bit sets.
#ifndef BITS_BITMATERIAL_H
#define BITS_BITMATERIAL_H

#include "bits/bittally.h"
#include "eval/piecevalues.h"
#include "eval/squaresvalue.h"

// The static evaluation of the rule engines for one search: same points as their materialScore, but
// for the random term. What a piece is worth on its square does not depend on the other pieces; the
// sum of that is carried from position to position. The rest is computed where a position is
// valued.
template <int N, bool FlyingKings>
class BitMaterial {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;
    using Set = typename Squares::Set;

public:
    BitMaterial(const SquaresValue &table, bool gambit)
        : kings_(FlyingKings ? flyingKingValues(gambit) : shortKingValues),
          tallies_([this, &table](bool isBlack, bool isKing, int square) {
              return onSquare(table, isBlack, isKing, square);
          }) {}

    // Points for the pieces on their squares, every king as a further one.
    const BitTallies<N> &tallies() const { return tallies_; }
    // White's points minus black's for the first kings.
    int firstKings(const BitPosition<N> &p) const {
        if (isEmpty(p.kings))
            return 0;
        const int more = kings_.first - kings_.further;
        return (isEmpty(p.white & p.kings) ? 0 : more) - (isEmpty(p.black & p.kings) ? 0 : more);
    }
    // Points for what a side's pieces protect each other. Of two neighbours each protects the
    // other; pieces on the edge have the points of both ways already.
    static int protection(Set pieces) {
        const Set s0 = Squares::template step<0>(pieces);
        const Set s1 = Squares::template step<1>(pieces);
        const Set bothWays = (s0 | Squares::template step<2>(pieces)) &
                             (s1 | Squares::template step<3>(pieces)) & pieces &
                             asSet(Squares::inside);
        const int pairs = countBits(s0 & pieces) + countBits(s1 & pieces);
        return 2 * protectedSide * pairs + protectedBothWays * countBits(bothWays);
    }
    // White's points minus black's for the men on a free path to promotion; short-king rules give
    // nothing for those.
    static int passages(Set white, Set black) {
        return FlyingKings
                   ? passageStep(N) * (rowsAdvanced<true>(white) - rowsAdvanced<false>(black))
                   : 0;
    }

    // All of that for a position by itself.
    int balance(const BitPosition<N> &p, Set whitePassage, Set blackPassage) const {
        return tallies_.of(p).points() + firstKings(p) + protection(p.white) - protection(p.black) +
               passages(whitePassage, blackPassage);
    }

private:
    int onSquare(const SquaresValue &table, bool isBlack, bool isKing, int square) const {
        const XY at = Squares::squareOf(square);
        const int edge = edgeProtection(Squares::bit(square));
        if (isKing)
            return kings_.further + edge + (FlyingKings ? 0 : kingPlace(at.x, at.y));
        // For black the table is read turned by half a turn.
        return manValue + edge +
               (isBlack ? table.values[N - 1 - at.x][N - 1 - at.y] : table.values[at.x][at.y]);
    }

    static constexpr int kingPlace(int x, int y) {
        constexpr int margin = centreMargin(N);
        const auto within = [x, y](int off) {
            return off <= x && x < N - off && off <= y && y < N - off;
        };
        return (within(margin) ? kingInCentre : 0) + (within(1) ? kingOffEdge : kingOnEdge);
    }

    // What the edge protects a piece on the square: a side for each direction that leads off the
    // board, and both ways, since two directions next to each other do.
    static constexpr int edgeProtection(Bits square) {
        const int sides = countBits(square & Squares::template rim<0>) +
                          countBits(square & Squares::template rim<1>) +
                          countBits(square & Squares::template rim<2>) +
                          countBits(square & Squares::template rim<3>);
        return sides == 0 ? 0 : protectedSide * sides + protectedBothWays;
    }

    // The rows that the men have advanced together, counted digit by digit of the rows' numbers.
    template <bool White>
    static int rowsAdvanced(Set men) {
        return rowDigit<White, 1>(men) + rowDigit<White, 2>(men) + rowDigit<White, 4>(men) +
               rowDigit<White, 8>(men);
    }
    template <bool White, int Digit>
    static int rowDigit(Set men) {
        constexpr Bits rows =
            Squares::select([](int, int y) { return ((White ? y : N - 1 - y) & Digit) != 0; });
        return Digit * countBits(men & asSet(rows));
    }

    const KingValues kings_;
    const BitTallies<N> tallies_;
};

#endif
