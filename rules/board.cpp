#include "rules/board.h"

#include <QChar>
#include <QTextStream>

#include <cstdio>
#include <cstring>

namespace {

QChar colourLetter(unsigned char code) {
    if ((code & codeBlack) != 0)
        return 'b';
    return (code & codeWhite) != 0 ? 'w' : '-';
}

QChar kindLetter(unsigned char code) {
    if ((code & codeMan) != 0)
        return 'm';
    return (code & codeKing) != 0 ? 'K' : '-';
}

unsigned char codeOf(QChar colour, QChar kind) {
    const int kindBits = kind == 'm' ? codeMan : kind == 'K' ? codeKing : 0;
    const int colourBits = colour == 'w' ? codeWhite : colour == 'b' ? codeBlack : 0;
    return static_cast<unsigned char>(kindBits + colourBits);
}

QChar nextLetter(QTextStream &stream) {
    stream.skipWhiteSpace();
    QChar letter;
    stream >> letter;
    return letter;
}

} // namespace

board::board(int n) {
    startPos(n);
    hashScore = 0;
    hashBeta = 777;
    hashAlpha = 777;
    hashHorizon = -1;
}

void board::startPos(int n) {
    whiteToMove = true;
    plyCount = 0;
    size = n;
    clear();
    const int rows = n / 2 - 1;
    for (int x = 0; x < n; ++x) {
        for (int y = 0; y < n; ++y) {
            if ((x + y) % 2 != 0)
                continue;
            if (y < rows)
                squares[x][y] = whiteMan;
            else if (y >= n - rows)
                squares[x][y] = blackMan;
        }
    }
}

void board::clear() {
    std::memset(squares, 0, sizeof squares);
}

void board::countPieces(int &white, int &black) const {
    white = 0;
    black = 0;
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y) {
            white += (squares[x][y] & codeWhite) != 0;
            black += (squares[x][y] & codeBlack) != 0;
        }
    }
}

int board::countOccupied() const {
    int occupied = 0;
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y)
            occupied += squares[x][y] != 0;
    }
    return occupied;
}

int board::StaringNumber() const {
    return size / 2 * (size / 2 - 1) * 2;
}

bool board::isGambit() const {
    return countOccupied() <= StaringNumber() * 5 / 8;
}

unsigned int board::HKey() const {
    unsigned int key = whiteToMove ? 1 : 0;
    for (const auto &column : squares) {
        for (const unsigned char code : column) {
            key = (key << 1) ^ (code & codePiece);
            key += key >> 31;
        }
    }
    return key;
}

bool board::toStream(QTextStream &stream) const {
    stream << size << ' ' << plyCount << ' ' << HKey() << ' ' << hashScore << ' ' << hashHorizon
           << ' ';
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y)
            stream << colourLetter(squares[x][y]) << kindLetter(squares[x][y]);
    }
    stream << '\n';
    return true;
}

bool board::fromStream(QTextStream &stream) {
    int storedSize = 0;
    unsigned int storedKey = 0;
    stream >> storedSize >> plyCount >> storedKey >> hashScore >> hashHorizon;
    whiteToMove = plyCount % 2 == 0;
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y) {
            const QChar colour = nextLetter(stream);
            const QChar kind = nextLetter(stream);
            squares[x][y] = codeOf(colour, kind);
        }
    }
    if (HKey() != storedKey)
        std::fputs("zle \n", stdout);
    return true;
}
