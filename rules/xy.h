// XY: a square of the board by column and row.
#ifndef RULES_XY_H
#define RULES_XY_H

// The largest board has 12 x 12 squares; every table indexed by squares has room for it.
inline constexpr int maxBoardSize = 12;

// A square: column `x` and row `y`, both counted from 0. Row 0 is white's own edge, rows grow
// towards black's. Dark (playing) squares have x + y even; (0, 0) is one of them.
struct XY {
    int x = 0;
    int y = 0;

    // The one process-wide board size (6, 8, 10 or 12) that move generation and position analysis
    // use as their bounds. The game sets it before it resets its board; it is 8 until then.
    static int B_SIZE;

    constexpr XY() = default;
    constexpr XY(int column, int row) : x(column), y(row) {}

    constexpr bool operator==(const XY &) const = default;
    constexpr XY operator+(const XY &step) const { return {x + step.x, y + step.y}; }
    constexpr XY operator-(const XY &step) const { return {x - step.x, y - step.y}; }

    // Inside the B_SIZE x B_SIZE board.
    bool onBoard() const { return x >= 0 && y >= 0 && x < B_SIZE && y < B_SIZE; }
    // On the board, but not on its edge: only pieces there can be jumped.
    bool inside() const { return x >= 1 && y >= 1 && x <= B_SIZE - 2 && y <= B_SIZE - 2; }
};

#endif
