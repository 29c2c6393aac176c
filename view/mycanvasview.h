// MyCanvasView: the board as a widget that turns taps and keys into squares.
#ifndef VIEW_MYCANVASVIEW_H
#define VIEW_MYCANVASVIEW_H

#include "platform/qcanvasview.h"
#include "view/boardcursor.h"
#include "view/squarereport.h"

class boardMetrics;

// Shows the board canvas and reports which playing square was pressed. It knows no rules: what a
// press means is the listener's business.
//
// For those who play by keyboard it has a cursor that is always on a playing square: arrows, Home,
// End, Page Up and Page Down move it, a typed name such as "c3" places it, Return and Space tap its
// square as a press would. A press takes it along. It is drawn, as a frame over its square, only
// while the view has the focus and was reached or worked by key.
class MyCanvasView : public QCanvasView {
    Q_OBJECT

public:
    // A view on `canvas`, of its size hint. `m` is shared and outlives the view.
    MyCanvasView(QCanvas *canvas, QWidget *parent, boardMetrics *m);
    // A view with no canvas and no parent.
    explicit MyCanvasView(boardMetrics *m);
    ~MyCanvasView() override;

    // Without metrics (null) no press is reported, and no key taken.
    void setBMetrics(boardMetrics *m);
    // Fits the view to its canvas again.
    void resize();
    using QCanvasView::resize;

    // The square of the cursor, (0, 0) at first.
    XY cursorSquare() const { return cursor_; }
    bool isCursorShown() const { return byKey_ && hasFocus(); }
    // Other squares than playing squares of the board are ignored.
    void moveCursor(XY square);

    // Where a square lies, in the viewport's pixels.
    QRect squareRect(XY square) const;
    const boardMetrics *shownMetrics() const { return metrics; }

    // For those who do not see the board: who tells of its squares, and that they have changed.
    // Without a reader the squares have no names.
    void setSquareReader(SquareReader reader) { reader_ = std::move(reader); }
    SquareReport report(XY square) const;
    void tellSquares();

signals:
    // A playing square of the board was pressed, with the right button or another, or tapped by
    // key.
    void clickedBxy(int bx, int by, bool rightButton);
    // The cursor has come to another square.
    void cursorMoved(int bx, int by);
    // The next, or the previous, piece that can move is asked for (n, Shift+n).
    void pieceWanted(bool next);
    // The move being entered is to be given up (Escape).
    void cancelled();

protected:
    // Presses on other squares and beyond the board's squares are not reported.
    void contentsMousePressEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;
    void focusOutEvent(QFocusEvent *e) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

    boardMetrics *metrics;

private:
    bool work(const QKeyEvent &key);
    bool type(const QKeyEvent &key);
    void showCursor(bool byKey);
    void tellFocus();

    XY cursor_;
    TypedSquare typed_;
    SquareReader reader_;
    bool byKey_ = false; // the cursor is shown while the view has the focus
};

#endif
