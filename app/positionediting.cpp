// Draughts: editing the position square by square.

#include "app/draughts.h"

#include "rules/board.h"
#include "view/drcanvaspiece.h"

int Draughts::nextPieceType(int code) const {
    switch (code) {
    case 0:
        return whiteMan;
    case whiteMan:
        return blackMan;
    case blackMan:
        return whiteKing;
    case whiteKing:
        return blackKing;
    default:
        return 0;
    }
}

void Draughts::setPosXY(int x, int y, bool remove) {
    if (isBusy() || !XY(x, y).onBoard() || (x + y) % 2 != 0)
        return;
    const int code = remove ? 0 : nextPieceType(pBoard->squares[x][y] & ~codeCanMove);
    if (code == 0) {
        trashPiece(x, y);
    } else {
        pBoard->squares[x][y] = static_cast<unsigned char>(code);
        DrCanvasPiece *&piece = pieces[x][y];
        if (piece == nullptr)
            piece = fromTrash();
        piece->setBoardPos(x, y);
        piece->setType(code);
    }
    testPieces();
}
