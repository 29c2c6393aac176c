// BitAnalysis: the position analysis on bit sets.
#ifndef BITS_BITANALYSIS_H
#define BITS_BITANALYSIS_H

#include "bits/bitposition.h"

#include <algorithm>

// What the search wants from the analysis of a position (see `heuristic`, which explains the flood
// and gives the same answers): whether a side can reach its promotion row, which men stand on a
// free path there, and the mobility figure. The flood takes each side's step as a whole.
template <int N>
class BitAnalysis {
    using Squares = DarkSquares<N>;
    using Set = typename Squares::Set;

public:
    BitAnalysis(const BitPosition<N> &p, bool whiteToMove) : p_(p) {
        const Set empty = p.empty();
        white_.start(p.template men<true>(), empty & ~neighbourhood(p.black));
        black_.start(p.template men<false>(), empty & ~neighbourhood(p.white));
        flood(whiteToMove);
    }

    // Some side's mobility figure may be below the most that is counted.
    static bool fewPieces(const BitPosition<N> &p) {
        return countBits(p.white) < mostCounted || countBits(p.black) < mostCounted;
    }
    // A cheap look that tells of most positions that no side can reach its promotion row. Where
    // there are kings some way is open nearly always, and the look would be for nothing.
    static bool mayPass(const BitPosition<N> &p) {
        return !isEmpty(p.kings) || mayPass<true>(p) || mayPass<false>(p);
    }

    bool canPass() const { return canPass<true>(white_) || canPass<false>(black_); }

    // White men with a free path to promotion; those on row 0 are not looked at.
    Set whitePassageMen() const {
        constexpr auto visited = Squares::rows(1, N - 2);
        return passageMen<true>(white_) & asSet(visited);
    }
    // Black's; their visit ends one row before the mirror of white's.
    Set blackPassageMen() const {
        constexpr auto visited = Squares::rows(1, N - 3);
        return passageMen<false>(black_) & asSet(visited);
    }

    // White's squares, held or reached, minus black's, each side counted up to four.
    int freedom() const {
        return std::min(countBits(p_.white | white_.reached), mostCounted) -
               std::min(countBits(p_.black | black_.reached), mostCounted);
    }

private:
    static constexpr int mostCounted = 4;

    struct Side {
        Set next;          // squares one step in front of those reached in the last step
        Set open;          // squares it may still claim: free, and not controlled by the other side
        Set reached{};     // squares reached in all steps
        Set layers[N + 2]; // squares reached by step; layer 1: the men
        int last = 1;      // the highest layer that holds a square

        void start(Set men, Set claimable) {
            layers[1] = men;
            open = claimable;
        }
    };

    template <bool White>
    static bool canPass(const Side &side) {
        return !isEmpty(side.reached & promotionRow<White>());
    }

    template <bool White>
    static Set promotionRow() {
        return asSet(Squares::template promotionRow<White>);
    }

    // The squares that pieces on `set` control. Squares on the board's edge never are.
    static Set neighbourhood(Set set) { return Squares::around(set) & asSet(Squares::inside); }

    // Whether a path of squares leads from some man of the side to its promotion row that it may
    // claim before the flood begins. A flood only ever reaches squares by such paths, since what a
    // step claims and controls only closes squares to the other side. Walks back from the row.
    template <bool White>
    static bool mayPass(const BitPosition<N> &p) {
        const Set empty = p.empty();
        Set ways = promotionRow<White>() & empty; // the edge is never controlled
        if (isEmpty(ways))
            return false;
        const Set men = p.template men<White>();
        const Set open = empty & ~neighbourhood(p.template side<!White>());
        while (!isEmpty(ways)) {
            ways = Squares::template forward<!White>(ways);
            if (!isEmpty(ways & men))
                return true;
            ways &= open;
        }
        return false;
    }

    // One step of a side: false when it claims nothing. What it claims, and what it controls from
    // there, is closed to the other side.
    template <bool White>
    static bool advance(Side &side, Side &other, int step) {
        const Set front = side.next & side.open;
        if (isEmpty(front)) {
            side.next = Set{};
            return false;
        }
        side.next = Squares::template forward<White>(front);
        const Set around = side.next | Squares::template forward<!White>(front);
        side.open &= ~front;
        other.open &= ~(front | (around & asSet(Squares::inside)));
        side.reached |= front;
        side.layers[step + 1] = front;
        side.last = step + 1;
        return true;
    }

    // The side to move claims contested squares of each step first.
    void flood(bool whiteToMove) {
        white_.next = Squares::template forward<true>(white_.layers[1]);
        black_.next = Squares::template forward<false>(black_.layers[1]);
        bool changed = true;
        for (int step = 1; changed && step <= N; ++step) {
            if (whiteToMove) {
                changed = advance<true>(white_, black_, step);
                changed |= advance<false>(black_, white_, step);
            } else {
                changed = advance<false>(black_, white_, step);
                changed |= advance<true>(white_, black_, step);
            }
        }
    }

    // Walks back from the promotion row, one layer of the flood after the other.
    template <bool White>
    static Set passageMen(const Side &side) {
        if (!canPass<White>(side))
            return Set{};
        Set passage{};
        for (int layer = side.last; layer > 1; --layer) {
            const Set ways = Squares::template forward<!White>(passage) | promotionRow<White>();
            passage = ways & side.layers[layer];
        }
        return Squares::template forward<!White>(passage) & side.layers[1];
    }

    const BitPosition<N> &p_;
    Side white_;
    Side black_;
};

#endif
