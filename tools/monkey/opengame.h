// OpenGame: the game's window with its works laid open.
#ifndef TOOLS_MONKEY_OPENGAME_H
#define TOOLS_MONKEY_OPENGAME_H

#include "app/draughts.h"

// Nothing is added: what the game keeps to itself can be looked at.
class OpenGame : public Draughts {
public:
    using Draughts::pBoard, Draughts::pEngine, Draughts::pCanvas, Draughts::pView, Draughts::pHist,
        Draughts::pStat, Draughts::pSettings, Draughts::pAbout, Draughts::pMetrics, Draughts::pMove,
        Draughts::pieces, Draughts::trash, Draughts::selection, Draughts::whiteComputer,
        Draughts::blackComputer;
    bool thinking() const { return phase() == Phase::Thinking; }
    bool flying() const { return phase() == Phase::Flying; }
    bool closed() const { return phase() == Phase::Closed; }
};

#endif
