// Draughts: whose turn it is, the computer's search and the end of the game.

#include "app/draughts.h"

#include "app/boarddescription.h"
#include "app/choices.h"
#include "app/gamehist.h"
#include "base/host.h"
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
    if (closed)
        return;
    ++nestLevel;
    if (nestLevel > 1) {
        host().messageBox(BoxKind::Warning, QStringLiteral("DoPlayerMove"),
                          QStringLiteral("level>1"), BoxButtons::Ok, this);
    }
    clearTargetMarks();
    int white = 0;
    int black = 0;
    pBoard->countPieces(white, black);
    labelScore->setText(QStringLiteral("%1/%2").arg(white).arg(black));
    describeBoard();
    if (pBoard->whiteToMove)
        testPieces();
    if (isComputersTurn())
        computerMove();
    else
        waitUser();
    --nestLevel;
}

// The toolkit announces every setting, also of what is there already.
void Draughts::describeBoard() {
    const QString description = boardDescription(*pBoard);
    if (pView->accessibleDescription() != description)
        pView->setAccessibleDescription(description);
}

bool Draughts::isComputersTurn() const {
    return (pBoard->whiteToMove ? whiteComputer : blackComputer) == 1;
}

void Draughts::computerMove() {
    if (pEngine->FillMoveList()) {
        gameOver();
        return;
    }
    pMove = searchMove();
    if (closed)
        return;
    lblThinking->hide();
    pView->setCursor(Qt::ArrowCursor);
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
    showThinking();
    connect(btnBreak, &QPushButton::clicked, this, &Draughts::breakThinking, Qt::UniqueConnection);
    thinking = true;
    LegalMove *move = pEngine->getBestMove(score, line);
    thinking = false;
    return move;
}

void Draughts::showThinking() {
    keepFocus();
    pView->setCursor(Qt::ForbiddenCursor);
    disconnect(pView, &MyCanvasView::clickedBxy, this, &Draughts::userInput);
    lblThinking->setText(tr("*** THINKING ***"));
    lblThinking->show();
    btnBreak->show();
    btnAbout->hide();
    for (QPushButton *button : {btnForce, btnSettings, btnNewGame, btnPrev, btnFwd})
        button->setEnabled(false);
}

// The search has found no move although there is one: the turn, passed on already, goes back, and
// the player takes over.
void Draughts::giveTurnToPlayer() {
    pBoard->whiteToMove = !pBoard->whiteToMove;
    pSettings->cmbPlayers->setCurrentIndex(humanComputer);
    setPlayersByChoice(humanComputer);
    restoreControls();
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
    lblThinking->show();
    connect(btnNewGame, &QPushButton::clicked, this, &Draughts::newGame, Qt::UniqueConnection);
    connect(pView, &MyCanvasView::clickedBxy, this, &Draughts::userInput, Qt::UniqueConnection);
    connect(btnForce, &QPushButton::clicked, this, &Draughts::forceMove, Qt::UniqueConnection);
    btnForce->setEnabled(true);
    enableSteps();
    giveBackFocus();
}

void Draughts::gameOver() {
    btnBreak->hide();
    btnForce->setEnabled(false);
    connect(btnNewGame, &QPushButton::clicked, this, &Draughts::newGame, Qt::UniqueConnection);
    disconnect(pView, &MyCanvasView::clickedBxy, this, &Draughts::userInput);
    disconnect(btnForce, &QPushButton::clicked, this, &Draughts::forceMove);
    host().messageBox(BoxKind::Warning, QStringLiteral("Game Over"), QStringLiteral("Game Over"),
                      BoxButtons::Ok, this);
    lblThinking->setText(tr("Game Over"));
    giveBackFocus();
}

// For the time of a flight. NewGame is disconnected instead.
void Draughts::lockControls() {
    keepFocus();
    for (QPushButton *button : {btnForce, btnSettings, btnPrev, btnFwd, btnAbout})
        button->setEnabled(false);
}

// BREAK stays while the computer moves on: hidden for a moment only, it would lose a click of which
// the press has come and the release has not.
void Draughts::restoreControls() {
    if (!isComputersTurn())
        btnBreak->hide();
    btnAbout->show();
    for (QPushButton *button : {btnAbout, btnForce, btnSettings, btnNewGame})
        button->setEnabled(true);
}

// The toolkit takes the focus from a button that is disabled or hidden and gives it to another, in
// the end to none.
void Draughts::keepFocus() {
    if (focusKept.isNull())
        focusKept = focusWidget();
}

// Whoever plays by keyboard goes on from the button pressed last.
void Draughts::giveBackFocus() {
    if (!focusKept.isNull() && focusKept->isEnabled())
        focusKept->setFocus();
    focusKept.clear();
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
