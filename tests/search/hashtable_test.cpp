#include "search/hashtable.h"

#include "search/score.h"
#include "tests/support/drawnboard.h"
#include "tests/support/recordinghost.h"

#include <QTextStream>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr unsigned tableSize = 23; // squares up to 10 * 10 differ modulo 23

// Different positions whose probe paths begin at the same slot.
std::vector<board> sameSlot(std::size_t count) {
    std::vector<board> found;
    for (int first = 0; first < 144; first += 2) {
        for (int second = first + 2; second < 144 && found.size() < count; second += 2) {
            board b(12);
            b.clear();
            b.squares[first / 12][first % 12] = whiteMan;
            b.squares[second / 12][second % 12] = blackKing;
            if (found.empty() || b.HKey() % tableSize == found[0].HKey() % tableSize)
                found.push_back(b);
        }
    }
    return found;
}

board withRecord(board b, int score, int horizon, int alpha = 1, int beta = 2) {
    b.hashScore = score;
    b.hashHorizon = horizon;
    b.hashAlpha = alpha;
    b.hashBeta = beta;
    return b;
}

TEST(HashTable, ProbesQuadraticallyAndGivesUpAfterEleven) {
    hashTable table(tableSize);
    const std::vector<board> boards = sameSlot(12);
    ASSERT_EQ(boards.size(), 12U);
    const unsigned slot = table.HKey(&boards[0]);
    EXPECT_EQ(slot, boards[0].HKey() % tableSize);
    unsigned idx = 99;
    for (unsigned k = 0; k < 11; ++k) {
        EXPECT_EQ(table.find(&boards[k], idx), 0) << k;
        EXPECT_EQ(idx, (slot + k * k) % tableSize) << k;
        EXPECT_EQ(table.insert(&boards[k]), 1) << k;
        EXPECT_EQ(table.count, static_cast<int>(k) + 1);
        EXPECT_EQ(table.find(&boards[k], idx), 1) << k;
        EXPECT_EQ(idx, (slot + k * k) % tableSize) << k;
        EXPECT_TRUE(hashTable::areEqual(table.getBoard(static_cast<int>(idx)), &boards[k]));
    }
    EXPECT_EQ(table.find(&boards[11], idx), -1);
    EXPECT_EQ(idx, 0U);
    EXPECT_EQ(table.insert(&boards[11]), 0);
    EXPECT_EQ(table.count, 11);
    table.clear();
    EXPECT_EQ(table.count, 0);
    EXPECT_EQ(table.find(&boards[0], idx), 0);
    EXPECT_EQ(idx, slot);
}

TEST(HashTable, EqualityIsOfPiecesAndSize) {
    const board start(10);
    board other(10);
    other.squares[3][3] |= codeCanMove | codeTaken;
    other.plyCount = 9;
    other.whiteToMove = false;
    EXPECT_TRUE(hashTable::areEqual(&start, &other));
    other.squares[3][3] = whiteKing;
    EXPECT_FALSE(hashTable::areEqual(&start, &other));
    board small(6);
    small.clear();
    board empty(8);
    empty.clear();
    EXPECT_FALSE(hashTable::areEqual(&small, &empty));
}

TEST(HashTable, AFartherHorizonReplacesTheRecord) {
    hashTable table(101);
    board b = withRecord(board(8), 50, 4, 10, 20);
    ASSERT_EQ(table.insert(&b), 1);
    unsigned idx = 0;
    ASSERT_EQ(table.find(&b, idx), 1);
    const board &stored = *table.getBoard(static_cast<int>(idx));
    for (const int horizon : {4, 3}) {
        b = withRecord(b, 60, horizon, 11, 21);
        EXPECT_EQ(table.insert(&b), 0) << horizon;
        EXPECT_EQ(stored.hashScore, 50);
        EXPECT_EQ(table.Tscore[idx], 50);
    }
    b = withRecord(b, 60, 5, 11, 21);
    EXPECT_EQ(table.insert(&b), 1);
    EXPECT_EQ(table.count, 1);
    EXPECT_EQ(stored.hashScore, 60);
    EXPECT_EQ(stored.hashHorizon, 5);
    EXPECT_EQ(stored.hashAlpha, 11);
    EXPECT_EQ(stored.hashBeta, 21);
    EXPECT_EQ(table.Tscore[idx], 60);
}

TEST(HashTable, InsertionIntoAGivenSlot) {
    hashTable table(101);
    board b = withRecord(board(8), 50, 4, 7, 7);
    EXPECT_EQ(table.insert(&b, 40), 0) << "equal bounds";
    EXPECT_EQ(table.count, 0);
    b.hashBeta = 8;
    EXPECT_EQ(table.insert(&b, 40), 1);
    EXPECT_EQ(table.insert(&b, 40), 1);
    EXPECT_EQ(table.count, 1);
    EXPECT_EQ(table.Tscore[40], 50);
    EXPECT_TRUE(hashTable::areEqual(table.getBoard(40), &b));
}

TEST(HashTable, ChoosingScores) {
    hashTable table(101);
    const board b = withRecord(board(8), 50, 4);
    const board absent = withRecord(board(6), 50, 4);
    table.insert(&b);
    const struct {
        const board *position;
        int depth;
        int score;
        int negated;
    } cases[] = {{&b, 3, 50, -50}, {&b, 4, 9, 9}, {&absent, 3, 9, 9}};
    for (const auto &c : cases) {
        Score s(9, c.depth);
        Score n(9, c.depth);
        table.chooseScore(c.position, s);
        table.chooseNegScore(c.position, n);
        EXPECT_EQ(s.value, c.score);
        EXPECT_EQ(n.value, c.negated);
        EXPECT_EQ(s.depth, c.score == 9 ? c.depth : 4);
    }
}

std::string dumpOf(const hashTable &table) {
    QString text;
    QTextStream stream(&text);
    EXPECT_EQ(table.toStream(stream), 1);
    stream.flush();
    return text.toStdString();
}

TEST(HashTable, DumpAndReload) {
    hashTable table(101);
    EXPECT_EQ(dumpOf(table), "101 0\n");
    board empty(6);
    empty.clear();
    const board first = withRecord(empty, 50, 4); // key 1048576 = 101 * 10381 + 95
    const board second = withRecord(board(6), -7, 9);
    table.insert(&first);
    table.insert(&second);
    const std::string dump = dumpOf(table);
    EXPECT_EQ(dump.substr(0, 6), "101 2\n");
    EXPECT_NE(dump.find("95 50//idx,score\n6 0 1048576 50 4 " + std::string(72, '-') + "\n"),
              std::string::npos);

    hashTable reloaded(101);
    QString text = QString::fromStdString(dump);
    QTextStream stream(&text);
    testing::internal::CaptureStdout();
    EXPECT_EQ(reloaded.fromStream(stream, 6), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(reloaded.count, 2);
    EXPECT_EQ(dumpOf(reloaded), dump);
    for (const board *b : {&first, &second}) {
        Score s(0, 0);
        reloaded.chooseScore(b, s);
        EXPECT_EQ(s.value, b->hashScore);
    }
}

TEST(HashTable, FailedAllocationsAreReportedAndTheTableStaysUsable) {
    RecordingHost host;
    hashTable table(101);
    EXPECT_TRUE(host.boxes.empty());
    table.Tscore.reset(); // as if it had not been had
    const board b(8);
    unsigned idx = 5;
    EXPECT_EQ(table.find(&b, idx), -1);
    EXPECT_EQ(idx, 0U);
    EXPECT_EQ(table.insert(&b), 0);
    EXPECT_EQ(table.insert(&b, 3), 0);
    EXPECT_EQ(dumpOf(table), "101 0\n");
    table.clear();
}

} // namespace
