// boardMetrics: where the squares of the board lie on the screen.
#ifndef VIEW_BOARDMETRICS_H
#define VIEW_BOARDMETRICS_H

// The one place that converts between squares (column bx, row by, from 0) and canvas pixels. Row 0
// is drawn at the bottom and column 0 at the left, unless the board is flipped. One instance, owned
// by the game controller, is shared by the canvas, the sprites and the view.
//
// Conversions neither clamp nor check: pixels beyond the board give columns or rows outside
// 0..size - 1, and callers that can see such pixels check. Squares must be at least a pixel wide
// and high for the way from pixels to squares.
class boardMetrics {
public:
    int size;             // squares per side; the controller writes 6, 8, 10 or 12 directly
    int w;                // board width in pixels
    int h;                // board height in pixels
    bool flipped = false; // seen from the other side: both axes mirrored

    // `squaresPerSide` is limited to 7..12, the pixel sizes are taken as they are.
    boardMetrics(int squaresPerSide, int width, int height);

    int getW() const { return w; }
    int getH() const { return h; }
    // Makes the board the largest whole number of squares that fits into width x height pixels.
    void setWH(int width, int height);

    // Size of a square in whole pixels.
    int SquareWidthB() const { return w / size; }
    int SquareHeightB() const { return h / size; }

    // Left edge of a column and top edge of a row.
    int BxToScr(int bx) const;
    int ByToScr(int by) const;
    // Column and row under a pixel.
    int ScrToBx(int x) const;
    int ScrToBy(int y) const;

    // Distance in pixels between the top left corners of two squares.
    double DistanceB(int bx1, int by1, int bx2, int by2) const;
    // Distance between two points.
    double Distance(double x1, double y1, double x2, double y2) const;

    // Returns what `flipped` was before.
    bool flipBoard(bool f);
};

#endif
