// BitAnalysis: the position analysis on bit sets.
#ifndef EVAL_BITANALYSIS_H
#define EVAL_BITANALYSIS_H

#include "rules/bitposition.h"

#include <algorithm>

// What the search wants from the analysis of a position (see `heuristic`, which explains the flood
// and gives the same answers): whether a side can reach its promotion row, which men stand on a
// free path there, and the mobility figure. The flood takes each side's step as a whole.
template <int N>
class BitAnalysis {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;

public:
    BitAnalysis(const BitPosition<N> &p, bool whiteToMove) : p_(p), free_(p.empty()) {
        white_.start(p.template men<true>(), p.white);
        black_.start(p.template men<false>(), p.black);
        flood(whiteToMove);
    }

    bool whiteCanPass() const {
        return (white_.reached & Squares::template promotionRow<true>) != 0;
    }
    bool blackCanPass() const {
        return (black_.reached & Squares::template promotionRow<false>) != 0;
    }
    bool canPass() const { return whiteCanPass() || blackCanPass(); }

    // White men with a free path to promotion; those on row 0 are not looked at.
    Bits whitePassageMen() const {
        constexpr Bits visited = Squares::rows(1, N - 2);
        return passageMen<true>(white_) & visited;
    }
    // Black's; the look goes one row less far up than the mirror of white's.
    Bits blackPassageMen() const {
        constexpr Bits visited = Squares::rows(1, N - 3);
        return passageMen<false>(black_) & visited;
    }

    // White's squares, held or reached, minus black's, each side counted up to four.
    int freedom() const {
        return std::min(countBits(p_.white | white_.reached), mostCounted) -
               std::min(countBits(p_.black | black_.reached), mostCounted);
    }

private:
    static constexpr int mostCounted = 4;

    struct Side {
        Bits front;            // squares reached in the last step; at first the men
        Bits reached = 0;      // squares reached in all steps
        Bits control;          // neighbourhood of pieces and reached squares
        Bits layers[N + 2];    // squares reached by step; layer 1: the men
        int last = 1;          // the highest layer that holds a square

        void start(Bits men, Bits pieces) {
            front = men;
            layers[1] = men;
            control = Squares::around(pieces);
        }
    };

    template <bool White>
    Bits advance(Side &side, const Side &other, int step) {
        const Bits uncontrolled = ~(other.control & Squares::inside);
        side.front = Squares::template forward<White>(side.front) & free_ & uncontrolled;
        if (side.front == 0)
            return 0;
        free_ &= ~side.front;
        side.reached |= side.front;
        side.control |= Squares::around(side.front);
        side.layers[step + 1] = side.front;
        side.last = step + 1;
        return side.front;
    }

    // The side to move claims contested squares of each step first.
    void flood(bool whiteToMove) {
        for (int step = 1; step <= N; ++step) {
            Bits changed;
            if (whiteToMove) {
                changed = advance<true>(white_, black_, step);
                changed |= advance<false>(black_, white_, step);
            } else {
                changed = advance<false>(black_, white_, step);
                changed |= advance<true>(white_, black_, step);
            }
            if (changed == 0)
                break;
        }
    }

    // Walks back from the promotion row, one layer of the flood after the other.
    template <bool White>
    static Bits passageMen(const Side &side) {
        Bits passage = 0;
        for (int layer = side.last; layer > 1; --layer) {
            passage = (Squares::template forward<!White>(passage) |
                       Squares::template promotionRow<White>) &
                      side.layers[layer];
        }
        return Squares::template forward<!White>(passage) & side.layers[1];
    }

    const BitPosition<N> &p_;
    Bits free_; // squares neither occupied nor reached
    Side white_;
    Side black_;
};

#endif
