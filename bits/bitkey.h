// BitKey: the hash key of a board, from its bit position.
#ifndef BITS_BITKEY_H
#define BITS_BITKEY_H

#include "bits/bitposition.h"

// The key as board::HKey() computes it over all 144 squares of the largest board. There each square
// shifts the key by one bit, the bit that leaves the lower 31 coming back at the lower end: an
// empty square just rotates those 31 bits (the top bit only mirrors the lowest). So only the pieces
// need be visited, and instead of the key their codes can be rotated, the other way and beforehand.
// A code's bits change the key's, but for a man's lowest bit: it meets the one that came back as a
// carry, and is added.
template <int N>
class BitKey {
    using Squares = DarkSquares<N>;

public:
    static unsigned int of(const BitPosition<N> &p, bool whiteToMove) {
        constexpr int last = Squares::index(N - 1, N - 1);
        if (N < maxBoardSize || !hasBit(p.occupied(), last))
            return mirrored(ringOf(p, whiteToMove));
        BitPosition<N> others = p;
        others.white &= ~Squares::single(last);
        others.black &= ~Squares::single(last);
        return withLastSquare(ringOf(others, whiteToMove),
                              p.codeOf(hasBit(p.black, last), hasBit(p.kings, last)));
    }

private:
    static constexpr std::uint32_t mask31 = 0x7fffffff;

    // What a piece does to the key: the bits that it changes and the one that it adds, rotated as
    // the key is not.
    struct Step {
        std::uint32_t changed;
        std::uint32_t added;
    };
    // By square, for white and for black.
    using Steps = std::array<Step, 2 * Squares::bitCount>;

    static constexpr std::uint32_t rotate31(std::uint32_t bits, int by) {
        const std::uint64_t shifted = std::uint64_t{bits} << by % 31;
        return static_cast<std::uint32_t>((shifted & mask31) | shifted >> 31);
    }

    static constexpr Steps stepsOf(bool isKing) {
        Steps steps{};
        for (unsigned i = 0; i < steps.size(); ++i) {
            const std::uint32_t code = BitPosition<N>::codeOf(i % 2 != 0, isKing);
            const int back = 31 - (Squares::sequence[i / 2] + 1) % 31;
            steps[i] = {rotate31(code & ~1U, back), rotate31(code & 1, back)};
        }
        return steps;
    }

    // The key's lower 31 bits after all pieces, not rotated.
    static std::uint32_t ringOf(const BitPosition<N> &p, bool whiteToMove) {
        static constexpr Steps men = stepsOf(false);
        static constexpr Steps kings = stepsOf(true);
        std::uint32_t ring = whiteToMove ? 1 : 0;
        const auto addMan = [&ring](const Step &step) {
            ring = addInRing(ring ^ step.changed, step.added);
        };
        if (isEmpty(p.kings)) {
            p.forEachPiece([&](unsigned i, bool isBlack, bool) { addMan(men[2 * i + isBlack]); });
        } else {
            p.forEachPiece([&](unsigned i, bool isBlack, bool isKing) {
                if (isKing)
                    ring ^= kings[2 * i + isBlack].changed;
                else
                    addMan(men[2 * i + isBlack]);
            });
        }
        return ring;
    }

    // The sum of 31 bits and one of them. A carry comes round from the highest bit to the lowest,
    // as far as the bit that was added: beyond that it is lost, where the key had its highest.
    static std::uint32_t addInRing(std::uint32_t ring, std::uint32_t bit) {
        const std::uint32_t carry = ring & bit;
        const std::uint32_t sum = ring + bit;
        return ((sum & mask31) + (sum >> 31)) & ~carry;
    }

    // The key behind all squares, the last of them empty.
    static std::uint32_t mirrored(std::uint32_t ring) {
        const std::uint32_t low = rotate31(ring, maxBoardSize * maxBoardSize);
        return low | low << 31;
    }
    // The step over an occupied last square, in full: nothing mirrors the top bit after it.
    static std::uint32_t withLastSquare(std::uint32_t ring, std::uint32_t code) {
        const std::uint32_t low = rotate31(ring, maxBoardSize * maxBoardSize);
        const std::uint32_t carry = low & 1;
        return (((low & ~1U) ^ code) | carry << 31) + carry;
    }
};

#endif
