// PolEngine: the Polish traditional rules.
#ifndef RULES_POLENGINE_H
#define RULES_POLENGINE_H

#include "rules/intengine.h"

// International moves without the duty to take the most pieces: any capture may be chosen.
class PolEngine : public IntEngine {
public:
    using IntEngine::IntEngine;

    const char *className() override { return "PolEngine"; }
    AbstractEngine *selfClone(::board *b, int depth, thinkStatistic *stat, int size) override;
    // Appends every capture sequence of the side to move and keeps them all.
    void FillCaptureMoves() override;
};

#endif
