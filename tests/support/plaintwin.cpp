#include "tests/support/plaintwin.h"

#include <algorithm>
#include <functional>

namespace plain {

namespace {

constexpr int directions[4][2] = {{1, 1}, {1, -1}, {-1, -1}, {-1, 1}};
constexpr int longestSequence = 24;

bool onBoard(const board &b, XY p) {
    return 0 <= p.x && p.x < b.size && 0 <= p.y && p.y < b.size;
}
bool onEdge(const board &b, XY p) {
    return p.x == 0 || p.y == 0 || p.x == b.size - 1 || p.y == b.size - 1;
}
XY step(XY p, int d, int n = 1) {
    return {p.x + n * directions[d][0], p.y + n * directions[d][1]};
}
int at(const board &b, XY p) {
    return b.squares[p.x][p.y];
}
bool isEmpty(const board &b, XY p) {
    return onBoard(b, p) && at(b, p) == 0;
}
bool isMan(int code) {
    return code % 2 == 1;
}
bool isWhite(int code) {
    return code / 4 % 2 == 1;
}
bool isOwn(const board &b, XY p) {
    return at(b, p) % 16 != 0 && isWhite(at(b, p)) == b.whiteToMove;
}
bool isTarget(const board &b, XY p) {
    return onBoard(b, p) && at(b, p) % 16 != 0 && at(b, p) / 16 % 2 == 0 && !isOwn(b, p);
}

// The position in the middle of a capture: the piece stands on `to`, the jumped one is marked.
board jumped(board b, XY from, XY over, XY to) {
    const int piece = at(b, from);
    b.squares[from.x][from.y] = 0;
    b.squares[over.x][over.y] = static_cast<unsigned char>(at(b, over) + 16);
    b.squares[to.x][to.y] = static_cast<unsigned char>(piece);
    return b;
}

Move extended(Move m, XY over, XY to) {
    m.taken.push_back(over);
    m.path.push_back(to);
    return m;
}

// Jumps over the neighbour, by the allowed directions; a sequence is finished when it cannot go on.
void shortCaptures(const board &b, XY p, const std::vector<int> &allowed, const Move &sofar,
                   std::vector<Move> &out) {
    if (sofar.taken.size() > longestSequence)
        return;
    bool any = false;
    for (const int d : allowed) {
        if (!isTarget(b, step(p, d)) || !isEmpty(b, step(p, d, 2)))
            continue;
        any = true;
        shortCaptures(jumped(b, p, step(p, d), step(p, d, 2)), step(p, d, 2), allowed,
                      extended(sofar, step(p, d), step(p, d, 2)), out);
    }
    if (!any && !sofar.taken.empty())
        out.push_back(sofar);
}

// Jumps over a distant piece to any free square behind it; squares from which the capture goes on
// exclude the others behind the same piece.
bool flyingCaptures(const board &b, XY p, const Move &sofar, std::vector<Move> &out) {
    bool any = false;
    for (int d = 0; d < 4; ++d) {
        XY over = step(p, d);
        while (isEmpty(b, over))
            over = step(over, d);
        if (!isTarget(b, over))
            continue;
        bool goesOn = false;
        std::vector<Move> stops;
        for (XY to = step(over, d); isEmpty(b, to); to = step(to, d)) {
            stops.push_back(extended(sofar, over, to));
            if (flyingCaptures(jumped(b, p, over, to), to, stops.back(), out))
                goesOn = true;
        }
        any = any || !stops.empty();
        if (!goesOn)
            out.insert(out.end(), stops.begin(), stops.end());
    }
    return any;
}

void ownPieces(const board &b, const std::function<void(XY, int)> &visit) {
    for (int x = 0; x < b.size; ++x) {
        for (int y = 0; y < b.size; ++y) {
            if (isOwn(b, {x, y}))
                visit({x, y}, at(b, {x, y}));
        }
    }
}

std::vector<Move> captures(Rules rules, const board &b) {
    const std::vector<int> all = {0, 1, 2, 3};
    const std::vector<int> forward = b.whiteToMove ? std::vector{0, 3} : std::vector{1, 2};
    std::vector<Move> list;
    ownPieces(b, [&](XY p, int code) {
        if (!isMan(code) && rules != Rules::American)
            flyingCaptures(b, p, {{p}, {}}, list);
        else if (isMan(code) && rules == Rules::American)
            shortCaptures(b, p, forward, {{p}, {}}, list);
        else
            shortCaptures(b, p, all, {{p}, {}}, list);
    });
    if (rules == Rules::International) {
        std::size_t most = 0;
        for (const Move &m : list)
            most = std::max(most, m.taken.size());
        std::erase_if(list, [most](const Move &m) { return m.taken.size() < most; });
    }
    return list;
}

int squareValue(int n, bool gambit, int x, int y) {
    const int guards = (n / 2 - 2 + 1) / 2 * 2;
    if (y == 0 && x % 2 == 0 && x >= guards && x < n - guards)
        return gambit ? 40 : 70;
    if (x == 0 && y == n - 4)
        return 50;
    if (x == 0 && y == n - 2)
        return 100;
    if (x == y && x == n / 2 - 1)
        return 80;
    if (x == y && x == n / 2)
        return gambit ? 80 : 60;
    if (x >= 2 && x <= n - 3 && y == n / 2)
        return gambit ? 50 : 40;
    if (x >= 2 && x <= n - 3 && y == n / 2 - 1)
        return 50;
    const int centre = x >= n / 4 && x < n - n / 4 ? 30 : 0;
    if (gambit)
        return centre + 2 * y;
    if (y >= n / 2)
        return -10;
    return y == 0 ? 10 : centre;
}

int protection(const board &b, XY p) {
    int sides[2] = {0, 0};
    for (int d = 0; d < 4; ++d) {
        const XY q = step(p, d);
        if (!onBoard(b, q) || (at(b, q) != 0 && isWhite(at(b, q)) == isWhite(at(b, p))))
            ++sides[d % 2];
    }
    return 5 * (sides[0] + sides[1]) + (sides[0] > 0 && sides[1] > 0 ? 5 : 0);
}

int manValue(Rules rules, const board &b, XY p, bool gambit, const Analysis *passages) {
    const int n = b.size;
    const bool white = isWhite(at(b, p));
    int points = 1000 + (white ? squareValue(n, gambit, p.x, p.y)
                               : squareValue(n, gambit, n - 1 - p.x, n - 1 - p.y));
    if (rules != Rules::American && passages != nullptr && passages->passage[p.x][p.y] != 0)
        points += 2 * (1000 / n) / 3 * (white ? p.y : n - 1 - p.y);
    return points;
}

int kingValue(Rules rules, const board &b, XY p, bool gambit, bool first) {
    if (rules != Rules::American)
        return !first ? 2100 : gambit ? 3200 : 2800;
    const int margin = b.size / 2 - 2;
    const bool central = std::min(p.x, p.y) >= margin && std::max(p.x, p.y) < b.size - margin;
    return (first ? 1900 : 1800) + (central ? 10 : 0) + (onEdge(b, p) ? -100 : 10);
}

// The squares that each side has reached so far, and the inner squares next to them.
struct Flood {
    const board &b;
    Analysis &a;
    bool controlled[2][12][12] = {};

    void claim(XY p, bool white, int reach) {
        a.reach[p.x][p.y] = reach;
        a.owner[p.x][p.y] = white ? 4 : 8;
        for (int d = 0; d < 4; ++d) {
            const XY q = step(p, d);
            if (onBoard(b, q) && !onEdge(b, q))
                controlled[white][q.x][q.y] = true;
        }
    }
    void occupy() {
        for (int x = 0; x < b.size; ++x) {
            for (int y = 0; y < b.size; ++y) {
                if (at(b, {x, y}) != 0)
                    claim({x, y}, isWhite(at(b, {x, y})), 1);
            }
        }
    }
    // One row further from every square reached at `now`; kings do not advance.
    bool advance(bool white, int now) {
        bool changed = false;
        const int ahead = white ? 1 : -1;
        for (int x = 0; x < b.size; ++x) {
            for (int y = 0; y < b.size; ++y) {
                if (a.reach[x][y] != now || a.owner[x][y] != (white ? 4 : 8) ||
                    (now == 1 && !isMan(at(b, {x, y}))))
                    continue;
                for (const XY to : {XY(x - 1, y + ahead), XY(x + 1, y + ahead)}) {
                    if (!onBoard(b, to) || a.reach[to.x][to.y] != 0 ||
                        controlled[!white][to.x][to.y])
                        continue;
                    claim(to, white, now + 1);
                    changed = true;
                }
            }
        }
        return changed;
    }
};

// Walks back from the promotion row; black's walk ends one row earlier than white's.
void markPassages(const board &b, Analysis &a, int side) {
    const int n = b.size;
    const int ahead = side == 4 ? 1 : -1;
    const int last = side == 4 ? n - 1 : 0;
    for (int x = 0; x < n; ++x) {
        if (a.reach[x][last] > 1 && a.owner[x][last] == side)
            a.passage[x][last] = side;
    }
    bool any = false;
    for (int y = last - ahead; side == 4 ? y >= 1 : y <= n - 3; y -= ahead) {
        for (int x = 0; x < n; ++x) {
            for (const int nx : {x - 1, x + 1}) {
                if (a.owner[x][y] == side && nx >= 0 && nx < n &&
                    a.passage[nx][y + ahead] == side &&
                    a.reach[nx][y + ahead] == a.reach[x][y] + 1) {
                    a.passage[x][y] = side;
                    any = true;
                }
            }
        }
        if (!any)
            return;
    }
}

} // namespace

std::vector<Move> quietMoves(Rules rules, board &b) {
    std::vector<Move> list;
    const int ahead = b.whiteToMove ? 1 : -1;
    ownPieces(b, [&](XY p, int code) {
        if (isMan(code)) {
            const std::size_t before = list.size();
            for (const XY to : {XY(p.x - 1, p.y + ahead), XY(p.x + 1, p.y + ahead)}) {
                if (isEmpty(b, to))
                    list.push_back({{p, to}, {}});
            }
            b.squares[p.x][p.y] =
                static_cast<unsigned char>(code % 32 + (list.size() > before ? 32 : 0));
            return;
        }
        for (int d = 0; d < 4; ++d) {
            for (XY to = step(p, d); isEmpty(b, to); to = step(to, d)) {
                list.push_back({{p, to}, {}});
                if (rules == Rules::American)
                    break;
            }
        }
    });
    return list;
}

std::vector<Move> legalMoves(Rules rules, board &b) {
    const std::vector<Move> list = captures(rules, b);
    return list.empty() ? quietMoves(rules, b) : list;
}

void play(board &b, const Move &m) {
    const XY from = m.path.front();
    const XY to = m.path.back();
    int piece = at(b, from);
    if (isMan(piece) && to.y == (b.whiteToMove ? b.size - 1 : 0))
        ++piece; // man 1 becomes king 2
    b.squares[from.x][from.y] = 0;
    b.squares[to.x][to.y] = static_cast<unsigned char>(piece);
    for (const XY &p : m.taken)
        b.squares[p.x][p.y] = 0;
    b.whiteToMove = !b.whiteToMove;
    ++b.plyCount;
}

bool aboutToPass(const board &b) {
    for (int x = 0; x < b.size; ++x) {
        const int high = b.squares[x][b.size - 2];
        const int low = b.squares[x][1];
        if ((high >= 32 && high % 32 == 5) || (low >= 32 && low % 32 == 9))
            return true;
    }
    return false;
}

unsigned int key(const board &b) {
    unsigned long long h = b.whiteToMove ? 1 : 0;
    for (int x = 0; x < 12; ++x) {
        for (int y = 0; y < 12; ++y) {
            h = (h * 2 % 4294967296ULL) ^ static_cast<unsigned>(b.squares[x][y] % 16);
            if (h >= 2147483648ULL)
                h = (h + 1) % 4294967296ULL;
        }
    }
    return static_cast<unsigned int>(h);
}

Analysis analyse(const board &b) {
    Analysis a;
    Flood flood{b, a};
    flood.occupy();
    bool changed = true;
    for (int now = 1; changed && now <= b.size; ++now) {
        changed = flood.advance(b.whiteToMove, now);
        changed = flood.advance(!b.whiteToMove, now) || changed;
    }
    int white = 0;
    int black = 0;
    for (int x = 0; x < b.size; ++x) {
        a.whitePasses = a.whitePasses || a.reach[x][b.size - 1] > 1;
        a.blackPasses = a.blackPasses || (a.reach[x][0] > 1 && a.owner[x][0] == 8);
        for (int y = 0; y < b.size; ++y) {
            white += a.owner[x][y] == 4;
            black += a.owner[x][y] == 8;
        }
    }
    a.freedom = std::min(white, 4) - std::min(black, 4);
    if (a.whitePasses)
        markPassages(b, a, 4);
    if (a.blackPasses)
        markPassages(b, a, 8);
    return a;
}

int value(Rules rules, const board &b, bool gambit, const Analysis *passages) {
    int total = 0;
    int kings[2] = {0, 0};
    for (int x = 0; x < b.size; ++x) {
        for (int y = 0; y < b.size; ++y) {
            const int code = at(b, {x, y});
            if (code == 0)
                continue;
            const int piece =
                isMan(code) ? manValue(rules, b, {x, y}, gambit, passages)
                            : kingValue(rules, b, {x, y}, gambit, kings[isWhite(code)]++ == 0);
            const int points = piece + protection(b, {x, y});
            total += isWhite(code) == b.whiteToMove ? points : -points;
        }
    }
    return total;
}

} // namespace plain
