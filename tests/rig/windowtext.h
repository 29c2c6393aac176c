// What the game's window shows, as text.
#ifndef TESTS_RIG_WINDOWTEXT_H
#define TESTS_RIG_WINDOWTEXT_H

#include "tests/rig/opengame.h"
#include "view/drcanvas.h"

#include <string>

// The state label in brackets, empty when it is hidden, the piece counts, and the names of the
// buttons that can be pressed: "[Your Move] 20/20 About Force Settings NewGame".
std::string controlsText(const OpenGame &game);
// The marked squares, column by column: "(4,4) (6,4)".
std::string markedText(const OpenGame &game, MarkType mark);
// The drawing of the board that the window's pixels show.
std::string pixelsText(const OpenGame &game);
// The settings dialog's choices, and those that it keeps otherwise than it shows them.
std::string settingsText(const OpenGame &game);
// What the search is asked for: "IntEngine, 5 s, noise 5".
std::string requestText(const OpenGame &game);

#endif
