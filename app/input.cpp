// Draughts: the player's taps and the buttons that act on the turn.

#include "app/draughts.h"

#include "forms/announcer.h"
#include "forms/fabout.h"
#include "rules/board.h"
#include "search/abstractengine.h"
#include "view/boardcursor.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <QPushButton>

// A tap on a piece starts a new move; one on an empty square or on an offered one goes on with the
// move being entered.
void Draughts::userInput(int x, int y, bool) {
    if (isBusy() || !XY(x, y).onBoard())
        return;
    if (pCanvas->isMarked(x, y) != MarkNext && pBoard->squares[x][y] != 0)
        selection.resize(0);
    selection.append(XY(x, y));

    bool complete = false;
    const int match = matchSelection(complete);
    markSquares(0);
    markSquares(1);
    if (complete) {
        playMove(pEngine->getLegalMove(match));
        return;
    }
    const QString answer = match < 0 ? refusal() : offer();
    if (match < 0) {
        selection.resize(0);
        markSquares(0);
    }
    pView->tellSquares();
    announcer->announce(answer);
}

void Draughts::cancelMove() {
    if (isBusy() || selection.isEmpty())
        return;
    selection.resize(0);
    targets.resize(0);
    markSquares(0);
    pView->tellSquares();
    announcer->announce(tr("The move is given up."));
}

void Draughts::moveCursorToPiece(bool next) {
    if (phase_ != Phase::Waiting)
        return;
    pView->moveCursor(nextStop(*pMetrics, pView->cursorSquare(), movingPieces(), next));
}

// The index of a legal move that begins with the squares tapped so far, -1 when there is none, and
// the squares that may follow in `targets`. The first move that is complete ends the search for
// more.
int Draughts::matchSelection(bool &complete) {
    targets.resize(0);
    int match = -1;
    int index = 0;
    for (const LegalMove &move : *pEngine->getMoveList()) {
        XY following;
        const int compared = move.comparePart(&selection, following);
        if (compared != 0)
            match = index;
        if (compared == 1)
            targets.append(following);
        if (compared == 2) {
            targets.resize(0);
            complete = true;
            return match;
        }
        ++index;
    }
    return match;
}

void Draughts::playMove(LegalMove *move) {
    markSquares(0);
    selection.resize(0);
    pBoard->whiteToMove = !pBoard->whiteToMove;
    pMove = move;
    AnimateLegalMove(pMove);
}

void Draughts::forceMove() {
    if (isBusy())
        return;
    disconnect(btnForce, &QPushButton::clicked, this, &Draughts::forceMove);
    giveMoverToComputer();
    DoPlayerMove();
}

// Pressed during the flight after a search, it acts on the side that the turn has passed to.
void Draughts::breakThinking() {
    AbstractEngine::breakThinking = true;
    giveMoverToComputer();
}

void Draughts::showAbout() {
    if (!isBusy())
        pAbout->exec();
}
