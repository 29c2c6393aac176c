// The part of the inspector that looks at the board: sprites, marks and pixels.
#ifndef TOOLS_MONKEY_BOARDINSPECTOR_H
#define TOOLS_MONKEY_BOARDINSPECTOR_H

#include "tools/monkey/gamemodel.h"
#include "tools/monkey/opengame.h"

// Every piece has one visible sprite of its kind, in its place; all others are in the pool, hidden,
// and none is lost or too many; nothing but the move's piece flies.
QString checkSprites(OpenGame &game, const GameModel &model);
QString checkMarks(OpenGame &game, const GameModel &model);

#endif
