// AmEngine: the American rules.
#ifndef RULES_AMENGINE_H
#define RULES_AMENGINE_H

#include "rules/polengine.h"

// Men move and capture forward only; kings move one square and capture by a short jump in every
// direction; any capture may be chosen. Capture listing comes from PolEngine, the rest from
// IntEngine.
class AmEngine : public PolEngine {
public:
    using PolEngine::PolEngine;

    const char *className() override { return "AmEngine"; }
    int materialScore(heuristic *h) override;
    AbstractEngine *selfClone(::board *b, int depth, thinkStatistic *stat, int size) override;

    // As the base class's; both kinds of sequences are dropped when they would reach jump 26.
    void genCapManMove(XY pos, ::board *b, int level, LegalMove *m) override;
    bool genCapKingMove(XY pos, ::board *b, int level, LegalMove *m) override;
    void genNManMove(XY pos, int code, QValueList<LegalMove> *list, ::board *b) override;
    void genNKingMove(XY pos, int code, QValueList<LegalMove> *list, ::board *b) override;
};

#endif
