// BitTally: what the pieces of a position add up to, each on its square.
#ifndef BITS_BITTALLY_H
#define BITS_BITTALLY_H

#include "bits/bitposition.h"

// Two sums over the pieces in one number, so that a move changes both at once: points (white's
// minus black's) and a hash, for which every kind of piece on every square has a number of chance.
// What the points borrow from the hash depends on the position alone.
class BitTally {
public:
    BitTally() = default;
    constexpr BitTally(std::uint32_t hash, int points)
        : sum_((std::uint64_t{hash} << 32) + static_cast<std::uint64_t>(std::int64_t{points})) {}

    int points() const { return static_cast<int>(static_cast<std::uint32_t>(sum_)); }
    std::uint32_t hash() const { return static_cast<std::uint32_t>(sum_ >> 32); }

    BitTally &operator+=(BitTally other) {
        sum_ += other.sum_;
        return *this;
    }
    BitTally &operator-=(BitTally other) {
        sum_ -= other.sum_;
        return *this;
    }

private:
    std::uint64_t sum_ = 0;
};

// What each piece adds.
template <int N>
class BitTallies {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;
    using Set = typename Squares::Set;

public:
    // `points(isBlack, isKing, square)`: what a piece is worth to its side.
    template <class Points>
    explicit BitTallies(Points points) {
        std::uint64_t state = 0;
        for (const bool isBlack : {false, true}) {
            for (int i = 0; i < 2 * Squares::bitCount; ++i) {
                const int worth = points(isBlack, i % 2 != 0, i / 2);
                pieces_[isBlack][i] = {nextChance(state), isBlack ? -worth : worth};
            }
        }
    }

    BitTally of(const BitPosition<N> &p) const {
        BitTally tally;
        p.forEachPiece([&](unsigned square, bool isBlack, bool isKing) {
            tally += pieces_[isBlack][2 * square + isKing];
        });
        return tally;
    }

    // The tally after a move of the side, from that before.
    template <bool White>
    BitTally after(BitTally tally, const BitPosition<N> &before, const BitPosition<N> &after,
                   const BitMove<N> &m) const {
        tally += of<White>(m.to, after.kings);
        tally -= of<White>(m.from, before.kings);
        for (Bits rest = m.taken; rest != 0;)
            tally -= of<!White>(takeLowest(rest), before.kings);
        return tally;
    }

private:
    template <bool White>
    BitTally of(int square, Set kings) const {
        return pieces_[!White][2 * static_cast<unsigned>(square) + hasBit(kings, square)];
    }

    // The next of a sequence of numbers that do not foretell each other (splitmix64).
    static std::uint32_t nextChance(std::uint64_t &state) {
        state += 0x9e3779b97f4a7c15U;
        std::uint64_t z = state;
        z = (z ^ z >> 30) * 0xbf58476d1ce4e5b9U;
        z = (z ^ z >> 27) * 0x94d049bb133111ebU;
        return static_cast<std::uint32_t>(z >> 32);
    }

    BitTally pieces_[2][2 * Squares::bitCount]; // by colour; by square, man and king
};

#endif
