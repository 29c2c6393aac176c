// Draughts: the piece sprites, kept in step with the position and reused through a pool.

#include "app/draughts.h"

#include "base/host.h"
#include "rules/board.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"

#include <utility>

namespace {

void report(const char *text) {
    host().messageBox(BoxKind::Warning, QStringLiteral("Draughts::testPieces"),
                      QString::fromLatin1(text));
}

} // namespace

DrCanvasPiece *Draughts::fromTrash() {
    const int width = pMetrics->SquareWidthB();
    const int height = pMetrics->SquareHeightB();
    if (trash.empty())
        return new DrCanvasPiece(width, height, pCanvas.get(), this, pMetrics.get());
    DrCanvasPiece *piece = trash.back();
    trash.pop_back();
    piece->resize(width, height);
    return piece;
}

void Draughts::CreateCanvasPieces(DrCanvas *, ::board *) {
    for (int x = 0; x < maxBoardSize; ++x) {
        for (int y = 0; y < maxBoardSize; ++y) {
            pieces[x][y] = nullptr;
            const int code = pBoard->squares[x][y];
            if (code == 0)
                continue;
            DrCanvasPiece *piece = fromTrash();
            pieces[x][y] = piece;
            piece->setType(code);
            piece->setBoardPos(x, y);
            piece->show();
        }
    }
    pCanvas->update();
}

void Draughts::trashAllPieces() {
    for (auto &column : pieces) {
        for (DrCanvasPiece *&piece : column) {
            if (piece == nullptr)
                continue;
            piece->hide();
            pCanvas->update();
            trash.push_back(std::exchange(piece, nullptr));
        }
    }
    pBoard->clear();
}

void Draughts::trashPiece(int x, int y) {
    pBoard->squares[x][y] = 0;
    if (DrCanvasPiece *piece = std::exchange(pieces[x][y], nullptr)) {
        piece->hide();
        trash.push_back(piece);
        pCanvas->markSQ(x, y, MarkNone);
    }
    pCanvas->advance();
    pCanvas->update();
}

void Draughts::testPieces() {
    for (int x = 0; x < maxBoardSize; ++x) {
        for (int y = 0; y < maxBoardSize; ++y) {
            const DrCanvasPiece *piece = pieces[x][y];
            if (piece == nullptr)
                continue;
            const bool captured = (pBoard->squares[x][y] & codeTaken) != 0;
            if (piece->visible() == captured)
                report("visible==captured");
            if (piece->boardX() != x || piece->boardY() != y)
                report("(bx!=dstBX) || (by!=dstBY)");
        }
    }
}
