#include "tests/support/drawnboard.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <string_view>

static constexpr std::string_view letters = ".....wW..bB"; // by square code

board drawn(const std::string &picture) {
    QStringList rows = QString::fromStdString(picture).simplified().split(' ');
    const bool whiteToMove = rows.takeFirst() == "w";
    const int size = XY::B_SIZE = static_cast<int>(rows.size());
    board b(size);
    b.clear();
    b.whiteToMove = whiteToMove;
    for (int i = 0; i < size * size; ++i) {
        const int x = i % size;
        const int y = i / size;
        const std::size_t code = letters.find(rows[size - 1 - y].toStdString().at(x));
        EXPECT_TRUE(code == 0 || (code <= blackKing && (x + y) % 2 == 0)) << picture;
        b.squares[x][y] = static_cast<unsigned char>(code);
    }
    return b;
}

char letterOf(int code) {
    const auto piece = static_cast<std::size_t>(code & codePiece);
    return (code & codeTaken) != 0 ? 'x' : piece < letters.size() ? letters[piece] : '?';
}

std::string drawing(int size, const std::function<char(int x, int y)> &letterAt) {
    std::string rows;
    for (int y = size - 1; y >= 0; --y, rows += '\n') {
        for (int x = 0; x < size; ++x)
            rows += letterAt(x, y);
    }
    return rows;
}

std::string picture(const board &b) {
    return (b.whiteToMove ? "w\n" : "b\n") +
           drawing(b.size, [&b](int x, int y) { return letterOf(b.squares[x][y]); });
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
