// AnalysisCache: what analyses of positions came to.
#ifndef BITS_ANALYSISCACHE_H
#define BITS_ANALYSISCACHE_H

#include "bits/bitposition.h"

#include <vector>

// What the evaluation takes from the analysis of a position.
struct AnalysisResult {
    int points;   // white's minus black's, for mobility and for men on free paths
    bool canPass; // some side can reach its promotion row
};

// Keeps the latest results by position and side to move: in endings every other position at the
// leaves of the tree is one that was analysed not long ago.
template <int N>
class AnalysisCache {
public:
    AnalysisCache() : entries_(size) {}

    // The position's result; calls `analyse` for it when it is not there. `hash` is from its tally.
    template <class Analyse>
    AnalysisResult find(const BitPosition<N> &p, std::uint32_t hash, bool whiteToMove,
                        Analyse analyse) {
        Entry &entry = entries_[(2 * hash + (whiteToMove ? 1 : 0)) % size];
        if (!(entry.position == p))
            entry = {p, analyse()};
        return entry.result;
    }

private:
    static constexpr std::size_t size = 1 << 14;

    struct Entry {
        BitPosition<N> position; // without a piece: free
        AnalysisResult result;
    };
    std::vector<Entry> entries_;
};

#endif
