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

} // namespace
