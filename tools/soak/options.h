// The command line of soak.
#ifndef TOOLS_SOAK_OPTIONS_H
#define TOOLS_SOAK_OPTIONS_H

#include "app/choices.h"

#include <QList>
#include <QString>

class QCommandLineParser;

struct SoakOptions {
    int games = 0;
    int timedMoves = 0; // above 0: measure the time of so many moves instead
    QList<Level> levels;
    unsigned int seed = 1;
    int plies = 0;    // a game is cut there
    int growthKb = 0; // memory allowed above what was in use when it had settled
};

void describeSoak(QCommandLineParser &parser);
// What is wrong with the parsed command line, empty when nothing is; then `options` holds it.
QString readSoakOptions(const QCommandLineParser &parser, SoakOptions &options);

#endif
