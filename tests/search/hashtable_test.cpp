#include "search/hashtable.h"

#include "search/score.h"
#include "tests/support/recordinghost.h"

#include <QString>
#include <QTextStream>

#include <gtest/gtest.h>

#include <new>

static bool outOfMemory = false;

// What the table allocates its arrays with.
void *operator new[](std::size_t bytes, const std::nothrow_t &) noexcept {
    return outOfMemory ? nullptr : ::operator new[](bytes);
}

namespace {

board withRecord(board b, int score, int horizon, int alpha = 1, int beta = 2) {
    b.hashScore = score;
    b.hashHorizon = horizon;
    b.hashAlpha = alpha;
    b.hashBeta = beta;
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
    } cases[] = {{4, false}, {3, false}, {5, true}};
    for (const auto &c : cases) {
        hashTable table(101);
        board b = withRecord(board(8), 50, 4, 10, 20);
        ASSERT_EQ(table.insert(&b), 1);
        b.squares[0][0] |= codeCanMove; // marks are not compared
        b = withRecord(b, 60, c.horizon, 11, 21);
        EXPECT_EQ(table.insert(&b), c.stored) << c.horizon;
        EXPECT_EQ(table.count, 1);
        unsigned slot = 0;
        ASSERT_EQ(table.find(&b, slot), 1);
        EXPECT_EQ(table.Tscore[slot], c.stored ? 60 : 50);
        const board &record = *table.getBoard(static_cast<int>(slot));
        EXPECT_EQ(record.hashScore, c.stored ? 60 : 50);
        EXPECT_EQ(record.hashHorizon, c.stored ? 5 : 4);
        EXPECT_EQ(record.hashAlpha, c.stored ? 11 : 10);
        EXPECT_EQ(record.hashBeta, c.stored ? 21 : 20);
    }
}

TEST(HashTable, EqualityIsOfPiecesAndSizeAlone) {
    const board b = withRecord(board(8), 50, 4);
    board other = board(8);
    other.whiteToMove = false;
    other.plyCount = 7;
    other.squares[1][1] |= codeTaken;
    EXPECT_TRUE(hashTable::areEqual(&b, &other));
    other.squares[7][7] = blackKing;
    EXPECT_FALSE(hashTable::areEqual(&b, &other));
    other.squares[7][7] = blackMan;
    other.size = 6;
    EXPECT_FALSE(hashTable::areEqual(&b, &other));
}

TEST(HashTable, ScoresOfFartherRecordsAreChosen) {
    hashTable table(101);
    const board b = withRecord(board(8), 60, 5);
    table.insert(&b);
    Score farther(9, 4), equal(9, 5), negated(9, 4), unknown(9, 4);
    table.chooseScore(&b, farther);
    table.chooseScore(&b, equal);
    table.chooseNegScore(&b, negated);
    const board other(10);
    table.chooseScore(&other, unknown);
    EXPECT_EQ(farther.value, 60);
    EXPECT_EQ(farther.depth, 5);
    EXPECT_EQ(equal.value, 9);
    EXPECT_EQ(negated.value, -60);
    EXPECT_EQ(unknown.value, 9);
}

TEST(HashTable, InsertingIntoASlot) {
    hashTable table(101);
    const board equalBounds = withRecord(board(8), 50, 4, 7, 7);
    EXPECT_EQ(table.insert(&equalBounds, 40), 0);
    EXPECT_EQ(table.count, 0);
    const board b = withRecord(board(8), 50, 4, 7, 8);
    EXPECT_EQ(table.insert(&b, 40), 1);
    EXPECT_EQ(table.insert(&b, 40), 1);
    EXPECT_EQ(table.count, 1) << "the slot was taken";
    EXPECT_EQ(table.Tscore[40], 50);
}

QString dumpOf(const hashTable &table) {
    QString text;
    QTextStream stream(&text);
    EXPECT_EQ(table.toStream(stream), 1);
    stream.flush();
    return text;
}

// For want of memory or of slots: it says so, and stores nothing.
TEST(HashTable, WithoutRoom) {
    for (const int entries : {0, 11}) {
        RecordingHost host;
        outOfMemory = entries > 0;
        hashTable table(entries);
        outOfMemory = false;
        std::vector<RecordingHost::Box> boxes;
        for (const char *array : {"Tboards", "Tscore", "Tempty"})
            boxes.push_back(
                {BoxKind::Information, "hashTable ", QString("can NOT alloc ") + array});
        EXPECT_TRUE(host.boxes == (entries > 0 ? boxes : std::vector<RecordingHost::Box>()));
        board b = withRecord(board(6), 50, 4);
        unsigned idx = 9;
        EXPECT_EQ(table.find(&b, idx), -1);
        EXPECT_EQ(table.insert(&b) + table.insert(&b, 3), 0);
        QString line;
        QTextStream stream(&line);
        b.toStream(stream);
        stream.seek(0);
        EXPECT_EQ(table.fromStream(stream, 6), 0);
        EXPECT_EQ(table.count, 0);
        EXPECT_EQ(dumpOf(table), QString("%1 0\n").arg(entries));
    }
}

TEST(HashTable, DumpAndReload) {
    hashTable table(101);
    board b = withRecord(board(6), -7, 9);
    table.insert(&b);
    b.clear(); // key 1048576 = 101 * 10381 + 95
    b = withRecord(b, 50, 4);
    table.insert(&b);
    QString dump = dumpOf(table);
    EXPECT_TRUE(dump.startsWith("101 2\n"));
    EXPECT_TRUE(dump.contains("95 50//idx,score\n6 0 1048576 50 4 " + QString(72, '-') + '\n'));
    QTextStream stream(&dump);
    hashTable reloaded(101);
    EXPECT_EQ(reloaded.fromStream(stream, 6), 0);
    EXPECT_EQ(dumpOf(reloaded), dump);
}

} // namespace
