// BitTable: the transposition table as the bit-set nodes use it.
#ifndef SEARCH_BITTABLE_H
#define SEARCH_BITTABLE_H

#include "rules/bitposition.h"
#include "search/abstractengine.h"
#include "search/hashtable.h"

#include <vector>

// A view of the search's hash table. Almost all positions asked for are not in the table; a filter
// of the stored ones (one bit for each value of a hash over the pieces, side to move left out as
// the table's own comparison does) answers for most of these at once.
template <int N>
class BitTable {
public:
    explicit BitTable(hashTable &table) : table_(table), stored_(filterSize), scratch_(N) {}

    // The stored record of the position, null when it is not stored.
    const board *find(const BitPosition<N> &p, bool whiteToMove) {
        if (!maybeStored(p))
            return nullptr;
        unsigned int slot = 0;
        write(p, whiteToMove);
        if (table_.find(&scratch_, slot) != 1)
            return nullptr;
        return table_.getBoard(static_cast<int>(slot));
    }

    // Stores the position with its record, where there is room.
    void insert(const BitPosition<N> &p, bool whiteToMove, int ply, int value, int alpha0,
                int beta) {
        if (table_.count == table_.size)
            return;
        write(p, whiteToMove);
        scratch_.plyCount = ply;
        scratch_.hashScore = value;
        scratch_.hashHorizon = AbstractEngine::absHorizon;
        scratch_.hashAlpha = alpha0;
        scratch_.hashBeta = beta;
        if (table_.insert(&scratch_) == 1)
            note(p);
    }

    void note(const BitPosition<N> &p) { stored_[hash(p)] = true; }

private:
    static constexpr std::size_t filterSize = std::size_t{1} << 18;

    bool maybeStored(const BitPosition<N> &p) const { return stored_[hash(p)]; }

    static std::uint64_t fold(std::uint64_t set) { return set; }
    static std::uint64_t fold(DoubleWord set) {
        return static_cast<std::uint64_t>(set) ^
               std::rotl(static_cast<std::uint64_t>(set >> 64) * 0x9e3779b97f4a7c15U, 32);
    }
    static std::size_t hash(const BitPosition<N> &p) {
        const std::uint64_t mixed = fold(p.white) * 0xbf58476d1ce4e5b9U ^
                                    fold(p.black) * 0x94d049bb133111ebU ^
                                    fold(p.kings) * 0xd6e8feb86659fd93U;
        return (mixed * 0x9e3779b97f4a7c15U) >> 46;
    }

    void write(const BitPosition<N> &p, bool whiteToMove) {
        p.writeTo(scratch_);
        scratch_.whiteToMove = whiteToMove;
    }

    hashTable &table_;
    std::vector<bool> stored_;
    board scratch_;
};

#endif
