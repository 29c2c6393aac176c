#include "tools/monkey/rulebook.h"

#include "app/choices.h"
#include "rules/legalmove.h"
#include "search/abstractengine.h"

#include <QStringList>

#include <memory>
#include <utility>

Move moveOf(const LegalMove &m) {
    return {{m.path.begin(), m.path.end()}, {m.taken.begin(), m.taken.end()}};
}

std::vector<Move> legalMoves(int rules, const board &position) {
    board copy = position;
    std::vector<Move> moves;
    // The window may not have set its size yet, or be about to change it.
    const int windowSize = std::exchange(XY::B_SIZE, position.size);
    const std::unique_ptr<AbstractEngine> engine(
        newEngine(rulesChoice(rules).value_or(fallbackRules), &copy, 1, nullptr, position.size));
    engine->FillMoveList();
    for (const LegalMove &m : engine->moveList)
        moves.push_back(moveOf(m));
    XY::B_SIZE = windowSize;
    return moves;
}

board duringMove(board position, const Move &m) {
    position.whiteToMove = !position.whiteToMove;
    for (const XY &square : m.taken)
        position.Get(square) |= codeTaken;
    return position;
}

board afterMove(board position, const Move &m) {
    unsigned char piece = position.Get(m.from());
    const int crowningRow = (piece & codeWhite) != 0 ? position.size - 1 : 0;
    if (m.to().y == crowningRow)
        piece = (piece & codeWhite) != 0 ? whiteKing : blackKing;
    position.Get(m.from()) = 0;
    for (const XY &square : m.taken)
        position.Get(square) = 0;
    position.Get(m.to()) = piece;
    position.whiteToMove = !position.whiteToMove;
    return position;
}

bool samePosition(const board &a, const board &b) {
    if (a.size != b.size || a.whiteToMove != b.whiteToMove)
        return false;
    constexpr int compared = codePiece | codeTaken;
    for (int x = 0; x < maxBoardSize; ++x) {
        for (int y = 0; y < maxBoardSize; ++y) {
            if ((a.squares[x][y] & compared) != (b.squares[x][y] & compared))
                return false;
        }
    }
    return true;
}

QString drawing(const board &position) {
    QString text = position.whiteToMove ? "white to move\n" : "black to move\n";
    for (int y = position.size - 1; y >= 0; --y, text += '\n') {
        for (int x = 0; x < position.size; ++x) {
            const int code = position.squares[x][y];
            const char *letters = (code & codeKing) != 0 ? "WB" : "wb";
            if ((code & codePiece) == 0)
                text += (x + y) % 2 == 0 ? '.' : ' ';
            else
                text += (code & codeTaken) != 0 ? 'x' : letters[(code & codeBlack) != 0];
        }
    }
    return text;
}

QString notation(const std::vector<XY> &squares) {
    QStringList parts;
    for (const XY &square : squares)
        parts << LegalMove::XYtoString(square);
    return parts.join(' ');
}
