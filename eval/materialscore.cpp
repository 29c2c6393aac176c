// The static evaluation of the rule engines: material, square values, protection and passages.

#include "eval/heuristic.h"
#include "eval/piecevalues.h"
#include "eval/squaresvalue.h"
#include "rules/amengine.h"

namespace {

// Sums the pieces' values, white's minus black's. `valueOf` gives a piece's value without its
// protection from its square and code; it is called in scan order, column by column.
template <class ValueOf>
int balance(IntEngine &engine, ValueOf valueOf) {
    int total = 0;
    for (int x = 0; x < engine.size; ++x) {
        for (int y = 0; y < engine.size; ++y) {
            const int code = engine.board->squares[x][y];
            if (code == 0)
                continue;
            XY square(x, y);
            const int first = engine.SafeDiag(square, 0);
            const int second = engine.SafeDiag(square, 1);
            int value = valueOf(square, code) + protectedSide * (first + second);
            if (first != 0 && second != 0)
                value += protectedBothWays;
            total += (code & codeWhite) != 0 ? value : -value;
        }
    }
    return total;
}

// The value of a man's square; black reads the table from its own side of the board.
int squareValue(const SquaresValue &table, const XY &p, int code) {
    if ((code & codeWhite) != 0)
        return table.values[p.x][p.y];
    return table.values[table.size - 1 - p.x][table.size - 1 - p.y];
}

int rowsAdvanced(const XY &p, int code, int size) {
    return (code & codeWhite) != 0 ? p.y : size - 1 - p.y;
}

// Values the kings of a position one by one, in scan order.
class KingCounter {
public:
    explicit KingCounter(const KingValues &values) : values_(values) {}
    int next(int code) {
        bool &seen = (code & codeWhite) != 0 ? whiteSeen_ : blackSeen_;
        const int value = seen ? values_.further : values_.first;
        seen = true;
        return value;
    }

private:
    KingValues values_;
    bool whiteSeen_ = false;
    bool blackSeen_ = false;
};

int shortKingPlace(const XY &p) {
    const int margin = centreMargin(XY::B_SIZE);
    const auto central = [margin](int i) { return margin <= i && i < XY::B_SIZE - margin; };
    const int place = p.inside() ? kingOffEdge : kingOnEdge;
    return central(p.x) && central(p.y) ? place + kingInCentre : place;
}

} // namespace

int IntEngine::SafeDiag(XY &p, int d) {
    const int own = (board->Get(p) & codeWhite) != 0 ? codeWhite : codeBlack;
    int safe = 0;
    for (const XY &neighbour : {p + jmpInter[d], p - jmpInter[d]})
        safe += !neighbour.onBoard() || (board->Get(neighbour) & own) != 0;
    return safe;
}

int IntEngine::materialScore(heuristic *h) {
    KingCounter kings(flyingKingValues(isGambit));
    const int step = passageStep(size);
    return staticValue(balance(*this, [&](const XY &p, int code) {
        if ((code & codeMan) == 0)
            return kings.next(code);
        int value = manValue + squareValue(*pSQV, p, code);
        if (h != nullptr && h->getPassage(p.x, p.y) != 0)
            value += step * rowsAdvanced(p, code, size);
        return value;
    }));
}

int AmEngine::materialScore(heuristic *) {
    KingCounter kings(shortKingValues);
    return staticValue(balance(*this, [&](const XY &p, int code) {
        if ((code & codeMan) == 0)
            return kings.next(code) + shortKingPlace(p);
        return manValue + squareValue(*pSQV, p, code);
    }));
}
