#include "base/qarray.h"
#include "base/qvaluelist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Up to four elements lie in place, more on the heap: the lengths cross over.
TEST(QArray, OwnsItsElementsInPlaceAndOnTheHeap) {
    for (const unsigned from : {0U, 1U, 4U, 5U, 9U}) {
        for (const unsigned to : {0U, 3U, 4U, 5U, 30U}) {
            SCOPED_TRACE(testing::Message() << from << " to " << to);
            QArray<int> a;
            for (a.append(1); a.size() <= from;)
                a.append(a[0]); // an element of itself, while it grows
            a.resize(from);
            QArray<int> b(to);
            b = a;
            EXPECT_TRUE(a == b);
            b.append(99);
            EXPECT_EQ(a.count(), from) << "a copy shares nothing";
            QArray<int> c = std::move(b);
            a = std::move(c);
            EXPECT_EQ(a.last(), 99);
            a.resize(from);
            a.resize(to);
            for (unsigned i = 0; i < to; ++i)
                EXPECT_EQ(a[i], i < from ? 1 : 0) << "dropped entries come back";
        }
    }
}

TEST(QValueList, KeepsAddressesAndSharesNothing) {
    QValueList<std::string> list;
    std::vector<std::string *> addresses;
    for (int i = 0; i < 1000; ++i)
        addresses.push_back(&list.append(std::to_string(i)));
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(&list[i], addresses[static_cast<std::size_t>(i)]);
    list.truncate(9);
    QValueList<std::string> copy = list;
    copy[1].append("x");
    copy.append("dx");
    EXPECT_EQ(list.first() + list[1] + list.last(), "018");
    copy.removeIf([](const std::string &s) { return s.back() != 'x'; });
    const QValueList<std::string> moved = std::move(copy);
    EXPECT_EQ(moved.first() + moved.last(), "1xdx");
}
