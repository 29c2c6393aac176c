// board: one draughts position, with its text form and hash key.
#ifndef RULES_BOARD_H
#define RULES_BOARD_H

#include "rules/xy.h"

class QTextStream;

// The bits of a square code. An empty square is 0.
enum SquareCode : unsigned char {
    codeMan = 1,
    codeKing = 2,
    codeWhite = 4,
    codeBlack = 8,
    // Jumped by the capture in progress: stays on its square and blocks until the move is over.
    codeTaken = 16,
    // On a man that has a non-capturing move, as of the last time such moves were generated.
    codeCanMove = 32,

    whiteMan = codeWhite | codeMan,
    whiteKing = codeWhite | codeKing,
    blackMan = codeBlack | codeMan,
    blackKing = codeBlack | codeKing,

    // The bits that tell positions apart; marks do not.
    codePiece = 15
};

// Where a side's men are crowned, on a board of so many squares a side.
constexpr int promotionRow(bool white, int size) {
    return white ? size - 1 : 0;
}

// The code of a piece once it is crowned: a king, with its marks; a king stays one.
constexpr unsigned char crowned(unsigned char code) {
    return static_cast<unsigned char>((code | codeKing) & ~codeMan);
}

// One position: contents of every square, side to move, ply counter, size, and the search record
// that the hash table keeps with it. A plain value; copied whole wherever a position is stored.
class board {
public:
    bool whiteToMove;
    int plyCount; // half-moves since the start position
    // Square codes indexed [x][y]. Only the first `size` columns and rows are used, the rest is 0.
    unsigned char squares[maxBoardSize][maxBoardSize];

    // The search record: the score found for this position, the two window bounds it was found
    // with (beta in the parent's point of view, alpha at entry of the node), and the horizon.
    int hashScore;
    int hashBeta;
    int hashAlpha;
    int hashHorizon;

    int size; // 6, 8, 10 or 12; 0 for a board that holds nothing

    // The start position of an n x n board with a fresh search record.
    explicit board(int n = 0);
    // A copy of every field of `other`.
    explicit board(const board *other) : board(*other) {}
    board(const board &) = default;
    board &operator=(const board &) = default;

    // The code of a square, for reading and writing. The caller checks the bounds.
    unsigned char &Get(const XY &square) { return squares[square.x][square.y]; }
    unsigned char Get(const XY &square) const { return squares[square.x][square.y]; }

    // Sets up n/2 - 1 rows of men a side, white to move, ply 0. Any rule set plays on any size.
    // The search record is left alone.
    void startPos(int n);
    // Empties every square; nothing else changes.
    void clear();
    // Counts the white and the black pieces.
    void countPieces(int &white, int &black) const;
    // Number of pieces of both sides in the start position of this size.
    int StaringNumber() const;
    // Few pieces are left: at most five eighths of the start position's.
    bool isGambit() const;

    // 32-bit key of the side to move and the low four bits of every square.
    unsigned int HKey() const;

    // Writes the position as one line: size, ply, key, score, horizon, then two characters for
    // every square, column by column. Always true.
    bool toStream(QTextStream &stream) const;
    // Reads such a line into a board that already has the line's size; the side to move follows
    // from the parity of the ply counter. A key that does not fit prints "zle \n" on standard
    // output and changes nothing else. Always true.
    bool fromStream(QTextStream &stream);

private:
    int countOccupied() const;
};

#endif
