#include "base/qarray.h"
#include "base/qvaluelist.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using List = QValueList<int>;
using Array = QArray<int>;

List listOf(std::initializer_list<int> values) {
    List list;
    for (const int value : values)
        list << value;
    return list;
}

Array arrayOf(std::initializer_list<int> values) {
    Array array;
    for (const int value : values)
        array.append(value);
    return array;
}

template <class Container>
std::vector<int> valuesOf(const Container &values) {
    return {values.begin(), values.end()};
}

using Values = std::vector<int>;

} // namespace

TEST(QValueList, GrowsAtBothEnds) {
    List list;
    EXPECT_TRUE(list.isEmpty());
    list.append(3);
    list.prepend(1);
    list += 4;
    list << 5 << 6;
    EXPECT_EQ(valuesOf(list), (Values{1, 3, 4, 5, 6}));
    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(list.first(), 1);
    EXPECT_EQ(list.last(), 6);
    EXPECT_EQ(list[2], 4);
    EXPECT_EQ(*list.at(3), 5);
}

TEST(QValueList, IsWalkedInBothDirections) {
    List list = listOf({1, 2, 3});
    List::Iterator place = list.begin();
    EXPECT_EQ(*place++, 1);
    EXPECT_EQ(*++place, 3);
    EXPECT_EQ(*place--, 3);
    *place = 20;
    const List::ConstIterator seen = place;
    EXPECT_EQ(*seen, 20);
    EXPECT_EQ(++(++place), list.end());
}

TEST(QValueList, RemovesByPlaceAndByValue) {
    List list = listOf({1, 7, 2, 7, 3});
    EXPECT_EQ(*list.remove(list.at(2)), 7) << "the one that followed";
    EXPECT_EQ(list.remove(7), 2);
    EXPECT_EQ(valuesOf(list), (Values{1, 3}));
    list.removeIf([](int value) { return value < 3; });
    EXPECT_EQ(valuesOf(list), Values{3});
    list.clear();
    EXPECT_TRUE(list.isEmpty());
}

TEST(QValueList, KeepsTheAddressesOfItsElements) {
    List list = listOf({1, 2, 3});
    const int *third = &list[2];
    list.prepend(0);
    for (int i = 0; i < 1000; ++i)
        list.append(i);
    list.remove(list.at(1));
    EXPECT_EQ(&list[2], third);
    List other;
    other.take(list, list.at(2));
    EXPECT_EQ(&other.first(), third) << "in another list";
}

TEST(QValueList, SharesNothingWithItsCopies) {
    const List list = listOf({1, 2});
    List copy = list;
    copy[0] = 10;
    copy.append(3);
    EXPECT_EQ(valuesOf(list), (Values{1, 2}));
    List other;
    other.swap(copy);
    EXPECT_EQ(valuesOf(other), (Values{10, 2, 3}));
    EXPECT_TRUE(copy.isEmpty());
}

// Up to four elements lie in place, more on the heap: the lengths cross over.
TEST(QArray, AddsZeroesWhenItGrows) {
    for (const unsigned length : {0U, 1U, 4U, 5U, 9U}) {
        SCOPED_TRACE(length);
        Array array;
        array.fill(7, 9);
        array.truncate(length);
        Values wanted(length, 7);
        EXPECT_EQ(valuesOf(array), wanted);
        array.resize(30);
        wanted.resize(30);
        EXPECT_EQ(valuesOf(array), wanted) << "dropped elements come back";
    }
}

TEST(QArray, IsReadAndWrittenByNumber) {
    Array array = arrayOf({1, 2});
    array.at(0) = 5;
    array[1] = 6;
    array.append(array[0]);
    EXPECT_EQ(valuesOf(array), (Values{5, 6, 5}));
    EXPECT_EQ(array.size(), 3U);
    EXPECT_EQ(array.count(), 3U);
    EXPECT_EQ(array.last(), 5);
    EXPECT_EQ(array.data(), array.begin());
    array.truncate(9);
    EXPECT_EQ(array.count(), 3U) << "truncated beyond its end";
    array.fill(8);
    EXPECT_EQ(valuesOf(array), (Values{8, 8, 8}));
}

TEST(QArray, SharesNothingWithItsCopies) {
    for (const Array &array : {arrayOf({1, 2}), arrayOf({1, 2, 3, 4, 5, 6})}) {
        SCOPED_TRACE(array.count());
        Array copy = array.copy();
        EXPECT_TRUE(copy == array);
        copy[0] = 9;
        EXPECT_FALSE(copy == array);
        EXPECT_EQ(array.at(0), 1);
        copy = array;
        const Array moved = std::move(copy);
        EXPECT_TRUE(moved == array);
    }
}
