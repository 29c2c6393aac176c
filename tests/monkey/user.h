// User: what the monkey does next.
#ifndef TESTS_MONKEY_USER_H
#define TESTS_MONKEY_USER_H

#include "tests/monkey/dice.h"
#include "tests/monkey/journal.h"
#include "tests/rig/hand.h"

class Monkey;

// One event a call, one of those that are possible for a person before the screen, by the weights
// of one table. With nothing open about half of them play the game on by its rules; the others are
// anything.
class User {
public:
    User(Monkey &monkey, Dice &dice) : monkey_(monkey), dice_(dice) {}
    void act();

private:
    struct Gestures;

    Monkey &monkey_;
    Dice &dice_;
    Hand hand_;
};

#endif
