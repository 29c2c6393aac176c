#include "tools/bench/benchrun.h"

#include <gtest/gtest.h>

namespace {

// Searching the built-in tasks four plies deep; recorded from the straightforward search, with
// `bench -s -d 4`. A commit that changes what the search does says so and records it anew.
constexpr char recorded[] = "2c16514b28920ec5";

TEST(Bench, SearchesFindWhatTheyFoundBefore) {
    for (const bool straightforward : {true, false}) {
        QString error;
        Signature signature;
        for (BenchTask &task : readTasks(builtInTasks(), error)) {
            task.depth = 4;
            signature.add(runTask(task, straightforward));
        }
        EXPECT_EQ(signature.text(), recorded) << (straightforward ? "over engines" : "on bit sets");
    }
}

TEST(Bench, BadTasksAreNamedByTheirLine) {
    const QString empty(72, '-'), task = "a polish giveaway 3 ";
    const QString good = task + "6  3 0 0 -1  bK" + empty.mid(2) + '\n';
    const QString fields =
        "a position has 6 fields (size, ply, key, score, horizon, squares), not ";
    const QString cases[][2] = {
        {good, ""},
        {"a polish normal",
         "expected a name, the rules, normal or giveaway, a depth and a position"},
        {"a dutch normal 3 6", "unknown rules \"dutch\""},
        {"a polish lose 3 6", "expected normal or giveaway, found \"lose\""},
        {"a polish normal 0 6", "the depth must be 1 to 99"},
        {"a polish normal 100 6", "the depth must be 1 to 99"},
        {task + "6", fields + "1"},
        {task + "6 3 0 0 -1 " + empty + " x", fields + "7"},
        {task + "7 3 0 0 -1 --", "the size must be 6, 8, 10 or 12, not \"7\""},
        {task + "6 -1 0 0 -1 " + empty, "the ply counter is not a number from 0 up"},
        {task + "6 3 -1 0 -1 " + empty, "the key is not a number"},
        {task + "6 3 0 0 far " + empty, "score and horizon must be numbers"},
        {task + "6 3 0 0 -1 " + empty.mid(1), "expected 72 letters for 36 squares, found 71"},
        {task + "6 3 0 0 -1 " + empty.mid(2) + "km", "unknown square \"km\" at (5,5)"},
        {task + "6 3 0 0 -1 --wm" + empty.mid(4), "a piece on the light square (0,1)"}};
    for (const auto &[line, fault] : cases) {
        QString error;
        const auto tasks = readTasks("# a comment\n\n" + good + line + " # more\n" + good, error);
        EXPECT_EQ(error, fault == "" ? "" : "line 4: " + fault);
        ASSERT_EQ(tasks.size(), fault == "" ? 3 : 1);
        EXPECT_TRUE(tasks[0].giveAway && tasks[0].rules == RuleSet::Polish && tasks[0].depth == 3);
        const board &b = tasks[0].position;
        EXPECT_TRUE(b.squares[0][0] == blackKing && b.plyCount == 3 && !b.whiteToMove);
    }
}

} // namespace
