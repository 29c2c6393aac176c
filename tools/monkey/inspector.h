// The inspector: compares the window with what the model says it must be.
#ifndef TOOLS_MONKEY_INSPECTOR_H
#define TOOLS_MONKEY_INSPECTOR_H

#include "tools/monkey/gamemodel.h"
#include "tools/monkey/opengame.h"

#include <QPushButton>

inline constexpr Button allButtons[] = {Button::Prev,   Button::Fwd,   Button::About,
                                        Button::Break,  Button::Force, Button::Settings,
                                        Button::NewGame};

QPushButton *widgetOf(const OpenGame &game, Button button);
// What the settings dialog shows.
Choices shownChoices(const OpenGame &game);

// The first thing that is not as it must be, empty when all is well: position and history, who
// plays, sprites and pool, marks, buttons, texts, dialogs, layout and fonts.
QString inspect(OpenGame &game, const GameModel &model);
// The same for every position of the history, and for the pixels of the board.
QString inspectHistory(OpenGame &game, const GameModel &model);
QString inspectPixels(const OpenGame &game, const GameModel &model);

#endif
