#include "rules/amengine.h"

AbstractEngine *AmEngine::selfClone(::board *b, int budget, thinkStatistic *stat, int squares) {
    return new AmEngine(b, budget, stat, squares);
}

void AmEngine::genCapManMove(XY pos, ::board *b, int level, LegalMove *m) {
    const auto next = [&](XY land, ::board *after) { genCapManMove(land, after, level + 1, m); };
    if (b->whiteToMove)
        shortJumps(pos, *b, level, m, {0, 3}, "AmEngine::genCapManMove", next);
    else
        shortJumps(pos, *b, level, m, {1, 2}, "AmEngine::genCapManMove", next);
}

bool AmEngine::genCapKingMove(XY pos, ::board *b, int level, LegalMove *m) {
    return shortJumps(pos, *b, level, m, {0, 1, 2, 3}, "AmEngine::genCapKingMove",
                      [&](XY land, ::board *after) { genCapKingMove(land, after, level + 1, m); });
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
