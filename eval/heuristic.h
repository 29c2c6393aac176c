// heuristic: how far each side's men could advance unhindered.
#ifndef EVAL_HEURISTIC_H
#define EVAL_HEURISTIC_H

#include "rules/xy.h"

class board;

// The analysis of one position, by flooding the board forward from every man, both sides in turn,
// one row a step, refusing squares that the other side controls. It tells which squares a side
// owns, whether it can reach its promotion row, and which squares lie on such a free path
// (passages). Each analysis starts from a newly constructed object.
//
// Colours are the square codes' bits: 4 white, 8 black.
class heuristic {
public:
    // Marks that stand in `flags` beside the bits of a square code.
    enum Mark : int { markControlledByWhite = 64, markControlledByBlack = 128, markPassage = 256 };

    struct Cell {
        int reach = 0; // 0 not reached, 1 occupied, k: reached by a man after k - 1 forward steps
        int flags = 0; // the square code; for a reached square colour + 1; and marks
    };

    Cell cells[maxBoardSize][maxBoardSize]; // indexed [x][y]
    int size = 10;

    // The whole flood. The side to move claims contested squares of each step first.
    void analyse(const board *b);

    // The steps of analyse(): takes over the pieces; marks the neighbourhood of every piece, or of
    // one square, as controlled (squares on the board's edge never are, a piece there cannot be
    // jumped); floods one step for one colour and tells whether anything changed.
    void fromBoard(const board *b);
    void markAround(int n);
    void markXYAround(int x, int y, int colour);
    bool onePass(int dy, int step, int colour);

    // The colour that stands on or reached the square, 0 for none.
    int getOwner(int x, int y) const;
    // The colour whose free path to promotion leads over the square, 0 for none.
    int getPassage(int x, int y) const;
    // Whether white, and whether black, can reach its promotion row; true when either can.
    bool canPass(bool &white, bool &black) const;
    // Marks the passages of one colour, walking back from its promotion row.
    void findPassage(int colour);
    void markLastLinePassage(int colour);
    // White's squares minus black's, each side counted up to four: -4 to 4.
    int freedom() const;

private:
    bool claim(int x, int y, int step, int colour);
    bool markPassageRow(int y, int next, int colour);
    bool leadsOn(int x, int y, int next, int colour) const;
};

#endif
