#include "tools/bench/benchrun.h"
#include "tools/common/positionline.h"

#include <gtest/gtest.h>

namespace {

// Searching the built-in tasks four plies deep; recorded from the straightforward search, with
// `bench -s -d 4`. A commit that changes what the search does says so and records it anew.
constexpr char recorded[] = "2c16514b28920ec5";

std::string signatureOf(bool straightforward) {
    QString error;
    Signature signature;
    for (BenchTask &task : readTasks(builtInTasks(), error)) {
        task.depth = 4;
        signature.add(runTask(task, straightforward));
    }
    EXPECT_EQ(error, "");
    return signature.text().toStdString();
}

TEST(Bench, SearchesFindWhatTheyFoundBefore) {
    EXPECT_EQ(signatureOf(true), recorded);
    EXPECT_EQ(signatureOf(false), recorded) << "with bit sets";
    EXPECT_EQ(signatureOf(false), recorded) << "with bit sets, once more";
}

const QString empty(72, '-');

TEST(Bench, BadTasksAreNamedByTheirLine) {
    const QString good = "a polish giveaway 3 6 1 0 0 -1 " + empty + "\n";
    const struct {
        QString task, error;
    } cases[] = {
        {good, ""},
        {"a polish normal", "line 4: expected a name, the rules, normal or giveaway, a depth and a "
                            "position"},
        {"a dutch normal 3 6", "line 4: unknown rules \"dutch\""},
        {"a polish lose 3 6", "line 4: expected normal or giveaway, found \"lose\""},
        {"a polish normal 0 6", "line 4: the depth must be 1 to 99"},
        {"a polish normal 100 6", "line 4: the depth must be 1 to 99"},
        {"a polish normal 3 7 1 0 0 -1 --", "line 4: the size must be 6, 8, 10 or 12, not \"7\""}};
    for (const auto &c : cases) {
        QString error;
        const QList<BenchTask> tasks =
            readTasks("# a comment\n\n" + good + c.task + " # and more\n" + good, error);
        EXPECT_EQ(error, c.error);
        ASSERT_EQ(tasks.size(), c.error.isEmpty() ? 3 : 1);
        EXPECT_TRUE(tasks[0].giveAway && tasks[0].rules == RuleSet::Polish && tasks[0].depth == 3);
    }
}

TEST(PositionLine, IsChecked) {
    const struct {
        QString line, error;
    } cases[] = {{"6 3 0 0 -1 bK" + empty.mid(2), ""},
                 {"  6  3 0 0 -1  bK" + empty.mid(2) + "\n", ""},
                 {"", "a position has 6 fields (size, ply, key, score, horizon, squares), not 0"},
                 {"6 3 0 0 -1 " + empty + " x",
                  "a position has 6 fields (size, ply, key, score, horizon, squares), not 7"},
                 {"x 3 0 0 -1 " + empty, "the size must be 6, 8, 10 or 12, not \"x\""},
                 {"6 -1 0 0 -1 " + empty, "the ply counter is not a number from 0 up"},
                 {"6 3 -1 0 -1 " + empty, "the key is not a number"},
                 {"6 3 0 0 far " + empty, "score and horizon must be numbers"},
                 {"6 3 0 0 -1 " + empty.mid(1), "expected 72 letters for 36 squares, found 71"},
                 {"6 3 0 0 -1 " + empty.mid(2) + "km", "unknown square \"km\" at (5,5)"},
                 {"6 3 0 0 -1 --wm" + empty.mid(4), "a piece on the light square (0,1)"}};
    for (const auto &c : cases) {
        QString error;
        const std::optional<board> b = readPositionLine(c.line, error);
        EXPECT_EQ(error, c.error);
        ASSERT_EQ(b.has_value(), c.error.isEmpty());
        EXPECT_TRUE(!b || (b->Get({0, 0}) == blackKing && b->plyCount == 3 && !b->whiteToMove));
    }
}

} // namespace
