// EngineRig: a position with all that an engine needs around it.
#ifndef TESTS_SUPPORT_ENGINERIG_H
#define TESTS_SUPPORT_ENGINERIG_H

#include "eval/squaresvalue.h"
#include "rules/ruleset.h"
#include "search/bestline.h"
#include "search/hashtable.h"
#include "search/thinkstatistic.h"
#include "tests/support/drawnboard.h"
#include "tests/support/recordinghost.h"

#include <memory>
#include <string>

// Noise 1, so that values are reproducible; the engine's statics are as at program start, the
// square values are the normal game's.
struct EngineRig {
    RecordingHost host;
    board position;
    thinkStatistic statistic;
    SquaresValue values;
    hashTable table;
    std::unique_ptr<AbstractEngine> engine;
    Score score{0, 0};
    BestLine line;

    EngineRig(RuleSet rules, const board &b, int tableSize = 10003)
        : position(b), values(b.size, false), table(tableSize) {
        XY::B_SIZE = b.size;
        statistic.scoreNoise = 1;
        AbstractEngine::breakThinking = AbstractEngine::isGambit = false;
        AbstractEngine::eventLoop = 0;
        AbstractEngine::absHorizon = -1;
        AbstractEngine::setSQV(&values);
        AbstractEngine::setHashTable(&table);
        engine = newEngine(rules, &position, 1, &statistic, b.size);
    }
    EngineRig(RuleSet rules, const std::string &picture) : EngineRig(rules, drawn(picture)) {}
    ~EngineRig() {
        AbstractEngine::setSQV(nullptr);
        AbstractEngine::setHashTable(nullptr);
    }

    // From now on no level of a search is left to the bit sets.
    void leaveOutBits() { engine->deepSearchAllowed = false; }
    // Searches; the chosen move as text, "none" without one.
    std::string search() {
        const LegalMove *m = engine->getBestMove(score, line);
        return m == nullptr ? "none" : moveText(*m);
    }
    std::string lineText() const {
        QString text;
        line.asString(text);
        return text.toStdString();
    }
};

#endif
