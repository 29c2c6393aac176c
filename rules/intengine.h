// IntEngine: the rules of international draughts.
#ifndef RULES_INTENGINE_H
#define RULES_INTENGINE_H

#include "rules/capturelimit.h"
#include "search/abstractengine.h"

#include <initializer_list>

// Men step one square forward and capture forwards and backwards; kings fly; capturing is
// compulsory, a sequence is continued while it can be, and only sequences that take the most
// pieces are legal. A man is crowned only where its move ends.
class IntEngine : public AbstractEngine {
public:
    using AbstractEngine::AbstractEngine;

    bool FillMoveList() override;
    bool FillNotCapturingMoveList(QValueList<LegalMove> *list, ::board *b) override;
    const char *className() override { return "IntEngine"; }
    int materialScore(heuristic *h) override;
    AbstractEngine *selfClone(::board *b, int depth, thinkStatistic *stat, int size) override;
    bool aboutToPass() override;
    int SafeDiag(XY &p, int d) override;
    void makeMove(::board *b, LegalMove *m) override;

    // Appends the capture sequences of the side to move to the move list, keeping the longest.
    virtual void FillCaptureMoves();
    // Depth-first search of the capture sequences of the man, or king, on `pos` in `b`, jump number
    // `level` (1 for the first) coming next. `m` is the working record; complete sequences are
    // appended to the move list as copies of it. Sequences that would reach jump 26 are dropped
    // with a message (a flying king's have no such limit). The king's returns whether there is a
    // capture from `pos`.
    virtual void genCapManMove(XY pos, ::board *b, int level, LegalMove *m);
    virtual bool genCapKingMove(XY pos, ::board *b, int level, LegalMove *m);
    // Appends the non-capturing moves of the man, or king, on `pos`, whose square code is `code`.
    // The man's can-move mark is set or cleared.
    virtual void genNManMove(XY pos, int code, QValueList<LegalMove> *list, ::board *b);
    virtual void genNKingMove(XY pos, int code, QValueList<LegalMove> *list, ::board *b);

    // Appends the non-capturing moves of every own piece of `b`.
    void FillNormalMoves(QValueList<LegalMove> *list, ::board *b);
    // Keeps the captures that take the most pieces, in their order.
    void leaveMaxCapture();

protected:
    // Step one of every capture listing: all sequences of all own pieces, by column, then row.
    void listCaptures();
    // The jumps of a piece that jumps short, in the directions given: each is written into `m`, and
    // `next(land, after)` continues the sequence from the landing square in the position after it.
    // A sequence that cannot be continued is complete. `operation` reports the limit. True when
    // there was a jump.
    template <class Next>
    bool shortJumps(XY pos, const ::board &b, int level, LegalMove *m,
                    std::initializer_list<int> directions, const char *operation, Next next);
    // The captured piece's square and the landing square of a short jump from `pos` in direction d,
    // if it is possible.
    static bool shortJump(XY pos, int d, const ::board &b, XY &over, XY &land);
    // Writes the jump into the working record and returns the position after it: the jumped piece
    // stays, marked, and keeps blocking.
    static ::board afterJump(const ::board &b, LegalMove *m, int level, XY pos, XY over, XY land);
};

template <class Next>
bool IntEngine::shortJumps(XY pos, const ::board &b, int level, LegalMove *m,
                           std::initializer_list<int> directions, const char *operation,
                           Next next) {
    const CaptureLimitScope report;
    if (level > 1 && countJump())
        return true;
    if (level > maxCaptureLevel) {
        CaptureLimitScope::exceeded(operation);
        return false;
    }
    bool found = false;
    for (const int d : directions) {
        XY over;
        XY land;
        if (!shortJump(pos, d, b, over, land))
            continue;
        found = true;
        ::board after = afterJump(b, m, level, pos, over, land);
        next(land, &after);
    }
    if (!found && level > 1)
        moveList.append(*m);
    return found;
}

#endif
