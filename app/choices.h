// What the items of the settings dialog stand for.
#ifndef APP_CHOICES_H
#define APP_CHOICES_H

class AbstractEngine;
class board;
class thinkStatistic;

// The items of the players' combo box.
enum PlayersItem { humanComputer = 0, humanHuman = 1, computerComputer = 2 };

// Makes an engine; the caller owns it. Null when there is no memory.
using EngineMaker = AbstractEngine *(*)(board *b, int depth, thinkStatistic *stat, int size);

// How the computer thinks at a level: to a depth in plies, or for a time where that is 0.
struct Level {
    int plies;
    int seconds;
    int scoreNoise;
};

inline constexpr int fiveSecondsItem = 3;

// The item's meaning. Null, or 0 squares, for an index that is no item.
EngineMaker rulesChoice(int index);
int squaresChoice(int index);
const Level *levelChoice(int index);

// What is taken instead of an index that is no item: international rules, 10 squares, 5 seconds.
EngineMaker fallbackRules();
int fallbackSquares();
const Level &fallbackLevel();

#endif
