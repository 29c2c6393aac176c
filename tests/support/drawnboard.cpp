#include "tests/support/drawnboard.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string_view>

static constexpr std::string_view letters = ".....wW..bB"; // by square code

board drawn(const std::string &picture) {
    std::istringstream words(picture);
    std::string side;
    std::string row;
    std::string rows;
    words >> side;
    int size = 0;
    for (; words >> row; ++size)
        rows.insert(0, row);
    board b(size);
    b.clear();
    b.whiteToMove = side == "w";
    XY::B_SIZE = size;
    EXPECT_EQ(rows.size(), static_cast<std::size_t>(size * size)) << picture;
    for (int i = 0; i < size * size; ++i) {
        const std::size_t code = letters.find(rows.at(static_cast<std::size_t>(i)));
        EXPECT_TRUE(code == 0 || (code <= blackKing && (i / size + i % size) % 2 == 0)) << picture;
        b.squares[i % size][i / size] = static_cast<unsigned char>(code);
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
    std::string text;
    for (const XY &square : m.path) {
        text.append(text.empty() ? "" : m.isCapture() ? "x" : "-");
        text.append(LegalMove::XYtoString(square).toStdString());
    }
    return text;
}

std::string moveText(const QValueList<LegalMove> &list) {
    std::string text;
    for (const LegalMove &m : list)
        text.append(text.empty() ? "" : " ").append(moveText(m));
    return text;
}
