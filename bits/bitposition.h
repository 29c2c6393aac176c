// BitPosition: a position as bit sets of its pieces.
#ifndef BITS_BITPOSITION_H
#define BITS_BITPOSITION_H

#include "bits/darksquares.h"
#include "rules/board.h"

// A move between bit positions. It fits a quarter of a cache line (12 x 12: half of one).
template <int N>
struct BitMove {
    typename DarkSquares<N>::Bits taken;
    int score; // as LegalMove's
    std::uint8_t from;
    std::uint8_t to;
};

// The pieces of a position; the side to move is known where the position is used.
template <int N>
struct BitPosition {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;

    Bits white = 0;
    Bits black = 0;
    Bits kings = 0; // of both colours

    BitPosition() = default;
    // The pieces of `b`, a board for which representable() holds; marks are left out.
    explicit BitPosition(const board &b) {
        for (int x = 0; x < N; ++x) {
            for (int y = x % 2; y < N; y += 2) {
                const unsigned char code = b.squares[x][y];
                const Bits square = Squares::square(x, y);
                white |= (code & codeWhite) != 0 ? square : 0;
                black |= (code & codeBlack) != 0 ? square : 0;
                kings |= (code & codeKing) != 0 ? square : 0;
            }
        }
    }

    // Whether bit sets can stand for the board: men and kings on dark squares, none of them taken.
    static bool representable(const board &b) {
        if (b.size != N)
            return false;
        for (int x = 0; x < maxBoardSize; ++x) {
            for (int y = 0; y < maxBoardSize; ++y) {
                const int code = b.squares[x][y] & ~codeCanMove;
                const bool piece =
                    code == whiteMan || code == whiteKing || code == blackMan || code == blackKing;
                const bool playable = x < N && y < N && (x + y) % 2 == 0;
                if (b.squares[x][y] != 0 && !(piece && playable))
                    return false;
            }
        }
        return true;
    }

    // Writes the pieces into the squares of a board of this size.
    void writeTo(board &b) const {
        b.clear();
        unsigned char *const squares = &b.squares[0][0];
        const BitPosition p = *this; // that writing bytes might not change it
        for (Bits rest = p.occupied(); rest != 0;) {
            const int i = takeLowest(rest);
            squares[Squares::sequence[static_cast<unsigned>(i)]] =
                static_cast<unsigned char>(codeOf(hasBit(p.black, i), hasBit(p.kings, i)));
        }
    }

    Bits occupied() const { return white | black; }
    Bits empty() const { return Squares::all & ~occupied(); }
    template <bool White>
    Bits side() const {
        return White ? white : black;
    }
    template <bool White>
    Bits men() const {
        return side<White>() & ~kings;
    }

    bool operator==(const BitPosition &) const = default;

    // The position after a move of the side; crowned where the piece's way ends.
    template <bool White>
    BitPosition after(const BitMove<N> &m) const {
        const Bits from = Squares::bit(m.from);
        const Bits to = Squares::bit(m.to);
        const Bits crowned = (kings & from) != 0 ? to : to & Squares::template promotionRow<White>;
        BitPosition next;
        next.white = White ? (white & ~from) | to : white & ~m.taken;
        next.black = White ? black & ~m.taken : (black & ~from) | to;
        next.kings = (kings & ~from & ~m.taken) | crowned;
        return next;
    }

    // A well spread number for tables of our own.
    std::size_t hash() const {
        std::uint64_t mixed = word(white, 0) * 0xbf58476d1ce4e5b9U ^
                              word(black, 0) * 0x94d049bb133111ebU ^
                              word(kings, 0) * 0xd6e8feb86659fd93U;
        if constexpr (wordsOf(Bits()) == 2) {
            // The few squares of the second words side by side.
            const std::uint64_t rest = word(white, 1) | word(black, 1) << 20 | word(kings, 1) << 40;
            mixed ^= rest * 0xa0761d6478bd642fU;
        }
        return mixed * 0x9e3779b97f4a7c15U >> 32;
    }

    // The position's key, as board::HKey() computes it over all 144 squares of the largest board.
    // There each square shifts the key by one bit, the bit that leaves the lower 31 coming back at
    // the lower end: an empty square just rotates those 31 bits (the top bit only mirrors the
    // lowest). So only the pieces need be visited, and instead of the key their codes can be
    // rotated, the other way and beforehand. A code's bits change the key's, but for a man's lowest
    // bit: it meets the one that came back as a carry, and is added.
    unsigned int key(bool whiteToMove) const {
        return kings == 0 ? keyOf<false>(whiteToMove) : keyOf<true>(whiteToMove);
    }

private:
    template <bool HasKings>
    unsigned int keyOf(bool whiteToMove) const {
        constexpr int last = Squares::index(N - 1, N - 1);
        constexpr bool isLastOfAll = N == maxBoardSize;
        std::uint32_t ring = whiteToMove ? 1 : 0;
        for (int w = 0; w < wordsOf(white); ++w) {
            const std::uint64_t blackWord = word(black, w);
            const std::uint64_t kingsWord = word(kings, w);
            std::uint64_t rest = word(white, w) | blackWord;
            if (isLastOfAll && w == last / 64)
                rest &= ~(std::uint64_t{1} << last % 64);
            while (rest != 0) {
                const int i = takeLowest(rest);
                const bool king = HasKings && hasBit(kingsWord, i);
                const unsigned piece = 2 * static_cast<unsigned>(64 * w + i) + hasBit(blackWord, i);
                if (king)
                    ring ^= kingSteps[piece].changed;
                else
                    ring = addInRing(ring ^ manSteps[piece].changed, manSteps[piece].added);
            }
        }
        const std::uint32_t low = rotate31(ring, maxBoardSize * maxBoardSize);
        if (isLastOfAll && hasBit(occupied(), last))
            return withTopBit(low, codeOf(hasBit(black, last), hasBit(kings, last)));
        return low | low << 31;
    }

    static constexpr std::uint32_t mask31 = 0x7fffffff;

    static constexpr std::uint32_t codeOf(bool isBlack, bool isKing) {
        static_assert(whiteMan == 5 && whiteKing == 6 && blackMan == 9 && blackKing == 10);
        return whiteMan + 4U * (isBlack ? 1 : 0) + (isKing ? 1 : 0);
    }
    static constexpr std::uint32_t rotate31(std::uint32_t low, int by) {
        const std::uint64_t shifted = std::uint64_t{low} << by % 31;
        return static_cast<std::uint32_t>((shifted & mask31) | shifted >> 31);
    }
    // The sum of 31 bits and one of them. A carry comes round from the highest bit to the lowest,
    // as far as the bit that was added: beyond that it is lost, where the key had its highest.
    static std::uint32_t addInRing(std::uint32_t ring, std::uint32_t bit) {
        const std::uint32_t carry = ring & bit;
        const std::uint32_t sum = ring + bit;
        return ((sum & mask31) + (sum >> 31)) & ~carry;
    }

    // What pieces do to the key: the bits that they change and the one that they add, rotated as
    // the key is not. By square, for white and for black.
    struct KeyStep {
        std::uint32_t changed;
        std::uint32_t added;
    };
    using KeySteps = std::array<KeyStep, 2 * Squares::bitCount>;
    static constexpr KeySteps keySteps(bool isKing) {
        KeySteps steps{};
        for (unsigned i = 0; i < steps.size(); ++i) {
            const std::uint32_t code = codeOf(i % 2 != 0, isKing);
            const int back = 31 - (Squares::sequence[i / 2] + 1) % 31;
            steps[i] = {rotate31(code & ~1U, back), rotate31(code & 1, back)};
        }
        return steps;
    }
    static constexpr KeySteps manSteps = keySteps(false);
    static constexpr KeySteps kingSteps = keySteps(true);

    // The step over an occupied last square, in full: nothing mirrors the top bit after it.
    static std::uint32_t withTopBit(std::uint32_t low, std::uint32_t code) {
        const std::uint32_t carry = low & 1;
        return (((low & ~1U) ^ code) | carry << 31) + carry;
    }
};

#endif
