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
    using Set = typename Squares::Set;

    Set white{};
    Set black{};
    Set kings{}; // of both colours

    BitPosition() = default;
    // The pieces of `b`, a board for which representable() holds; marks are left out.
    explicit BitPosition(const board &b) {
        for (int x = 0; x < N; ++x) {
            for (int y = x % 2; y < N; y += 2) {
                const unsigned char code = b.squares[x][y];
                const Set square = Squares::single(Squares::index(x, y));
                white |= (code & codeWhite) != 0 ? square : Set{};
                black |= (code & codeBlack) != 0 ? square : Set{};
                kings |= (code & codeKing) != 0 ? square : Set{};
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
        forEachPiece([squares](unsigned i, bool isBlack, bool isKing) {
            squares[Squares::sequence[i]] = static_cast<unsigned char>(codeOf(isBlack, isKing));
        });
    }

    // Calls `use` with square, colour and kind of each piece, in the order of the squares.
    template <class Use>
    void forEachPiece(Use use) const {
        const BitPosition p = *this; // of its own: `use` cannot change it
        for (int w = 0; w < wordsOf(p.white); ++w) {
            const std::uint64_t blackWord = word(p.black, w);
            const std::uint64_t kingsWord = word(p.kings, w);
            for (std::uint64_t rest = word(p.white, w) | blackWord; rest != 0;) {
                const int i = takeLowest(rest);
                use(static_cast<unsigned>(64 * w + i), hasBit(blackWord, i), hasBit(kingsWord, i));
            }
        }
    }

    // The code of a piece on a board.
    static constexpr std::uint32_t codeOf(bool isBlack, bool isKing) {
        static_assert(whiteMan == 5 && whiteKing == 6 && blackMan == 9 && blackKing == 10);
        return whiteMan + 4U * (isBlack ? 1 : 0) + (isKing ? 1 : 0);
    }

    Set occupied() const { return white | black; }
    Set empty() const { return asSet(Squares::all) & ~occupied(); }
    template <bool White>
    Set side() const {
        return White ? white : black;
    }
    template <bool White>
    Set men() const {
        return side<White>() & ~kings;
    }

    bool operator==(const BitPosition &other) const {
        return isEmpty((white ^ other.white) | (black ^ other.black) | (kings ^ other.kings));
    }

    // The position after a move of the side; crowned where the piece's way ends.
    template <bool White>
    BitPosition after(const BitMove<N> &m) const {
        const Set from = Squares::single(m.from);
        const Set to = Squares::single(m.to);
        const Set taken = asSet(m.taken);
        const Set crowned =
            hasBit(kings, m.from) ? to : to & asSet(Squares::template promotionRow<White>);
        BitPosition next;
        next.white = White ? (white & ~from) | to : white & ~taken;
        next.black = White ? black & ~taken : (black & ~from) | to;
        next.kings = (kings & ~from & ~taken) | crowned;
        return next;
    }
};

#endif
