#include "search/hashtable.h"

#include "search/score.h"
#include "tests/support/recordinghost.h"

#include <gtest/gtest.h>

#include <new>

static bool outOfMemory = false;

// What the table allocates its arrays with.
void *operator new[](std::size_t bytes, const std::nothrow_t &) noexcept {
    return outOfMemory ? nullptr : ::operator new[](bytes);
}

namespace {

// The start position with a record whose bounds are its score and one more.
board withRecord(int score, int horizon) {
    board b(8);
    b.hashScore = b.hashAlpha = score;
    b.hashBeta = score + 1;
    b.hashHorizon = horizon;
    return b;
}

// Empty boards have one key whatever their size, but they are different positions.
TEST(HashTable, ProbesQuadraticallyAndGivesUpAfterEleven) {
    constexpr unsigned tableSize = 23; // squares up to 10 * 10 differ modulo 23
    hashTable table(tableSize);
    board b(12);
    b.clear();
    const unsigned slot = b.HKey() % tableSize;
    unsigned idx = 99;
    for (unsigned k = 0; k < 11; ++k) {
        b.size = static_cast<int>(k) + 1;
        for (const int found : {0, 1}) {
            EXPECT_EQ(table.find(&b, idx), found) << k;
            EXPECT_EQ(idx, (slot + k * k) % tableSize) << k;
            EXPECT_EQ(table.insert(&b), 1 - found) << "the second has no farther horizon";
        }
        EXPECT_EQ(table.count, b.size);
    }
    b.size = 12;
    EXPECT_EQ(table.find(&b, idx), -1);
    EXPECT_EQ(table.insert(&b), 0);
    table.clear();
    EXPECT_EQ(table.count, 0);
    EXPECT_EQ(table.find(&b, idx), 0);
}

TEST(HashTable, ARecordGivesWayToAFartherOneOnly) {
    const struct {
        int horizon;
        bool stored;
    } cases[] = {{3, false}, {4, false}, {5, true}};
    for (const auto &c : cases) {
        hashTable table(101);
        board b = withRecord(50, 4);
        ASSERT_EQ(table.insert(&b), 1);
        b = withRecord(60, c.horizon);
        b.squares[0][0] |= codeCanMove; // marks are not compared
        EXPECT_EQ(table.insert(&b), c.stored) << c.horizon;
        EXPECT_EQ(table.count, 1);
        unsigned slot = 0;
        ASSERT_EQ(table.find(&b, slot), 1);
        EXPECT_EQ(table.Tscore[slot], c.stored ? 60 : 50);
        const board &record = *table.getBoard(static_cast<int>(slot));
        EXPECT_EQ(record.hashScore, c.stored ? 60 : 50);
        EXPECT_EQ(record.hashHorizon, c.stored ? 5 : 4);
        EXPECT_EQ(record.hashBeta, c.stored ? 61 : 51);
    }
}

TEST(HashTable, WithoutMemoryItSaysSoAndStoresNothing) {
    RecordingHost host;
    outOfMemory = true;
    hashTable table(11);
    outOfMemory = false;
    EXPECT_EQ(host.boxes, "information: hashTable : can NOT alloc Tboards [Ok]\n"
                          "information: hashTable : can NOT alloc Tscore [Ok]\n"
                          "information: hashTable : can NOT alloc Tempty [Ok]\n");
    const board b = withRecord(50, 4);
    EXPECT_EQ(table.insert(&b), 0);
    EXPECT_EQ(table.insert(&b, 3), 0);
    EXPECT_EQ(table.count, 0);
}

// A slot that is given is used whatever is in it, but for records of an empty window.
TEST(HashTable, InsertingIntoASlot) {
    hashTable table(101);
    board b(6);
    b.clear();
    b.hashScore = 50;
    EXPECT_EQ(table.insert(&b, 95), 0);
    b.hashAlpha = 1;
    EXPECT_EQ(table.insert(&b, 95), 1);
    EXPECT_EQ(table.insert(&b, 95), 1);
    EXPECT_FALSE(table.Tempty[95]);
}

} // namespace
