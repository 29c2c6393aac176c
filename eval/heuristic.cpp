#include "eval/heuristic.h"

#include "rules/board.h"

#include <algorithm>

namespace {

int controlMark(int colour) {
    return colour == codeWhite ? heuristic::markControlledByWhite
                               : heuristic::markControlledByBlack;
}

int otherColour(int colour) {
    return colour == codeWhite ? codeBlack : codeWhite;
}

} // namespace

void heuristic::analyse(const board *b) {
    fromBoard(b);
    markAround(size);
    bool changed = true;
    for (int step = 1; changed && step <= size; ++step) {
        if (b->whiteToMove) {
            changed = onePass(+1, step, codeWhite);
            changed |= onePass(-1, step, codeBlack);
        } else {
            changed = onePass(-1, step, codeBlack);
            changed |= onePass(+1, step, codeWhite);
        }
    }
}

void heuristic::fromBoard(const board *b) {
    size = b->size;
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y) {
            if (b->squares[x][y] != 0)
                cells[x][y] = {1, b->squares[x][y]};
        }
    }
}

void heuristic::markAround(int n) {
    for (int x = 0; x < n; ++x) {
        for (int y = 0; y < n; ++y) {
            if (cells[x][y].reach == 1)
                markXYAround(x, y, (cells[x][y].flags & codeWhite) != 0 ? codeWhite : codeBlack);
        }
    }
}

void heuristic::markXYAround(int x, int y, int colour) {
    for (const XY &step : {XY(-1, 1), XY(1, 1), XY(-1, -1), XY(1, -1)}) {
        const XY next = XY(x, y) + step;
        if (next.inside() && cells[next.x][next.y].reach == 0)
            cells[next.x][next.y].flags |= controlMark(colour);
    }
}

bool heuristic::onePass(int dy, int step, int colour) {
    const int manOfColour = colour | codeMan;
    bool changed = false;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const Cell &cell = cells[x][y];
            if (cell.reach != step || (cell.flags & manOfColour) != manOfColour)
                continue;
            changed |= claim(x - 1, y + dy, step, colour);
            changed |= claim(x + 1, y + dy, step, colour);
        }
    }
    return changed;
}

bool heuristic::claim(int x, int y, int step, int colour) {
    if (!XY(x, y).onBoard())
        return false;
    Cell &target = cells[x][y];
    if (target.reach != 0 || (target.flags & controlMark(otherColour(colour))) != 0)
        return false;
    target = {step + 1, colour | codeMan};
    markXYAround(x, y, colour);
    return true;
}

int heuristic::getOwner(int x, int y) const {
    const int flags = cells[x][y].flags;
    return (flags & codeBlack) != 0 ? codeBlack : flags & codeWhite;
}

int heuristic::getPassage(int x, int y) const {
    return (cells[x][y].flags & markPassage) != 0 ? getOwner(x, y) : 0;
}

bool heuristic::canPass(bool &white, bool &black) const {
    white = false;
    black = false;
    for (int x = 0; x < size; ++x) {
        white |= cells[x][size - 1].reach > 1;
        black |= cells[x][0].reach > 1 && (cells[x][0].flags & codeBlack) != 0;
    }
    return white || black;
}

void heuristic::markLastLinePassage(int colour) {
    const int y = colour == codeWhite ? size - 1 : 0;
    for (int x = 0; x < size; ++x) {
        Cell &cell = cells[x][y];
        if (cell.reach > 1 && (cell.flags & colour) != 0)
            cell.flags |= markPassage;
    }
}

// White's walk visits rows down to 1; black's, going up, ends one row before the mirror of that.
void heuristic::findPassage(int colour) {
    markLastLinePassage(colour);
    bool any = false;
    if (colour == codeWhite) {
        for (int y = size - 2; y >= 1; --y) {
            any |= markPassageRow(y, y + 1, colour);
            if (!any)
                break;
        }
    } else {
        for (int y = 1; y <= size - 3; ++y) {
            any |= markPassageRow(y, y - 1, colour);
            if (!any)
                break;
        }
    }
}

bool heuristic::markPassageRow(int y, int next, int colour) {
    bool any = false;
    for (int x = 0; x < size; ++x) {
        Cell &cell = cells[x][y];
        if (cell.reach == 0 || (cell.flags & colour) == 0)
            continue;
        if (leadsOn(x - 1, next, cell.reach + 1, colour) ||
            leadsOn(x + 1, next, cell.reach + 1, colour)) {
            cell.flags |= markPassage;
            any = true;
        }
    }
    return any;
}

// The square continues a path of the colour: on its free path, reached at exactly step `next`.
bool heuristic::leadsOn(int x, int y, int next, int colour) const {
    if (!XY(x, y).onBoard())
        return false;
    const Cell &cell = cells[x][y];
    const int wanted = markPassage | colour;
    return cell.reach == next && (cell.flags & wanted) == wanted;
}

int heuristic::freedom() const {
    int white = 0;
    int black = 0;
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y) {
            white += (cells[x][y].flags & codeWhite) != 0;
            black += (cells[x][y].flags & codeBlack) != 0;
        }
    }
    return std::min(white, 4) - std::min(black, 4);
}
