// Snapshots: all that is to be seen of the game, as text.
#ifndef TESTS_MONKEY_SNAPSHOT_H
#define TESTS_MONKEY_SNAPSHOT_H

#include "rules/xy.h"
#include "tests/rig/opengame.h"

#include <string>
#include <utility>
#include <vector>

// Headings, the same ones for window and model, and what there is to say under each.
using Snapshot = std::vector<std::pair<std::string, std::string>>;

// The window's. The thorough one also has the pixels, where nothing flies.
// Of a window that was closed there is the position only, which has to stay.
Snapshot snapshotOf(OpenGame &game, bool thorough);

// Squares in order, each once: "(1,1) (2,2)".
std::string inOrder(std::vector<XY> squares);

// Whom the computer plays.
inline std::string computersText(bool white, bool black) {
    return std::string(white ? "white " : "") + (black ? "black" : "");
}

// What differs, the model's before the window's; empty when nothing does.
std::string difference(const Snapshot &model, const Snapshot &window);

#endif
