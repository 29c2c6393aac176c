#include "tools/bench/benchrun.h"
#include "tools/bench/movetimes.h"
#include "tools/bench/options.h"

#include <gtest/gtest.h>

// Searching the built-in tasks four plies deep; recorded from the straightforward search, with
// `bench -s -d 4`. A commit that changes what the search does says so and records it anew.
constexpr char recorded[] = "2c16514b28920ec5";

TEST(Bench, SearchesFindWhatTheyFoundBefore) {
    for (const bool straightforward : {true, false}) {
        QString error;
        Signature signature;
        for (BenchTask &task : readTasks(tasksText(BenchOptions(), error), error)) {
            task.depth = 4;
            signature.add(runTask(task, straightforward));
        }
        EXPECT_EQ(signature.text(), recorded) << (straightforward ? "over engines" : "on bit sets");
    }
}

TEST(Bench, MoveTimesAreToldByPercentiles) {
    Distribution times;
    for (const double time : {40, 10, 100, 20, 30, 60, 50, 80, 70, 90})
        times.add(time);
    EXPECT_EQ(times.mean(), 55);
    EXPECT_EQ(times.percentile(50), 50) << "five of ten took no longer";
    EXPECT_EQ(times.percentile(90), 90);
    EXPECT_EQ(times.percentile(100), 100);
}
