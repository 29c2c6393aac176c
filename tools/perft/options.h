// The command line of perft.
#ifndef TOOLS_PERFT_OPTIONS_H
#define TOOLS_PERFT_OPTIONS_H

#include "rules/board.h"
#include "rules/ruleset.h"

#include <QString>

class QCommandLineParser;

struct PerftOptions {
    RuleSet rules = defaultRules;
    int depth = 0; // plies
    bool divide = false;
    bool leavesOnly = false;
    bool distinct = false;
    bool standardInput = false; // position lines come from there
    board position;             // otherwise: where to count from
};

void describePerft(QCommandLineParser &parser);
// What is wrong with the parsed command line, empty when nothing is; then `options` holds it.
QString readPerftOptions(const QCommandLineParser &parser, PerftOptions &options);

#endif
