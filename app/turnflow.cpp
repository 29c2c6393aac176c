// Draughts: whose turn it is, the computer's search and the end of the game.

#include "app/draughts.h"

#include "app/gamehist.h"
#include "base/host.h"
#include "forms/announcer.h"
#include "forms/formsettings.h"
#include "rules/board.h"
#include "search/abstractengine.h"
#include "search/bestline.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

void Draughts::DoPlayerMove() {
    static int nestLevel = 0;
    if (phase_ == Phase::Closed)
        return;
    ++nestLevel;
    if (nestLevel > 1) {
        host().messageBox(BoxKind::Warning, QStringLiteral("DoPlayerMove"),
                          QStringLiteral("level>1"), BoxButtons::Ok, this);
    }
    if (phase_ == Phase::Thinking) {
        enter(Phase::BrokenOff);
        AbstractEngine::breakThinking = true;
    } else if (!isBusy()) {
        handOver();
    }
    --nestLevel;
}

void Draughts::handOver() {
    clearTargetMarks();
    int white = 0;
    int black = 0;
    pBoard->countPieces(white, black);
    labelScore->setText(QStringLiteral("%1/%2").arg(white).arg(black));
    describeBoard();
    if (pBoard->whiteToMove)
        testPieces();
    if (isBusy()) // closed with a box open
        return;
    if (isComputersTurn())
        computerMove();
    else
        waitUser();
}

bool Draughts::isComputersTurn() const {
    return (pBoard->whiteToMove ? whiteComputer : blackComputer) == 1;
}

void Draughts::computerMove() {
    if (pEngine->FillMoveList()) {
        gameOver();
        return;
    }
    LegalMove *const found = searchMove();
    if (phase_ != Phase::Thinking) {
        enter(Phase::HandOver);
        if (phase_ != Phase::Closed)
            handOver();
        return;
    }
    enter(Phase::Chosen);
    pMove = found;
    pBoard->whiteToMove = !pBoard->whiteToMove;
    AnimateLegalMove(pMove);
    if (pMove == nullptr)
        giveTurnToPlayer();
}

// The window lives on while this runs, with nothing but BREAK to press.
LegalMove *Draughts::searchMove() {
    pCanvas->update();
    Score score(777, -1);
    BestLine line;
    lblThinking->setText(tr("*** THINKING ***"));
    enter(Phase::Thinking);
    announcer->announceLater(tr("The computer thinks."));
    return pEngine->getBestMove(score, line);
}

// The search has found no move although there is one: the turn, passed on already, goes back, and
// the player takes over.
void Draughts::giveTurnToPlayer() {
    pBoard->whiteToMove = !pBoard->whiteToMove;
    pSettings->cmbPlayers->setCurrentIndex(humanComputer);
    setPlayersByChoice(humanComputer);
    enter(Phase::HandOver);
    waitUser();
}

void Draughts::waitUser() {
    const bool noMove = pEngine->FillMoveList();
    selection.resize(0);
    if (noMove) {
        gameOver();
        return;
    }
    lblThinking->setText(pEngine->isCapture() ? tr("You Must Capture") : tr("Your Move"));
    enter(Phase::Waiting);
    announcer->remind(lblThinking->text());
    giveBackFocus();
}

void Draughts::gameOver() {
    enter(Phase::Over);
    announcer->announce(winner());
    host().messageBox(BoxKind::Warning, QStringLiteral("Game Over"), QStringLiteral("Game Over"),
                      BoxButtons::Ok, this);
    lblThinking->setText(tr("Game Over"));
    giveBackFocus();
}

void Draughts::enableSteps() {
    btnPrev->setEnabled(pHist->canPrev());
    btnFwd->setEnabled(pHist->canFwd());
}

void Draughts::setPlayers(bool white, bool black) {
    whiteComputer = white ? 1 : 0;
    blackComputer = black ? 1 : 0;
}

// With a person against the computer, the person takes the side to move.
void Draughts::setPlayersByChoice(int item) {
    if (item == humanComputer)
        setPlayers(!pBoard->whiteToMove, pBoard->whiteToMove);
    else if (item == humanHuman)
        setPlayers(false, false);
    else if (item == computerComputer)
        setPlayers(true, true);
}

// What Force Move and BREAK do, whoever played so far.
void Draughts::giveMoverToComputer() {
    pSettings->cmbPlayers->setCurrentIndex(humanComputer);
    setPlayers(pBoard->whiteToMove, !pBoard->whiteToMove);
}
