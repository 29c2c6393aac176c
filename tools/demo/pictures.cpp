#include "tools/demo/pictures.h"

#include "tools/demo/gamewindow.h"

#include <QString>

#include <vector>

namespace {

constexpr int reactionMs = 15'000;
constexpr int settledPolls = 5;
constexpr int drawnMs = 500;
constexpr int frameMs = 10;

// In the pixels of the form and of the settings dialog.
constexpr QPoint settingsButton(212, 246);
constexpr QPoint playersBox(140, 118);
constexpr QPoint acceptButton(74, 178);

using Path = std::vector<Square>;

// Two people play; white, to move after it, takes five men on its way through the middle.
const std::vector<Path> opening = {{{7, 3}, {6, 4}}, {{4, 6}, {3, 5}}, {{9, 3}, {8, 4}},
                                   {{3, 7}, {4, 6}}, {{8, 4}, {7, 5}}, {{6, 6}, {8, 4}},
                                   {{8, 2}, {7, 3}}, {{7, 7}, {6, 6}}};
const Path capture = {{7, 3}, {9, 5}, {7, 7}, {5, 5}, {3, 7}, {1, 5}};

bool isStanding(const BoardPicture &board, Square square) {
    const Shown shown = board.shown(square);
    return shown == Shown::White || shown == Shown::Black;
}

void tapAll(GameWindow &game, const Path &path) {
    for (const Square &square : path) {
        game.tap(square);
    }
}

// Until the piece has stood on the path's end for a while: before that it may still fly.
bool play(GameWindow &game, const Path &path) {
    tapAll(game, path);
    int times = 0;
    const bool played = game.waitUntil(reactionMs, [&] {
        const BoardPicture board = game.look();
        const bool there = isStanding(board, path.back()) && !isStanding(board, path.front());
        times = there ? times + 1 : 0;
        return times >= settledPolls;
    });
    return played || game.failed("the move from " + text(path.front()) + " is not played");
}

// Opens the settings, takes their picture, and turns the players' box one item on.
bool letTwoPeoplePlay(GameWindow &game, const QString &folder) {
    game.tap(settingsButton);
    xcb_window_t dialog = 0;
    const bool shown = game.waitUntil(reactionMs, [&] {
        dialog = game.findWindow("settings");
        return dialog != 0;
    });
    if (!shown) {
        return game.failed("the settings do not open");
    }
    game.waitUntil(drawnMs, [] { return false; });
    if (!game.savePicture(folder + "/settings.png", dialog)) {
        return false;
    }
    game.tap(dialog, playersBox * game.scale(), PointerButton::WheelDown);
    game.tap(dialog, acceptButton * game.scale());
    const bool closed =
        game.waitUntil(reactionMs, [&] { return game.findWindow("settings") == 0; });
    return closed || game.failed("the settings do not close");
}

// The moment in the middle of the capture when the man has just left the second landing square.
bool catchCapture(GameWindow &game, const QString &folder) {
    tapAll(game, capture);
    const bool caught = game.waitUntil(
        reactionMs,
        [&] {
            const BoardPicture board = game.look();
            return board.shown(capture[2]) == Shown::Path && !isStanding(board, capture[3]);
        },
        frameMs);
    return caught ? game.savePicture(folder + "/capture.png")
                  : game.failed("no capture is seen in flight");
}

} // namespace

bool takePictures(GameWindow &game, const QString &folder) {
    if (!game.open() || !game.savePicture(folder + "/start.png") ||
        !letTwoPeoplePlay(game, folder)) {
        return false;
    }
    for (const Path &move : opening) {
        if (!play(game, move)) {
            return false;
        }
    }
    return catchCapture(game, folder) && game.close();
}
