// BitTable: the transposition table as the bit-set nodes use it.
#ifndef BITS_BITTABLE_H
#define BITS_BITTABLE_H

#include "bits/bitkey.h"
#include "search/abstractengine.h"
#include "search/hashtable.h"

#include <vector>

// A view of the search's hash table, empty at first as the table is. Which positions are stored,
// and which are found, is the table's business: its key and its probe limit decide it. The key is
// costly to compute, but seldom needed. An index of the stored positions by a hash of their bit
// sets (open addressing with linear probing) tells whether a position is stored with the same side
// to move, in which case the table would find it, and whether the same pieces are stored with the
// other side to move. Only then, since the table does not compare the side but its key depends on
// it, must the table's own path be followed.
template <int N>
class BitTable {
public:
    explicit BitTable(hashTable &table)
        : table_(table), index_(indexSizeFor(table.size)),
          stored_(std::bit_ceil(index_.size() / 8)), storedMask_(stored_.size() - 1),
          pieces_(static_cast<std::size_t>(table.size)), scratch_(N) {}

    // The stored record of the position, null when the table would not find it. `hash` is the
    // position's, from its tally, here and below.
    const board *find(const BitPosition<N> &p, std::uint32_t hash, bool whiteToMove) const {
        return mayBeStored(hash) ? findStored(p, hash, whiteToMove) : nullptr;
    }

    // Stores the position with its record, unless it is stored already or has no room. A record
    // that is there was made in this iteration, at the same horizon, and stays.
    void insert(const BitPosition<N> &p, std::uint32_t hash, bool whiteToMove, int ply, int value,
                int alpha0, int beta) {
        if (table_.count < table_.size)
            insertWithRoom(p, hash, whiteToMove, ply, value, alpha0, beta);
    }

    // Takes note that a position was stored by other means than insert().
    void note(const board &b, const BitPosition<N> &p, std::uint32_t hash) {
        unsigned int slot = 0;
        if (table_.find(&b, slot) == 1)
            note(p, hash, b.whiteToMove, slot);
    }

private:
    // What the index knows of a position.
    struct Entry {
        int slot = -1;          // where it is stored, -1 when it is not
        bool otherSide = false; // its pieces are stored with the other side to move
    };

    [[gnu::noinline]] const board *findStored(const BitPosition<N> &p, std::uint32_t hash,
                                              bool whiteToMove) const {
        const Entry entry = lookUp(p, hash, whiteToMove);
        if (!entry.otherSide)
            return entry.slot < 0 ? nullptr : &table_.Tboards[entry.slot];
        unsigned int slot = 0;
        return follow(p, whiteToMove, false, slot) && !table_.Tempty[slot] ? &table_.Tboards[slot]
                                                                           : nullptr;
    }

    [[gnu::noinline]] void insertWithRoom(const BitPosition<N> &p, std::uint32_t hash,
                                          bool whiteToMove, int ply, int value, int alpha0,
                                          int beta) {
        const Entry entry = lookUp(p, hash, whiteToMove);
        if (entry.slot >= 0 && !entry.otherSide)
            return;
        unsigned int slot = 0;
        if (!follow(p, whiteToMove, !entry.otherSide, slot) || !table_.Tempty[slot])
            return;
        p.writeTo(scratch_);
        scratch_.whiteToMove = whiteToMove;
        scratch_.plyCount = ply;
        scratch_.hashScore = value;
        scratch_.hashHorizon = AbstractEngine::absHorizon;
        scratch_.hashAlpha = alpha0;
        scratch_.hashBeta = beta;
        table_.place(slot, &scratch_);
        note(p, hash, whiteToMove, slot);
    }

    static std::size_t indexSizeFor(int entries) {
        return std::bit_ceil(static_cast<std::size_t>(entries) * 2);
    }

    // Index values: 0 where free, else twice the slot's number counted from 1, plus 1 for white.
    static int indexValue(unsigned int slot, bool whiteToMove) {
        return static_cast<int>(2 * (slot + 1)) + (whiteToMove ? 1 : 0);
    }

    void note(const BitPosition<N> &p, std::uint32_t hash, bool whiteToMove, unsigned int slot) {
        pieces_[slot] = p;
        stored_[filterWord(hash)] |= filterBit(hash);
        std::size_t i = home(hash);
        while (index_[i] != 0)
            i = next(i);
        index_[i] = indexValue(slot, whiteToMove);
    }

    Entry lookUp(const BitPosition<N> &p, std::uint32_t hash, bool whiteToMove) const {
        Entry entry;
        for (std::size_t i = home(hash); index_[i] != 0; i = next(i)) {
            const int slot = index_[i] / 2 - 1;
            if (!(pieces_[static_cast<unsigned>(slot)] == p))
                continue;
            if ((index_[i] % 2 != 0) == whiteToMove)
                entry.slot = slot;
            else
                entry.otherSide = true;
        }
        return entry;
    }

    // Most positions asked for are not stored. A set of bits, eight for every place of the index,
    // tells so of most of them.
    bool mayBeStored(std::uint32_t hash) const {
        return (stored_[filterWord(hash)] & filterBit(hash)) != 0;
    }
    std::size_t filterWord(std::uint32_t hash) const { return hash >> 6 & storedMask_; }
    static std::uint64_t filterBit(std::uint32_t hash) { return std::uint64_t{1} << (hash & 63); }

    std::size_t home(std::uint32_t hash) const { return hash & (index_.size() - 1); }
    std::size_t next(std::size_t i) const { return (i + 1) & (index_.size() - 1); }

    // Follows the table's probe path to the first slot that is free or, unless the position `isNew`
    // to the table, holds its pieces. False when there is none within the limit.
    bool follow(const BitPosition<N> &p, bool whiteToMove, bool isNew, unsigned int &slot) const {
        const unsigned int first =
            BitKey<N>::of(p, whiteToMove) % static_cast<unsigned int>(table_.size);
        return table_.probe(
            first, [&](unsigned int at) { return !isNew && pieces_[at] == p; }, slot);
    }

    hashTable &table_;
    std::vector<int> index_;             // see indexValue()
    std::vector<std::uint64_t> stored_;  // a filter, see mayBeStored()
    const std::size_t storedMask_;       // one less than its size, a power of two
    std::vector<BitPosition<N>> pieces_; // by slot
    board scratch_;
};

#endif
