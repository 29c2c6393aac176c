// Draughts: the flight of a move and its completion on the board.

#include "app/draughts.h"

#include "app/gamehist.h"
#include "app/inwords.h"
#include "base/host.h"
#include "forms/announcer.h"
#include "rules/board.h"
#include "rules/legalmove.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <utility>

void Draughts::AnimateLegalMove(LegalMove *m) {
    markSquares(0);
    if (m == nullptr) {
        host().messageBox(BoxKind::Warning, QStringLiteral("AnimateLegalMove"),
                          QStringLiteral("no move given"));
        return;
    }
    announcer->note(moveInWords(*pBoard, *m));
    enter(Phase::Flying);
    for (const XY &square : m->taken) {
        unsigned char &code = pBoard->Get(square);
        code |= codeTaken;
        pieces[square.x][square.y]->setType(code);
        pCanvas->update();
    }
    danceTo->resize(0);
    for (unsigned i = 1; i < m->path.size(); ++i)
        danceTo->append(m->path[i]);
    pMove = m;
    pieces[m->from().x][m->from().y]->setDanceTo(danceTo.get());
    pView->tellSquares();
}

void Draughts::AfterDance() {
    if (phase_ != Phase::Flying)
        return;
    updatePieceInfo(pMove->from().x, pMove->from().y, pMove->to().x, pMove->to().y);
    for (const XY &square : pMove->taken) {
        trashPiece(square.x, square.y);
        pCanvas->markSQ(square.x, square.y, MarkNone);
    }
    // The engine is about to list other moves.
    pMove = nullptr;
    pHist->insert(pBoard.get());
    enter(Phase::HandOver);
    ++pBoard->plyCount;
    DoPlayerMove();
}

void Draughts::updatePieceInfo(int x1, int y1, int x2, int y2) {
    unsigned char code = pBoard->squares[x1][y1];
    if (code != 0 && y2 == promotionRow((code & codeWhite) != 0, pMetrics->size))
        code = crowned(code);
    pBoard->squares[x1][y1] = 0;
    pBoard->squares[x2][y2] = code;

    DrCanvasPiece *piece = std::exchange(pieces[x1][y1], nullptr);
    pieces[x2][y2] = piece;
    if (piece != nullptr)
        piece->setType(code);
    pCanvas->update();
}
