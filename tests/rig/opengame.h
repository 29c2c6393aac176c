// OpenGame: the game's window with its works laid open.
#ifndef TESTS_RIG_OPENGAME_H
#define TESTS_RIG_OPENGAME_H

#include "app/draughts.h"

// Nothing is added: what the game keeps to itself can be looked at and set.
class OpenGame : public Draughts {
public:
    using Draughts::pBoard, Draughts::pEngine, Draughts::pCanvas, Draughts::pView, Draughts::pHist,
        Draughts::pStat, Draughts::pSettings, Draughts::pAbout, Draughts::pMetrics, Draughts::pMove,
        Draughts::pieces, Draughts::trash, Draughts::whiteComputer, Draughts::blackComputer;

    bool thinks() const { return phase() == Phase::Thinking; }
    bool flies() const { return phase() == Phase::Flying; }
    bool isClosed() const { return phase() == Phase::Closed; }
};

#endif
