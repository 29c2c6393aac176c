#include "tests/support/plaintwin.h"

#include <algorithm>
#include <utility>

namespace plain {

namespace {

constexpr std::size_t longestSequence = 24;

XY step(XY p, int d, int n = 1) {
    constexpr int directions[4][2] = {{1, 1}, {1, -1}, {-1, -1}, {-1, 1}};
    return {p.x + n * directions[d][0], p.y + n * directions[d][1]};
}

// Questions to the codes of squares: 1 man, 2 king, 4 white, 8 black, 16 taken, 32 can move.
bool isMan(int code) {
    return code % 2 == 1;
}
bool isWhite(int code) {
    return code / 4 % 2 == 1;
}

struct View {
    const board &b;
    int last = b.size - 1;

    bool has(XY p) const { return 0 <= p.x && p.x <= last && 0 <= p.y && p.y <= last; }
    bool edge(XY p) const { return p.x == 0 || p.y == 0 || p.x == last || p.y == last; }
    int at(XY p) const { return b.squares[p.x][p.y]; }
    bool free(XY p) const { return has(p) && at(p) == 0; }
    bool own(XY p) const { return at(p) % 16 != 0 && isWhite(at(p)) == b.whiteToMove; }
    bool target(XY p) const { return has(p) && !own(p) && at(p) > 0 && at(p) / 16 % 2 == 0; }
};

template <class Visit>
void eachSquare(const board &b, Visit visit) {
    for (int x = 0; x < b.size; ++x) {
        for (int y = 0; y < b.size; ++y)
            visit(XY(x, y), static_cast<int>(b.squares[x][y]));
    }
}

// The position in the middle of a capture: the piece stands on `to`, the jumped one is marked.
board jumped(board b, XY from, XY over, XY to) {
    std::swap(b.Get(from), b.Get(to));
    b.Get(over) = static_cast<unsigned char>(b.Get(over) + 16);
    return b;
}

// Adds the sequences that begin with `sofar`. A flying king may land on any free square behind the
// piece; squares from which the capture goes on exclude the others. False: no jump from here.
bool sequences(const board &b, bool flying, const std::vector<int> &directions, const Move &sofar,
               std::vector<Move> &out) {
    if (!flying && sofar.taken.size() > longestSequence)
        return true;
    const View view{b};
    const XY at = sofar.path.back();
    bool any = false;
    for (const int d : directions) {
        XY over = step(at, d);
        while (flying && view.free(over))
            over = step(over, d);
        if (!view.target(over))
            continue;
        bool goesOn = false;
        std::vector<Move> stops;
        for (XY to = step(over, d); view.free(to) && (flying || stops.empty()); to = step(to, d)) {
            stops.push_back(sofar);
            stops.back().path.push_back(to);
            stops.back().taken.push_back(over);
            goesOn |= sequences(jumped(b, at, over, to), flying, directions, stops.back(), out);
        }
        any = any || !stops.empty();
        if (!goesOn)
            out.insert(out.end(), stops.begin(), stops.end());
    }
    return any;
}

std::vector<Move> captures(RuleSet rules, const board &b) {
    const std::vector<int> forward = b.whiteToMove ? std::vector{0, 3} : std::vector{1, 2};
    std::vector<Move> list;
    eachSquare(b, [&](XY p, int code) {
        const bool american = rules == RuleSet::American;
        if (View{b}.own(p))
            sequences(b, !isMan(code) && !american,
                      isMan(code) && american ? forward : std::vector{0, 1, 2, 3}, {{p}, {}}, list);
    });
    std::size_t most = 0;
    for (const Move &m : list)
        most = std::max(most, m.taken.size());
    if (rules == RuleSet::International)
        std::erase_if(list, [most](const Move &m) { return m.taken.size() < most; });
    return list;
}

int squareValue(int n, bool gambit, int x, int y) {
    const int guards = (n / 2 - 2 + 1) / 2 * 2;
    if (y == 0 && x % 2 == 0 && x >= guards && x < n - guards)
        return gambit ? 40 : 70;
    if (x == 0 && (y == n - 4 || y == n - 2))
        return y == n - 4 ? 50 : 100;
    if (x == y && (x == n / 2 - 1 || x == n / 2))
        return gambit || y < n / 2 ? 80 : 60;
    if (x >= 2 && x <= n - 3 && (y == n / 2 || y == n / 2 - 1))
        return gambit || y < n / 2 ? 50 : 40;
    const int centre = x >= n / 4 && x < n - n / 4 ? 30 : 0;
    if (gambit)
        return centre + 2 * y;
    return y >= n / 2 ? -10 : y == 0 ? 10 : centre;
}

int protection(const board &b, XY p) {
    const View view{b};
    const auto guarded = [&](int d) {
        const XY q = step(p, d);
        return !view.has(q) || (view.at(q) != 0 && isWhite(view.at(q)) == isWhite(view.at(p)));
    };
    const int sides[2] = {guarded(0) + guarded(2), guarded(1) + guarded(3)};
    return 5 * (sides[0] + sides[1]) + (sides[0] > 0 && sides[1] > 0 ? 5 : 0);
}

int kingValue(RuleSet rules, const board &b, XY p, bool gambit, bool first) {
    if (rules != RuleSet::American)
        return !first ? 2100 : gambit ? 3200 : 2800;
    const int margin = b.size / 2 - 2;
    const bool central = std::min(p.x, p.y) >= margin && std::max(p.x, p.y) < b.size - margin;
    return (first ? 1900 : 1800) + (central ? 10 : 0) + (View{b}.edge(p) ? -100 : 10);
}

// An inner square next to one that the side holds or has reached.
bool controlled(const View &view, const Analysis &a, XY p, bool white) {
    bool found = false;
    for (int d = 0; d < 4 && !view.edge(p); ++d)
        found |= a.owner[step(p, d).x][step(p, d).y] == (white ? 4 : 8);
    return found;
}

// One row further from every square that the side reached at `now`; kings do not advance.
bool advance(const View &view, Analysis &a, bool white, int now) {
    bool changed = false;
    eachSquare(view.b, [&](XY p, int code) {
        if (a.reach[p.x][p.y] != now || a.owner[p.x][p.y] != (white ? 4 : 8) ||
            (now == 1 && !isMan(code)))
            return;
        for (const XY to : {step(p, white ? 3 : 2), step(p, white ? 0 : 1)}) {
            if (!view.has(to) || a.reach[to.x][to.y] != 0 || controlled(view, a, to, !white))
                continue;
            a.reach[to.x][to.y] = now + 1;
            a.owner[to.x][to.y] = white ? 4 : 8;
            changed = true;
        }
    });
    return changed;
}

// Walks back from the promotion row; black's walk ends one row earlier than white's.
void markPassages(int n, Analysis &a, int side) {
    const int ahead = side == 4 ? 1 : -1;
    const int last = side == 4 ? n - 1 : 0;
    for (int x = 0; x < n; ++x)
        a.passage[x][last] = a.reach[x][last] > 1 && a.owner[x][last] == side ? side : 0;
    for (int y = last - ahead; side == 4 ? y >= 1 : y <= n - 3; y -= ahead) {
        for (int x = 0; x < n; ++x) {
            for (const int to : {x - 1, x + 1}) {
                if (to >= 0 && to < n && a.owner[x][y] == side &&
                    a.passage[to][y + ahead] == side && a.reach[to][y + ahead] == a.reach[x][y] + 1)
                    a.passage[x][y] = side;
            }
        }
    }
}

} // namespace

std::vector<Move> quietMoves(RuleSet rules, board &b) {
    std::vector<Move> list;
    eachSquare(b, [&](XY p, int code) {
        const View view{b};
        if (!view.own(p))
            return;
        const std::size_t before = list.size();
        const bool far = !isMan(code) && rules != RuleSet::American;
        for (const int d : isMan(code) ? b.whiteToMove ? std::vector{3, 0} : std::vector{2, 1}
                                       : std::vector{0, 1, 2, 3}) {
            for (int n = 1; view.free(step(p, d, n)) && (n == 1 || far); ++n)
                list.push_back({{p, step(p, d, n)}, {}});
        }
        if (isMan(code))
            b.Get(p) = static_cast<unsigned char>(code % 32 + (list.size() > before ? 32 : 0));
    });
    return list;
}

std::vector<Move> legalMoves(RuleSet rules, board &b) {
    const std::vector<Move> list = captures(rules, b);
    return list.empty() ? quietMoves(rules, b) : list;
}

void play(board &b, const Move &m) {
    const XY to = m.path.back();
    std::swap(b.Get(m.path.front()), b.Get(to));
    if (isMan(b.Get(to)) && to.y == (b.whiteToMove ? b.size - 1 : 0))
        ++b.Get(to); // man 1 becomes king 2
    for (const XY &p : m.taken)
        b.Get(p) = 0;
    b.whiteToMove = !b.whiteToMove;
    ++b.plyCount;
}

bool aboutToPass(const board &b) {
    bool found = false;
    eachSquare(b, [&](XY p, int code) {
        found |= (p.y == b.size - 2 && code == 32 + 5) || (p.y == 1 && code == 32 + 9);
    });
    return found;
}

unsigned int key(const board &b) {
    unsigned long long h = b.whiteToMove ? 1 : 0;
    for (int i = 0; i < 144; ++i) {
        h = (h * 2 % 4294967296ULL) ^ static_cast<unsigned>(b.squares[i / 12][i % 12] % 16);
        if (h >= 2147483648ULL)
            h = (h + 1) % 4294967296ULL;
    }
    return static_cast<unsigned int>(h);
}

Analysis analyse(const board &b) {
    Analysis a;
    const View view{b};
    eachSquare(b, [&](XY p, int code) {
        a.reach[p.x][p.y] = code != 0;
        a.owner[p.x][p.y] = code / 4 % 4 * 4;
    });
    bool changed = true;
    for (int now = 1; changed && now <= b.size; ++now) {
        changed = advance(view, a, b.whiteToMove, now);
        changed |= advance(view, a, !b.whiteToMove, now);
    }
    int squares[9] = {};
    eachSquare(b, [&](XY p, int) {
        ++squares[a.owner[p.x][p.y]];
        a.whitePasses |= p.y == b.size - 1 && a.reach[p.x][p.y] > 1;
        a.blackPasses |= p.y == 0 && a.reach[p.x][0] > 1 && a.owner[p.x][0] == 8;
    });
    a.freedom = std::min(squares[4], 4) - std::min(squares[8], 4);
    if (a.whitePasses)
        markPassages(b.size, a, 4);
    if (a.blackPasses)
        markPassages(b.size, a, 8);
    return a;
}

int value(RuleSet rules, const board &b, bool gambit, const Analysis *passages) {
    const int n = b.size;
    int total = 0;
    int kings[2] = {0, 0};
    eachSquare(b, [&](XY p, int code) {
        if (code == 0)
            return;
        const bool white = isWhite(code);
        const XY seen = white ? p : XY(n - 1 - p.x, n - 1 - p.y); // from its own side of the board
        int points = protection(b, p);
        points += isMan(code) ? 1000 + squareValue(n, gambit, seen.x, seen.y)
                              : kingValue(rules, b, p, gambit, kings[white]++ == 0);
        if (isMan(code) && rules != RuleSet::American && passages != nullptr &&
            passages->passage[p.x][p.y] != 0)
            points += 2 * (1000 / n) / 3 * seen.y;
        total += white == b.whiteToMove ? points : -points;
    });
    return total;
}

} // namespace plain
