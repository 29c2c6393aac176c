// What the computer is asked to think about while it is watched how soon the window answers.
#ifndef TESTS_APP_THINKING_H
#define TESTS_APP_THINKING_H

#include "tests/rig/gametest.h"

struct Thinking {
    const char *name;
    int rules, size; // items of the settings
    const char *position;
};

// Black's four kings can go round among white's men in hundreds of thousands of ways, which the
// search has to list as soon as it has made a move for white.
inline constexpr const char *branchingCaptures =
    "w ...........B B........... .w.w.w.w.w.. ............ .w.w.w.w.w.. ............ "
    ".w.w...w.w.. ............ .w.w.w.w.w.. ............ .w.w.w.w.w.. B.........B.";

inline constexpr const char *allKings =
    "w .B.B.B.B.B.B B.B.B.B.B.B. .B.B.B.B.B.B B.B.B.B.B.B. .B.B.B.B.B.B ............ "
    "............ W.W.W.W.W.W. .W.W.W.W.W.W W.W.W.W.W.W. .W.W.W.W.W.W W.W.W.W.W.W.";

inline constexpr Thinking thinkings[] = {
    {.name = "start", .rules = international, .size = tenSquares, .position = startOfTen},
    {.name = "kings", .rules = international, .size = twelveSquares, .position = allKings},
    {.name = "americanKings", .rules = american, .size = twelveSquares, .position = allKings},
    {.name = "captures",
     .rules = international,
     .size = twelveSquares,
     .position = branchingCaptures},
};

// The position on the board, people on both sides, a search without limit for the asking.
class ThinkingTest : public GameTest, public testing::WithParamInterface<Thinking> {
protected:
    ThinkingTest() {
        game.setRules(GetParam().rules);
        game.setBSize(GetParam().size);
        game.setLevel(infinite);
        place(GetParam().position, humans);
    }
};

inline std::string thinkingName(const testing::TestParamInfo<Thinking> &info) {
    return info.param.name;
}

#endif
