#include "base/qarray.h"
#include "base/qvaluelist.h"

#include <gtest/gtest.h>

#include <vector>

using List = QValueList<int>;
using Array = QArray<int>;
using Values = std::vector<int>;

template <class Container>
static Values valuesOf(const Container &values) {
    return {values.begin(), values.end()};
}

TEST(QValueList, GrowsAtBothEndsAndIsWalked) {
    List list;
    list.prepend(1);
    list += 2;
    list << 3 << 4;
    List::Iterator place = list.at(1);
    *place++ = 20;
    const List::ConstIterator seen = place;
    EXPECT_EQ(*seen, 3);
    EXPECT_EQ(valuesOf(list), (Values{1, 20, 3, 4}));
}

TEST(QValueList, RemovesByPlaceAndByValue) {
    List list;
    list << 1 << 7 << 2 << 7 << 3;
    EXPECT_EQ(*list.remove(list.at(2)), 7) << "the one that followed";
    EXPECT_EQ(list.remove(7), 2);
    EXPECT_EQ(valuesOf(list), (Values{1, 3}));
}

TEST(QValueList, KeepsTheAddressesOfItsElements) {
    List list;
    list << 1 << 2 << 3;
    const int *third = &list[2];
    list.prepend(0);
    list.remove(list.at(1));
    EXPECT_EQ(&list[2], third);
    List other;
    other.take(list, list.at(2));
    EXPECT_EQ(&other.first(), third) << "in another list";
}

// Up to four elements lie in place, more on the heap: the lengths cross over.
TEST(QArray, AddsZeroesWhenItGrows) {
    for (const unsigned length : {1U, 4U, 5U}) {
        Array array;
        array.fill(7, 9);
        array.truncate(length);
        Values wanted(length, 7);
        EXPECT_EQ(valuesOf(array), wanted);
        array.resize(9);
        wanted.resize(9);
        EXPECT_EQ(valuesOf(array), wanted) << "dropped elements come back";
    }
}

TEST(QArray, SharesNothingWithItsCopies) {
    Array array;
    array.append(1);
    Array copy = array.copy();
    EXPECT_TRUE(copy == array);
    copy.at(0) = 9;
    EXPECT_EQ(array[0], 1);
}
