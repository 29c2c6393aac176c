#include "rules/intengine.h"

#include <algorithm>

namespace {

int ownColour(const board &b) {
    return b.whiteToMove ? codeWhite : codeBlack;
}

// An enemy piece that has not been jumped in this sequence.
bool canBeTaken(const board &b, const XY &square) {
    const int enemy = b.whiteToMove ? codeBlack : codeWhite;
    return (b.Get(square) & (enemy | codeTaken)) == enemy;
}

} // namespace

bool IntEngine::FillMoveList() {
    const CaptureLimitScope report;
    releaseMoves();
    FillCaptureMoves();
    if (!moveList.isEmpty())
        return false;
    FillNormalMoves(&moveList, board);
    return moveList.isEmpty();
}

bool IntEngine::FillNotCapturingMoveList(QValueList<LegalMove> *list, ::board *b) {
    list->clear();
    FillNormalMoves(list, b);
    return !list->isEmpty();
}

AbstractEngine *IntEngine::selfClone(::board *b, int budget, thinkStatistic *stat, int squares) {
    return new IntEngine(b, budget, stat, squares);
}

bool IntEngine::aboutToPass() {
    for (int x = 0; x < size; ++x) {
        constexpr int wanted = codeWhite | codeCanMove;
        if ((board->squares[x][size - 2] & (wanted | codeKing)) == wanted)
            return true;
    }
    for (int x = 0; x < size; ++x) {
        constexpr int wanted = codeBlack | codeCanMove;
        if ((board->squares[x][1] & (wanted | codeKing)) == wanted)
            return true;
    }
    return false;
}

// The start square is emptied before the final one is filled: a capture may end where it began.
void IntEngine::makeMove(::board *b, LegalMove *m) {
    unsigned char piece = b->Get(m->from());
    b->Get(m->from()) = 0;
    if (m->to().y == promotionRow(b->whiteToMove, size))
        piece = crowned(piece);
    b->Get(m->to()) = piece;
    for (const XY &square : m->taken)
        b->Get(square) = 0;
    b->whiteToMove = !b->whiteToMove;
    ++b->plyCount;
}

void IntEngine::FillCaptureMoves() {
    listCaptures();
    leaveMaxCapture();
}

void IntEngine::listCaptures() {
    const CaptureLimitScope report;
    const int own = ownColour(*board);
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y) {
            const unsigned char code = board->squares[x][y];
            if ((code & own) == 0)
                continue;
            LegalMove working;
            working.insPath({x, y}, 0);
            if ((code & codeMan) != 0)
                genCapManMove({x, y}, board, 1, &working);
            else
                genCapKingMove({x, y}, board, 1, &working);
        }
    }
}

void IntEngine::leaveMaxCapture() {
    unsigned most = 0;
    for (const LegalMove &m : moveList)
        most = std::max(most, m.taken.size());
    moveList.removeIf([most](const LegalMove &m) { return m.taken.size() < most; });
}

bool IntEngine::shortJump(XY pos, int d, const ::board &b, XY &over, XY &land) {
    over = pos + jmpInter[d];
    land = pos + jmpEnd[d];
    return land.onBoard() && b.Get(land) == 0 && canBeTaken(b, over);
}

::board IntEngine::afterJump(const ::board &b, LegalMove *m, int level, XY pos, XY over, XY land) {
    m->insPath(land, level);
    m->insTaken(over, level - 1);
    ::board scratch = b;
    const unsigned char piece = scratch.Get(pos);
    scratch.Get(pos) = 0;
    scratch.Get(over) |= codeTaken;
    scratch.Get(land) = piece;
    return scratch;
}

void IntEngine::genCapManMove(XY pos, ::board *b, int level, LegalMove *m) {
    shortJumps(pos, *b, level, m, {0, 1, 2, 3}, "IntEngine::genCapManMove",
               [&](XY land, ::board *after) { genCapManMove(land, after, level + 1, m); });
}

bool IntEngine::genCapKingMove(XY pos, ::board *b, int level, LegalMove *m) {
    if (level > 1 && countJump())
        return true;
    bool found = false;
    for (const XY &step : jmpInter) {
        XY over = pos + step;
        while (over.inside() && b->Get(over) == 0)
            over = over + step;
        if (!over.inside() || !canBeTaken(*b, over))
            continue;
        const XY first = over + step;
        XY beyond = first; // the square after the last landing square
        bool continued = false;
        for (; beyond.onBoard() && b->Get(beyond) == 0; beyond = beyond + step) {
            found = true;
            ::board scratch = afterJump(*b, m, level, pos, over, beyond);
            continued |= genCapKingMove(beyond, &scratch, level + 1, m);
        }
        for (XY land = first; !continued && !(land == beyond); land = land + step) {
            m->insPath(land, level);
            moveList.append(*m);
        }
    }
    return found;
}

void IntEngine::FillNormalMoves(QValueList<LegalMove> *list, ::board *b) {
    const int own = ownColour(*b);
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y) {
            const unsigned char code = b->squares[x][y];
            if ((code & own) == 0)
                continue;
            if ((code & codeMan) != 0)
                genNManMove({x, y}, code, list, b);
            else
                genNKingMove({x, y}, code, list, b);
        }
    }
}

void IntEngine::genNManMove(XY pos, int code, QValueList<LegalMove> *list, ::board *b) {
    bool moved = false;
    if ((code & codeMan) != 0) {
        const int dy = b->whiteToMove ? 1 : -1;
        for (const XY &target : {pos + XY(-1, dy), pos + XY(1, dy)}) {
            if (!target.onBoard() || b->Get(target) != 0)
                continue;
            list->append(LegalMove(pos, target));
            moved = true;
        }
    }
    unsigned char &square = b->Get(pos);
    square = static_cast<unsigned char>(moved ? square | codeCanMove : square & ~codeCanMove);
}

void IntEngine::genNKingMove(XY pos, int, QValueList<LegalMove> *list, ::board *b) {
    for (const XY &step : jmpInter) {
        for (XY target = pos + step; target.onBoard() && b->Get(target) == 0;
             target = target + step)
            list->append(LegalMove(pos, target));
    }
}
