// Draughts: the main window, which runs the game.
#ifndef APP_DRAUGHTS_H
#define APP_DRAUGHTS_H

#include "base/qarray.h"
#include "eval/squaresvalue.h"
#include "forms/mainform.h"
#include "rules/xy.h"
#include "view/squarereport.h"

#include <QPointer>

#include <memory>
#include <vector>

class AbstractEngine;
class DrCanvas;
class DrCanvas2;
class DrCanvasPiece;
class LegalMove;
class MyCanvasView;
class board;
class boardMetrics;
class fabout;
class formsettings;
class gameHist;
class hashTable;
class thinkStatistic;

// The program's one position hash table.
extern hashTable HT;

// The game controller. It owns the position and all that plays and shows it, and carries the game
// from move to move without a loop of its own:
//
//   DoPlayerMove -> computerMove (search) or waitUser (taps, userInput) -> AnimateLegalMove
//     -> flight of the sprite, by the canvas's timer -> AfterDance -> DoPlayerMove ...
//
// While a search runs or a piece flies the game may not be touched: the controls are disabled or
// disconnected, and the slots that would change the game do nothing. Only BREAK acts. Closing the
// window stops the game there and then: the search is broken off and no further move is played. A
// window that is shown again plays on from there.
//
// Between moves every piece on the board has exactly one visible sprite, `pieces` at the same
// square; all other sprites are hidden and wait in `trash`.
class Draughts : public MainForm {
    Q_OBJECT

public:
    // What the game is doing. What can be seen and pressed in each phase is a table in phases.cpp.
    enum class Phase {
        HandOver,  // nothing yet: the turn is about to be handed over
        Waiting,   // for the player to enter a move
        Thinking,  // a search runs
        BrokenOff, // the search is ending without a move; the turn is handed over after it
        Chosen,    // the search has ended, its move has not begun
        Flying,    // a piece flies
        Over,      // the side to move has no move
        Closed     // the window was closed
    };

    // Builds the window and starts a game with the settings dialog's defaults: international rules
    // on 10 x 10 squares, a person with white against the computer. `name` is the object name; null
    // stands for the form's own.
    explicit Draughts(QWidget *parent = nullptr, const char *name = nullptr);
    ~Draughts() override;

    Phase phase() const { return phase_; }

    // Shows the piece counts, describes the board to assistive technology and hands the turn to
    // whoever plays the side to move. From inside another call a box says so first; a search that
    // runs is broken off and the turn handed over when it has ended. In a flight, whose end hands
    // over the turn, and in a closed window nothing happens.
    void DoPlayerMove();
    // Searches and plays the computer's move, or ends the game when there is none.
    void computerMove();
    // Prompts the player and lets him tap, or ends the game when there is no move.
    void waitUser();
    void gameOver();

    // Crosses out the pieces that `m` takes and starts the flight of the piece that moves. `m` is a
    // move of the engine's list for the board's pieces, the turn having been passed on already. For
    // null a box says so, and nothing else happens.
    void AnimateLegalMove(LegalMove *m);
    // Moves a piece's code and sprite from (x1, y1) to (x2, y2), which may be the same square, and
    // crowns it on its promotion row.
    void updatePieceInfo(int x1, int y1, int x2, int y2);

    // 0: takes every mark off the board. 1: marks the squares of `targets`. Others: nothing.
    void markSquares(int kind);
    // Marks the path of the move being played, if any.
    void markLastMove();
    // Colours every square for the side that controls it.
    void markTakenField();

    // Gives every piece of the position a sprite; the former ones must be in the pool already, or
    // on a former canvas. Always works on the game's own canvas and board: the arguments are not
    // used.
    void CreateCanvasPieces(DrCanvas *canvas, ::board *position);
    // Puts every sprite into the pool and empties the board.
    void trashAllPieces();
    // Empties one square of the board and puts its sprite, if any, into the pool.
    void trashPiece(int x, int y);
    // A sprite of the present square size from the pool, or a new one.
    DrCanvasPiece *fromTrash();
    // Reports sprites that do not fit the position in boxes; changes nothing.
    void testPieces();

    // The code after `code` in the editing cycle: empty, white man, black man, white king, black
    // king, empty. 0 for any other code.
    int nextPieceType(int code) const;

    // Fits all sprites to the present square size.
    void ResizeCanvasPieces();

public slots:
    // Starts a new game, after a question when the game has a move to lose.
    void newGame();
    // The flight is over: completes the move, records the position and hands over the turn.
    void AfterDance();
    // The player taps square (x, y). Squares outside the board are ignored.
    void userInput(int x, int y, bool right);
    // The player gives up the move that he is entering.
    void cancelMove();
    // The board's cursor goes to the next, or the previous, piece that the player can move.
    void moveCursorToPiece(bool next);
    // The computer takes the side to move, and moves.
    void forceMove();
    // The items of the settings dialog; an index that is no item is reported in a box and replaced.
    // The level counts from the next search on.
    void setLevel(int index);
    // Stops the search. The computer keeps the side to move, the player gets the other one.
    void breakThinking();
    // One position back or forward; the game goes on from there.
    void histPrev();
    void histFwd();
    // Other rules for the game as it stands.
    void setRules(int index);
    // Another board size, and with it a new game.
    void setBSize(int index);
    // Runs the settings dialog and applies what was changed if it is accepted.
    void showSettings();
    void showAbout();
    // Position editing: the next piece of the cycle on a playing square, or none. Other squares are
    // ignored. The legal moves are listed anew when the turn is handed over.
    void setPosXY(int x, int y, bool remove);
    // The side that cannot move wins.
    void setGiveAway(bool on);

signals:
    void new_signal(); // never sent

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

    std::unique_ptr<::board> pBoard;
    std::unique_ptr<AbstractEngine> pEngine; // bound to pBoard
    std::unique_ptr<QArray<XY>> danceTo;     // landing squares of the move in flight
    QArray<XY> selection;                    // squares tapped so far for the move being entered
    QArray<XY> targets;                      // squares that may continue it
    LegalMove *pMove = nullptr;              // the move being played, the engine's; else null
    std::unique_ptr<DrCanvas2> pCanvas;      // owns the sprites
    MyCanvasView *pView = nullptr;           // child
    std::unique_ptr<gameHist> pHist;
    std::unique_ptr<thinkStatistic> pStat;
    std::unique_ptr<formsettings> pSettings;
    fabout *pAbout = nullptr; // child
    SquaresValue squareValues;
    DrCanvasPiece *pieces[maxBoardSize][maxBoardSize] = {}; // [x][y]; null: no piece
    std::vector<DrCanvasPiece *> trash;                     // stack of hidden sprites
    std::unique_ptr<boardMetrics> pMetrics;
    int whiteComputer = 0; // 1: the computer plays white
    int blackComputer = 0; // 1: the computer plays black

private:
    // Construction and rebuilding.
    void createGame();
    void createBoard();
    void adoptEngine(std::unique_ptr<AbstractEngine> engine);
    void placeView();

    // The phase and what shows it. In a closed window enter() sets the phase that it resumes in.
    void enter(Phase phase);
    void showControls();
    void connectControls();
    void keepFocus();
    void giveBackFocus();
    void resume();
    // A search or a flight is running, or the window is closed: the game may not be touched.
    bool isBusy() const {
        return phase_ != Phase::HandOver && phase_ != Phase::Waiting && phase_ != Phase::Over;
    }

    // Turn flow.
    void handOver();
    bool isComputersTurn() const;
    LegalMove *searchMove();
    void giveTurnToPlayer();
    void setPlayers(bool white, bool black);
    void setPlayersByChoice(int item);
    void giveMoverToComputer();
    void clearTargetMarks();
    int matchSelection(bool &complete);
    void playMove(LegalMove *move);
    void enableSteps();
    void restorePosition();

    // For those who hear the game.
    void describeBoard();
    SquareReport reportSquare(XY square) const;
    bool canMove(XY square) const;
    QList<XY> movingPieces() const;
    QString offer() const;
    QString refusal() const;
    QString winner() const;

    Phase phase_ = Phase::HandOver;
    Phase interrupted_ = Phase::HandOver; // of a closed window: the phase it resumes in
    QPointer<QWidget> focusKept_;         // while the game is busy: what had the focus before
};

#endif
