// Draughts: construction, destruction, closing and the new game.

#include "app/draughts.h"

#include "app/gamehist.h"
#include "base/host.h"
#include "forms/announcer.h"
#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "rules/board.h"
#include "rules/boardsizes.h"
#include "rules/ruleset.h"
#include "search/abstractengine.h"
#include "search/hashtable.h"
#include "search/levels.h"
#include "search/thinkstatistic.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QPushButton>

#include <new>
#include <utility>

hashTable HT(10003);

namespace {

constexpr int firstPixels = 240;
constexpr int stepMs = 25;
// The engine's depth until its first search sets one.
constexpr int initialDepth = 1;

} // namespace

Draughts::Draughts(QWidget *parent, const char *name)
    : MainForm(parent, name), squareValues(defaultSquares, false) {
    pSettings = std::make_unique<formsettings>(this, nullptr, true);
    pSettings->hide();
    pMetrics = std::make_unique<boardMetrics>(defaultSquares, firstPixels, firstPixels);
    XY::B_SIZE = pMetrics->size;
    pHist = std::make_unique<gameHist>();
    connect(btnPrev, &QPushButton::clicked, this, &Draughts::histPrev);
    connect(btnFwd, &QPushButton::clicked, this, &Draughts::histFwd);
    createGame();
    createBoard();
    pAbout = new fabout(this, nullptr, true);
    pAbout->hide();
    connect(btnSettings, &QPushButton::clicked, this, &Draughts::showSettings);
    connect(btnAbout, &QPushButton::clicked, this, &Draughts::showAbout);
    setLevel(pSettings->levelIndex);
    setRules(pSettings->rulesIndex);
    newGame();
}

Draughts::~Draughts() {
    pView->setSquareReader({});
    pBoard.reset();
    pCanvas.reset();
    pStat.reset();
    pHist.reset();
    pSettings.reset();
    pEngine.reset();
}

// The position, what searches it, and the request of the search.
void Draughts::createGame() {
    pStat = std::make_unique<thinkStatistic>();
    pBoard.reset(new (std::nothrow)::board(0));
    if (pBoard == nullptr) {
        host().messageBox(BoxKind::Warning, QStringLiteral("Draughts::Draughts"),
                          QStringLiteral("new board() failed"));
    } else {
        pBoard->startPos(pMetrics->size);
    }
    adoptEngine(newEngine(defaultRules, pBoard.get(), initialDepth, pStat.get(), pMetrics->size));
    pStat->setReqTime(levels[defaultLevelItem].seconds);
    if (pEngine == nullptr) {
        host().messageBox(BoxKind::Warning, QStringLiteral("Draughts::Draughts"),
                          QStringLiteral("new engine(board*) failed"));
    }
    danceTo = std::make_unique<QArray<XY>>();
}

void Draughts::adoptEngine(std::unique_ptr<AbstractEngine> engine) {
    pEngine = std::move(engine);
    AbstractEngine::setSQV(&squareValues);
    AbstractEngine::pHT = &HT;
}

// The canvas with its pieces, and the view on it.
void Draughts::createBoard() {
    pCanvas = std::make_unique<DrCanvas2>(pMetrics.get());
    pCanvas->setBackgroundColor(Qt::white);
    pCanvas->setAdvancePeriod(stepMs);
    CreateCanvasPieces(pCanvas.get(), pBoard.get());
    pView = new MyCanvasView(pCanvas.get(), this, pMetrics.get());
    pView->setAccessibleName(tr("Board"));
    connect(pView, &MyCanvasView::pieceWanted, this, &Draughts::moveCursorToPiece);
    connect(pView, &MyCanvasView::cancelled, this, &Draughts::cancelMove);
    orderControls(pView);
    pView->setSquareReader([this](XY square) { return reportSquare(square); });
    placeView();
    pView->show();
}

// A dialog that is open, or a search that runs, is left at once, so that the event loop can end.
void Draughts::closeEvent(QCloseEvent *event) {
    MainForm::closeEvent(event);
    if (!event->isAccepted())
        return;
    if (phase_ != Phase::Closed)
        interrupted_ = std::exchange(phase_, Phase::Closed);
    AbstractEngine::breakThinking = true;
    for (QDialog *dialog :
         {static_cast<QDialog *>(pSettings.get()), static_cast<QDialog *>(pAbout)}) {
        if (dialog->isVisible())
            dialog->reject();
    }
}

// A search inside this event would keep the window from appearing.
void Draughts::showEvent(QShowEvent *event) {
    MainForm::showEvent(event);
    if (phase_ != Phase::Closed)
        return;
    const bool searchMayFollow = interrupted_ != Phase::Waiting;
    QMetaObject::invokeMethod(this, &Draughts::resume,
                              searchMayFollow ? Qt::QueuedConnection : Qt::DirectConnection);
}

// Goes on where closing the window has interrupted the game. The piece in flight may have arrived
// in the meantime; the search may still be on its way to its end.
void Draughts::resume() {
    if (phase_ != Phase::Closed || !isVisible())
        return;
    phase_ = Phase::HandOver;
    if (interrupted_ == Phase::HandOver) {
        DoPlayerMove();
    } else if (interrupted_ == Phase::Thinking) {
        enter(Phase::BrokenOff);
    } else {
        enter(interrupted_);
        if (phase_ == Phase::Flying && !pieces[pMove->from().x][pMove->from().y]->isDancing())
            AfterDance();
    }
}

void Draughts::newGame() {
    if (isBusy())
        return;
    if (pHist->canPrev() &&
        !host().messageBox(BoxKind::Warning, QStringLiteral("confirm"),
                           QStringLiteral("confirm NewGame"), BoxButtons::OkCancel, this))
        return;
    if (isBusy()) // closed with the box open
        return;
    announcer->note(tr("New game."));
    pHist->clear();
    pStat->newGame();
    setPlayers(false, true);
    selection.resize(0);
    markSquares(0);
    danceTo->resize(0);
    trashAllPieces();
    pBoard->startPos(pMetrics->size);
    pEngine->FillMoveList();
    CreateCanvasPieces(pCanvas.get(), pBoard.get());
    pHist->insert(pBoard.get());
    setPlayersByChoice(pSettings->cmbPlayers->currentIndex());
    enter(Phase::HandOver);
    DoPlayerMove();
}
