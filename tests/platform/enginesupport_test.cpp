// The containers, the clock and the host that the engine stands on.

#include "platform/elapsedtime.h"
#include "platform/qarray.h"
#include "platform/qvaluelist.h"
#include "tests/support/recordinghost.h"

#include <gtest/gtest.h>

#include <climits>
#include <ctime>
#include <string>
#include <vector>

namespace {

// Up to four elements lie in place, more on the heap: every length crosses over somewhere.
QArray<int> upTo(unsigned n) {
    QArray<int> a;
    for (unsigned i = 0; i < n; ++i)
        a.append(static_cast<int>(i) + 1);
    return a;
}

TEST(QArray, LengthsInPlaceAndOnTheHeap) {
    for (const unsigned from : {0U, 1U, 4U, 5U, 9U}) {
        for (const unsigned to : {0U, 3U, 4U, 5U, 8U, 30U}) {
            QArray<int> a = upTo(from);
            a.resize(to);
            ASSERT_EQ(a.size(), to);
            EXPECT_EQ(a.isEmpty(), to == 0);
            for (unsigned i = 0; i < to; ++i)
                EXPECT_EQ(a[i], i < from ? static_cast<int>(i) + 1 : 0) << from << " to " << to;
            a.resize(0);
            a.resize(to);
            for (const int value : a)
                EXPECT_EQ(value, 0) << "dropped entries come back";
        }
    }
}

TEST(QArray, CopiesAndMovesShareNothing) {
    for (const unsigned n : {0U, 4U, 5U, 20U}) {
        for (const unsigned other : {0U, 2U, 12U}) {
            QArray<int> a = upTo(n);
            QArray<int> b = upTo(other);
            b = a;
            EXPECT_TRUE(a == b);
            b.append(99);
            EXPECT_FALSE(a == b);
            EXPECT_EQ(a.count(), n);
            QArray<int> c = std::move(b);
            EXPECT_EQ(c.last(), 99);
            b = upTo(other);
            b = std::move(c);
            EXPECT_EQ(b.size(), n + 1);
        }
    }
    QArray<int> a = upTo(4);
    a.append(a[0]); // an element of itself, while it grows
    EXPECT_EQ(a.last(), 1);
    EXPECT_EQ(QArray<int>(3).at(2), 0);
}

std::string text(const QValueList<std::string> &list) {
    std::string all;
    for (const std::string &s : list)
        all.append(s).append(" ");
    return all;
}

TEST(QValueList, AddressesStayWhileTheListGrowsAndShrinksBehindThem) {
    QValueList<std::string> list;
    std::vector<std::string *> addresses;
    for (int i = 0; i < 1000; ++i)
        addresses.push_back(&list.append(std::to_string(i)));
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(&list[i], addresses[static_cast<std::size_t>(i)]);
        EXPECT_EQ(list[i], std::to_string(i));
    }
    list.truncate(9);
    EXPECT_EQ(list.count(), 9);
    EXPECT_EQ(&list.last(), addresses[8]);
    list.append("new");
    EXPECT_EQ(list.last(), "new");
    EXPECT_EQ(list.first(), "0");
    list.clear();
    EXPECT_TRUE(list.isEmpty());
}

TEST(QValueList, CopiesShareNothing) {
    QValueList<std::string> list;
    for (const char *s : {"a", "b", "c"})
        list.append(s);
    QValueList<std::string> copy = list;
    copy[1] = "x";
    copy.append("d");
    EXPECT_EQ(text(list), "a b c ");
    EXPECT_EQ(text(copy), "a x c d ");
    list = copy;
    EXPECT_EQ(text(list), "a x c d ");
    QValueList<std::string> moved = std::move(copy);
    EXPECT_EQ(text(moved), "a x c d ");
    moved.removeIf([](const std::string &s) { return s == "a" || s == "c"; });
    EXPECT_EQ(text(moved), "x d ");
}

TEST(ElapsedTime, CountsOnTheHostsClock) {
    RecordingHost host;
    ElapsedTime timer;
    EXPECT_TRUE(timer.isNull());
    EXPECT_EQ(timer.elapsed(), 0);
    timer.start();
    EXPECT_FALSE(timer.isNull());
    EXPECT_EQ(timer.elapsed(), 0);
    host.now += 1234;
    EXPECT_EQ(timer.elapsed(), 1234);
    timer.start();
    host.now -= 5; // a clock set back
    EXPECT_EQ(timer.elapsed(), 0);
    host.now += qint64{INT_MAX} + 100;
    EXPECT_EQ(timer.elapsed(), INT_MAX);
}

TEST(Host, WithoutADisplayMessagesGoToStandardError) {
    testing::internal::CaptureStderr();
    EXPECT_TRUE(host().messageBox(BoxKind::Critical, "title", "some text", BoxButtons::OkCancel));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "title: some text\n");
    const qint64 before = host().clockMs();
    host().pause(2000);
    EXPECT_GE(host().clockMs(), before + 1);
    EXPECT_NEAR(static_cast<double>(host().seed()), static_cast<double>(std::time(nullptr)), 2);
    host().processEvents();
    host().beep();
}

} // namespace
