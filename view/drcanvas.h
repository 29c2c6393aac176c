// DrCanvas and DrCanvas2: the drawing of the board with its marked squares.
#ifndef VIEW_DRCANVAS_H
#define VIEW_DRCANVAS_H

#include "platform/qcanvas.h"
#include "rules/xy.h"

class QCanvasRectangle;
class boardMetrics;

// The mark of a square. Other values are stored and drawn like MarkNone.
enum MarkType : int {
    MarkNone = 0,
    MarkNext = 1, // may be tapped next to continue the move being entered
    MarkPath = 2  // passed by the move being animated
};

// The board: one rectangle for every square, coloured by its mark, and the end of a piece's flight
// passed on as signals. Squares with bx + by even are the playing squares, the only ones that take
// marks. The number of squares is that of the metrics at construction.
class DrCanvas : public QCanvas {
    Q_OBJECT

public:
    // A canvas of the metrics' size in pixels with all squares shown. `m` is shared and outlives
    // the canvas.
    explicit DrCanvas(boardMetrics *m);
    ~DrCanvas() override;

    // Lays the squares out for the metrics as they are now; marks and colours stay.
    void resizeSquares();
    // Marks a playing square and colours it. Other squares, and those outside the board, are
    // ignored.
    void markSQ(int bx, int by, MarkType t);
    // The mark of a square; MarkNone outside the board.
    MarkType isMarked(int bx, int by) const;

    // Called by a piece at the end of its whole path, and at the end of every leg.
    void danceFinished();
    void flyFinished();

    void advance() override;

signals:
    void signalDance(); // a piece has reached the end of its path
    void signalFly();   // a piece has reached the end of a leg

protected:
    // The square's rectangle where the square exists and is a playing square, else null.
    QCanvasRectangle *playingSquare(int bx, int by) const;

    QCanvasRectangle *squares[maxBoardSize][maxBoardSize] = {}; // [bx][by]; null outside the board
    MarkType marks[maxBoardSize][maxBoardSize] = {};            // [bx][by]
    boardMetrics *metrics;
};

// A DrCanvas that can also show which side controls each square.
class DrCanvas2 : public DrCanvas {
    Q_OBJECT

public:
    explicit DrCanvas2(boardMetrics *m);
    ~DrCanvas2() override;

    // Colours a playing square for its owner: 4 white, 8 black, anything else nobody. A square
    // marked MarkNext stays in that mark's colour. Ignores the squares that markSQ ignores.
    void ownedBy(int bx, int by, int owner);
    // Takes all marks off and shows every square as nobody's.
    void reset();
};

#endif
