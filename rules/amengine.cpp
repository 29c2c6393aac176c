#include "rules/amengine.h"

#include "rules/capturelimit.h"

AbstractEngine *AmEngine::selfClone(::board *b, int budget, thinkStatistic *stat, int squares) {
    return new AmEngine(b, budget, stat, squares);
}

void AmEngine::genCapManMove(XY pos, ::board *b, int level, LegalMove *m) {
    const CaptureLimitScope report;
    if (level > maxCaptureLevel) {
        CaptureLimitScope::exceeded("AmEngine::genCapManMove");
        return;
    }
    static constexpr int forward[2][2] = {{1, 2}, {0, 3}}; // black's directions, white's
    bool found = false;
    for (const int d : forward[b->whiteToMove]) {
        XY over;
        XY land;
        if (!shortJump(pos, d, *b, over, land))
            continue;
        found = true;
        ::board scratch = afterJump(*b, m, level, pos, over, land);
        genCapManMove(land, &scratch, level + 1, m);
    }
    if (!found && level > 1)
        moveList.append(*m);
}

bool AmEngine::genCapKingMove(XY pos, ::board *b, int level, LegalMove *m) {
    const CaptureLimitScope report;
    if (level > maxCaptureLevel) {
        CaptureLimitScope::exceeded("AmEngine::genCapKingMove");
        return false;
    }
    bool found = false;
    for (int d = 0; d < 4; ++d) {
        XY over;
        XY land;
        if (!shortJump(pos, d, *b, over, land))
            continue;
        found = true;
        ::board scratch = afterJump(*b, m, level, pos, over, land);
        genCapKingMove(land, &scratch, level + 1, m);
    }
    if (!found && level > 1)
        moveList.append(*m);
    return found;
}

void AmEngine::genNManMove(XY pos, int code, QValueList<LegalMove> *list, ::board *b) {
    PolEngine::genNManMove(pos, code, list, b);
}

void AmEngine::genNKingMove(XY pos, int, QValueList<LegalMove> *list, ::board *b) {
    for (const XY &step : jmpInter) {
        const XY target = pos + step;
        if (target.onBoard() && b->Get(target) == 0)
            list->append(LegalMove(pos, target));
    }
}
