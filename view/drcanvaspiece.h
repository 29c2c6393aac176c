// DrCanvasPiece: one piece on the board canvas.
#ifndef VIEW_DRCANVASPIECE_H
#define VIEW_DRCANVASPIECE_H

#include "base/qarray.h"
#include "platform/qcanvasitem.h"
#include "rules/xy.h"

class Draughts;
class DrCanvas;
class boardMetrics;

// A disc with marks, drawn from its piece code. It rests on a square or dances: it flies along a
// path in straight legs, leaving MarkPath on every square it passes, and reports each leg's end
// (flyFinished) and the path's end (danceFinished) to its canvas. At rest it is drawn at z 1, in
// flight at z 2. The canvas owns it; new pieces are hidden until their first setType or resize.
class DrCanvasPiece : public QCanvasRectangle {
public:
    static constexpr int Rtti = 1006;

    // A white man of width x height pixels. `canvas` must not be null; `owner` is kept only, and
    // may be null; `m` is shared and outlives the piece.
    DrCanvasPiece(int width, int height, DrCanvas *canvas, Draughts *owner, boardMetrics *m);
    ~DrCanvasPiece() override;

    // Changes the size in pixels and shows the piece, also a hidden one. Nothing else changes: a
    // piece in flight keeps its course and ends on the square it was sent to.
    void resize(int width, int height);
    // Changes the piece code (square codes with or without the taken mark) and shows the piece.
    void setType(int t);
    int getType() const { return type; }
    // Puts the piece on a square. Not for a piece in flight, which would take it for its target.
    void setBoardPos(int column, int row);
    // The square the piece stands on or, in flight, the one it is flying to.
    int boardX() const { return bx; }
    int boardY() const { return by; }

    // Starts one leg towards a square, marking the square that the piece leaves. A leg to the
    // square it already belongs to puts it there at once and ends at the next step.
    void setFlyTo(int tx, int ty);
    // Pixels from the piece to its square.
    double CalcDistance() const;
    // Starts a dance to the squares of `path` in turn; the first is the first landing square, not
    // the one the piece stands on. The path is not owned and stays as it is until the dance is
    // over. Null or an empty path leaves the piece idle and signals nothing. While a dance is
    // running, a box says so and the call is ignored.
    void setDanceTo(QArray<XY> *path);
    bool isDancing() const { return dancePath != nullptr; }

    // Phase 1 is one step of the dance; all else does nothing. The path's end is reported last, so
    // that whoever listens may start the next dance or delete the piece.
    void advance(int phase) override;
    bool collidesWith(const QCanvasItem *other) const override;
    // Shows a box and draws nothing when the code is 0.
    void draw(QPainter &p) override;
    int rtti() const override { return Rtti; }
    QRect boundingRect() const override;

protected:
    int bx = 0;
    int by = 0;
    int w;
    int h;
    int type;
    double prevDistance = 0; // to the leg's target at the previous step; 0 at rest
    boardMetrics *metrics;
    QArray<XY> *dancePath = nullptr; // null when idle
    int danceIndex = -1;             // of the current leg's target in dancePath
    Draughts *controller;

private:
    DrCanvas *boardCanvas() const;
    void endLeg();
    void drawCross(QPainter &p, const QRect &square) const;
};

#endif
