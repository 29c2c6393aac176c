#include "tools/demo/onemove.h"

#include "tools/demo/gamewindow.h"

#include <QTextStream>

#include <algorithm>
#include <iterator>

namespace {

constexpr Square start = {5, 3};
constexpr Square target = {4, 4};

constexpr int reactionMs = 15'000;
constexpr int answerMs = 180'000;
constexpr int settledPolls = 5;

using Squares = std::set<Square>;

Squares without(const Squares &from, const Squares &taken) {
    Squares rest;
    std::set_difference(from.begin(), from.end(), taken.begin(), taken.end(),
                        std::inserter(rest, rest.end()));
    return rest;
}

bool targetsShow(GameWindow &game) {
    game.tap(start);
    const bool shown = game.waitUntil(reactionMs, [&] {
        return game.look().squares(Shown::Target) == Squares{target, {6, 4}};
    });
    if (!shown) {
        return game.failed("a tap on white's man at " + text(start) + " does not show its targets");
    }
    out() << "White's man at " << text(start) << " tapped: its targets (4,4) and (6,4) are shown."
          << Qt::endl;
    return true;
}

bool manMoves(GameWindow &game) {
    game.tap(target);
    const bool moved = game.waitUntil(reactionMs, [&] {
        const BoardPicture board = game.look();
        return board.shown(target) == Shown::White && board.shown(start) != Shown::White;
    });
    if (!moved) {
        return game.failed("a tap on the target " + text(target) + " does not move the man");
    }
    out() << "Target " << text(target) << " tapped: white played " << text(start) << "->"
          << text(target) << ". The computer thinks." << Qt::endl;
    return true;
}

// Until one black man stands elsewhere and has done so for a while: it no longer flies.
bool computerAnswers(GameWindow &game, const Squares &before) {
    Squares seen;
    int times = 0;
    const bool answered = game.waitUntil(answerMs, [&] {
        const Squares black = game.look().squares(Shown::Black);
        times = black == seen ? times + 1 : 0;
        seen = black;
        return times >= settledPolls && without(before, seen).size() == 1 &&
               without(seen, before).size() == 1;
    });
    if (!answered) {
        return game.failed("the computer does not answer");
    }
    out() << "Black answered " << text(*without(before, seen).begin()) << "->"
          << text(*without(seen, before).begin()) << "." << Qt::endl;
    return true;
}

} // namespace

bool playOneMove(GameWindow &game, const QString &picturePath) {
    if (!game.open()) {
        game.savePicture(picturePath);
        return false;
    }
    out() << "The window shows the starting position, 20 men a side, at scale " << game.scale()
          << "." << Qt::endl;
    const Squares black = game.look().squares(Shown::Black);
    const bool played = targetsShow(game) && manMoves(game) && computerAnswers(game, black);
    if (!game.savePicture(picturePath) || !played || !game.close()) {
        return false;
    }
    out() << "Window closed: the program ended." << Qt::endl;
    return true;
}
