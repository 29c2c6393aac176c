#include "tests/support/drawnboard.h"

#include "rules/amengine.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace {

constexpr char letters[] = "....." // empty
                           "wW.."  // 5, 6
                           "bB";   // 9, 10

unsigned char codeOf(char letter) {
    const std::size_t code = std::string(letters).find(letter);
    return static_cast<unsigned char>(code == std::string::npos ? 0 : code);
}

std::string squareText(const XY &square) {
    return LegalMove::XYtoString(square).toStdString();
}

} // namespace

board drawn(const std::string &picture) {
    std::istringstream words(picture);
    std::string side;
    std::string row;
    std::vector<std::string> rows;
    words >> side;
    while (words >> row)
        rows.push_back(row);
    const int size = static_cast<int>(rows.size());
    board b(size);
    b.clear();
    b.whiteToMove = side == "w";
    XY::B_SIZE = size;
    for (int y = 0; y < size; ++y) {
        row = rows[static_cast<std::size_t>(size - 1 - y)];
        EXPECT_EQ(row.size(), rows.size()) << "in the drawing" << picture;
        for (int x = 0; x < size; ++x) {
            b.squares[x][y] = codeOf(row[static_cast<std::size_t>(x)]);
            EXPECT_TRUE(b.squares[x][y] == 0 || (x + y) % 2 == 0)
                << "piece on a light square" << picture;
        }
    }
    return b;
}

std::string picture(const board &b) {
    std::string text = b.whiteToMove ? "w\n" : "b\n";
    for (int y = b.size - 1; y >= 0; --y) {
        for (int x = 0; x < b.size; ++x)
            text += letters[b.squares[x][y] & codePiece];
        text += '\n';
    }
    return text;
}

std::string moveText(const LegalMove &m) {
    std::string text = squareText(m.from());
    for (unsigned i = 1; i < m.path.size(); ++i)
        text.append(m.isCapture() ? "x" : "-").append(squareText(m.path[i]));
    return text;
}

std::string moveText(const QValueList<LegalMove> &list) {
    std::string text;
    for (const LegalMove &m : list)
        text.append(text.empty() ? "" : " ").append(moveText(m));
    return text;
}

std::unique_ptr<IntEngine> makeEngine(Rules rules, board *b, thinkStatistic *statistic) {
    switch (rules) {
    case Rules::American:
        return std::make_unique<AmEngine>(b, 1, statistic, b->size);
    case Rules::Polish:
        return std::make_unique<PolEngine>(b, 1, statistic, b->size);
    case Rules::International:
        break;
    }
    return std::make_unique<IntEngine>(b, 1, statistic, b->size);
}

void PrintTo(const board &b, std::ostream *out) {
    *out << picture(b);
}

void PrintTo(Rules rules, std::ostream *out) {
    constexpr const char *names[] = {"international", "American", "Polish"};
    *out << names[static_cast<int>(rules)];
}
