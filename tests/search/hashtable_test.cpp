#include "search/hashtable.h"

#include "search/score.h"
#include "tests/support/drawnboard.h"
#include "tests/support/recordinghost.h"

#include <QTextStream>

#include <gtest/gtest.h>

namespace {

constexpr unsigned tableSize = 23; // squares up to 10 * 10 differ modulo 23

// Different positions whose probe paths begin at the same slot.
std::vector<board> sameSlot(std::size_t count) {
    std::vector<board> found;
    for (int i = 0; found.size() < count && i < 72 * 72; ++i) {
        board b(12);
        b.clear();
        b.squares[i / 72 / 6][i / 72 % 6 * 2] = whiteMan;
        b.squares[i % 72 / 6][i % 6 * 2] = blackKing;
        if (found.empty() || b.HKey() % tableSize == found[0].HKey() % tableSize)
            found.push_back(b);
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
    const unsigned slot = boards[0].HKey() % tableSize;
    unsigned idx = 99;
    for (unsigned k = 0; k < 11; ++k) {
        for (const int found : {0, 1}) {
            EXPECT_EQ(table.find(&boards[k], idx), found) << k;
            EXPECT_EQ(idx, (slot + k * k) % tableSize) << k;
            EXPECT_EQ(table.insert(&boards[k]), 1 - found) << "the second has no farther horizon";
        }
        EXPECT_EQ(table.count, static_cast<int>(k) + 1);
        EXPECT_TRUE(hashTable::areEqual(table.getBoard(static_cast<int>(idx)), &boards[k]));
    }
    EXPECT_EQ(table.find(&boards[11], idx), -1);
    EXPECT_EQ(idx, 0U);
    EXPECT_EQ(table.insert(&boards[11]), 0);
    table.clear();
    EXPECT_EQ(table.count, 0);
    EXPECT_EQ(table.find(&boards[0], idx), 0);
}

TEST(HashTable, RecordsAndTheirReplacement) {
    hashTable table(101);
    board b = withRecord(board(8), 50, 4, 10, 20);
    ASSERT_EQ(table.insert(&b), 1);
    b.squares[0][0] |= codeCanMove; // marks are not compared
    unsigned idx = 0;
    ASSERT_EQ(table.find(&b, idx), 1);
    for (const int horizon : {4, 3, 5}) {
        b = withRecord(b, 60, horizon, 11, 21);
        EXPECT_EQ(table.insert(&b), horizon > 4) << horizon;
        EXPECT_EQ(table.Tscore[idx], horizon > 4 ? 60 : 50);
        EXPECT_EQ(table.getBoard(static_cast<int>(idx))->hashBeta, horizon > 4 ? 21 : 20);
    }
    EXPECT_EQ(table.count, 1);
    const board absent = withRecord(board(6), 50, 4);
    const struct {
        const board *position;
        int depth, score;
    } cases[] = {{&b, 4, 60}, {&b, 5, 9}, {&absent, 3, 9}};
    for (const auto &c : cases) {
        Score s(9, c.depth);
        Score n(9, c.depth);
        table.chooseScore(c.position, s);
        table.chooseNegScore(c.position, n);
        EXPECT_EQ(s.value, c.score);
        EXPECT_EQ(n.value, c.score == 9 ? 9 : -c.score);
        EXPECT_EQ(s.depth, c.score == 9 ? c.depth : 5);
    }
    board equal = withRecord(board(8), 50, 4, 7, 7);
    EXPECT_EQ(table.insert(&equal, 40), 0) << "equal bounds";
    equal.hashBeta = 8;
    EXPECT_EQ(table.insert(&equal, 40), 1);
    EXPECT_EQ(table.Tscore[40], 50);
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
    EXPECT_EQ(reloaded.fromStream(stream, 6), 0);
    EXPECT_EQ(dumpOf(reloaded), dump);
}

TEST(HashTable, StaysUsableWithoutMemory) {
    hashTable table(101);
    table.Tscore.reset(); // as if it had not been had
    const board b(8);
    unsigned idx = 5;
    EXPECT_EQ(table.find(&b, idx), -1);
    EXPECT_EQ(idx, 0U);
    EXPECT_EQ(table.insert(&b), 0);
    EXPECT_EQ(table.insert(&b, 3), 0);
    EXPECT_EQ(dumpOf(table), "101 0\n");
}

} // namespace
