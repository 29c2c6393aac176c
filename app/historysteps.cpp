// Draughts: stepping through the game.

#include "app/draughts.h"

#include "app/gamehist.h"
#include "forms/announcer.h"
#include "forms/formsettings.h"
#include "rules/board.h"
#include "view/drcanvas.h"

#include <QComboBox>
#include <QPushButton>

void Draughts::histPrev() {
    if (isBusy())
        return;
    const bool stepped = pHist->prev();
    markSquares(0);
    if (!stepped) {
        btnPrev->setEnabled(false);
        return;
    }
    btnForce->setEnabled(true);
    enableSteps();
    announcer->note(tr("One move back."));
    restorePosition();
}

void Draughts::histFwd() {
    if (isBusy())
        return;
    const bool stepped = pHist->next();
    markSquares(0);
    if (!stepped)
        return;
    enableSteps();
    announcer->note(tr("One move forward."));
    restorePosition();
}

// Puts the history's current position on the board and lets the game go on from it.
void Draughts::restorePosition() {
    selection.resize(0);
    trashAllPieces();
    *pBoard = *pHist->getBoard();
    CreateCanvasPieces(pCanvas.get(), pBoard.get());
    if (pSettings->cmbPlayers->currentIndex() == humanComputer)
        setPlayersByChoice(humanComputer);
    DoPlayerMove();
}
