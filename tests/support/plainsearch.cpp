#include "tests/support/plainsearch.h"

#include "search/bestline.h"
#include "search/score.h"
#include "search/thinkstatistic.h"
#include "tests/support/plaintwin.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

namespace plain {

namespace {

constexpr int none = -1000777;

bool isNone(int value) {
    return std::abs(value) == -none;
}
bool isDecided(int value) {
    return !isNone(value) && std::abs(value) > 999900;
}
int thousands(int value) {
    return value < 0 ? -((-value + 500) / 1000) : (value + 500) / 1000;
}

struct Value {
    int points;
    int depth;
};

struct Line {
    struct Entry {
        XY from, to;
        int score;
    };
    std::array<Entry, 30> entries{};
    int top = 0;

    void take(const Line &child, int level) {
        top = child.top;
        for (int i = level; i <= std::min(top, 29); ++i)
            entries[static_cast<unsigned>(i)] = child.entries[static_cast<unsigned>(i)];
    }
    void put(const Move &m, int score, int level) {
        if (level < 30)
            entries[static_cast<unsigned>(level)] = {m.path.front(), m.path.back(), score};
    }
};

// Positions with the windows and horizons of their values; open addressing, quadratic probing.
struct Table {
    static constexpr unsigned size = 10003;
    std::vector<std::unique_ptr<board>> places{size};

    static bool same(const board &a, const board &b) {
        for (int i = 0; i < 144; ++i) {
            if (a.squares[i / 12][i % 12] % 16 != b.squares[i / 12][i % 12] % 16)
                return false;
        }
        return true;
    }
    // The slot of the position or for it; null when eleven others are in the way.
    std::unique_ptr<board> *slot(const board &b) {
        const unsigned first = key(b) % size;
        for (unsigned k = 0; k <= 10; ++k) {
            std::unique_ptr<board> &found = places[(first + k * k) % size];
            if (found == nullptr || same(*found, b))
                return &found;
        }
        return nullptr;
    }
    void insert(const board &b) {
        std::unique_ptr<board> *place = slot(b);
        if (place != nullptr && *place == nullptr)
            *place = std::make_unique<board>(b);
    }
    void clear() { places = std::vector<std::unique_ptr<board>>(size); }
};

struct Node {
    struct Branch {
        Move move;
        int score = none;
        int reduction = 0;
        std::unique_ptr<Node> child;
    };
    board position;
    int depth = 0; // tenths of a ply
    std::vector<Branch> list;

    explicit Node(const board &b) : position(b) {}
    int size() const { return static_cast<int>(list.size()); }
    Branch &branch(int i) { return list[static_cast<unsigned>(i)]; }
};

// A binary heap, smallest on top, emptied into ascending order; equal scores as it leaves them.
void heapSort(std::vector<Node::Branch> &list) {
    std::vector<Node::Branch> heap(1);
    for (Node::Branch &b : list) {
        heap.push_back(std::move(b));
        for (std::size_t i = heap.size() - 1; i > 1 && heap[i].score < heap[i / 2].score; i /= 2)
            std::swap(heap[i], heap[i / 2]);
    }
    for (Node::Branch &b : list) {
        b = std::move(heap[1]);
        if (heap.size() > 2)
            heap[1] = std::move(heap.back());
        heap.pop_back();
        const std::size_t last = heap.size() - 1;
        for (std::size_t r = 1; r <= last / 2;) {
            std::size_t next = 0;
            if (2 * r == last)
                next = heap[r].score > heap[2 * r].score ? 2 * r : 0;
            else if (heap[r].score > heap[2 * r].score &&
                     heap[2 * r].score <= heap[2 * r + 1].score)
                next = 2 * r;
            else if (heap[r].score > heap[2 * r + 1].score &&
                     heap[2 * r + 1].score < heap[2 * r].score)
                next = 2 * r + 1;
            if (next == 0)
                break;
            std::swap(heap[r], heap[next]);
            if (2 * r == last)
                break;
            r = next;
        }
    }
}

class Search {
public:
    Search(Rules rules, bool giveAway, bool gambit)
        : rules_(rules), giveAway_(giveAway), gambit_(gambit) {}

    std::string run(const board &position, int plies) {
        Node root(position);
        list(root, 0);
        count_.nodes = 1;
        count_.movesGenerated = root.size();
        Value score{-1000000, root.size() == 0 ? 0 : -1};
        std::string best = "none";
        Line line;
        for (int depth = 10; root.size() > 0 && depth <= 10 * plies; depth += 10) {
            root.depth = depth;
            const int i = search(root, 0, score, none, none, line);
            best = text(root.branch(i).move);
            if (isDecided(score.points))
                break;
        }
        BestLine bestLine;
        for (int i = 0; i < std::min(line.top, 30); ++i) {
            const Line::Entry &e = line.entries[static_cast<unsigned>(i)];
            bestLine.updateAt(e.from, e.to, e.score, i);
        }
        bestLine.setTop(line.top);
        return searchReport(best, Score(score.points, score.depth), count_, bestLine);
    }

private:
    static std::string text(const Move &m) {
        LegalMove copy;
        for (std::size_t i = 0; i < m.path.size(); ++i)
            copy.insPath(m.path[i], static_cast<int>(i));
        for (std::size_t i = 0; i < m.taken.size(); ++i)
            copy.insTaken(m.taken[i], static_cast<int>(i));
        return moveText(copy);
    }

    void list(Node &n, int score) const {
        for (Move &m : legalMoves(rules_, n.position)) {
            n.list.push_back({std::move(m), score, 0, nullptr});
        }
    }

    static void reduce(Node &n) {
        const int best = n.list.back().score;
        for (Node::Branch &b : n.list) {
            const int behind = best - b.score;
            b.reduction = isDecided(best)       ? 0
                          : b.score <= -1000000 ? 5
                                                : std::min(8, behind / (behind <= 500 ? 60 : 125));
        }
    }

    int material(const Node &n, const Analysis *passages) {
        ++count_.scoresCalculated;
        return value(rules_, n.position, gambit_, passages);
    }
    int sign() const { return giveAway_ ? -1 : 1; }

    // The node is valued where it stands.
    bool valuedHere(Node &n, int level, Value &result, int alpha, int beta) {
        const int horizon = n.depth / 10;
        if (level >= 100) {
            result = {sign() * material(n, nullptr), n.position.plyCount};
            return true;
        }
        if (n.size() == 0) {
            result = {sign() * (level - 1000000), horizon};
            return true;
        }
        if (!n.list[0].move.taken.empty())
            return false;
        const bool quiet =
            level >= horizon && n.size() > 1 && (level > horizon + 3 || n.size() >= 3);
        if (!quiet) {
            if (isNone(beta) || isDecided(beta) || isDecided(alpha))
                return false;
            const int points = sign() * material(n, nullptr);
            if (-thousands(points) + (gambit_ ? 1 : 0) >= thousands(beta))
                return false;
            ++count_.senselessSacrifices;
            result = {points, n.position.plyCount};
            return true;
        }
        const Analysis a = analyse(n.position);
        const bool canPass = a.whitePasses || a.blackPasses;
        if (canPass && level < horizon + 1)
            return false;
        const int freedom = 20 * (n.position.whiteToMove ? a.freedom : -a.freedom);
        result = {sign() * (material(n, canPass ? &a : nullptr) + freedom), n.position.plyCount};
        return true;
    }

    bool probe(board &b, int alpha, int beta, Value &found) {
        const std::unique_ptr<board> *place = table_.slot(b);
        if (place == nullptr || *place == nullptr)
            return false;
        const board &e = **place;
        if (alpha < e.hashBeta || beta < e.hashAlpha || e.hashHorizon < horizonPly_)
            return false;
        ++count_.hashHits;
        found = {e.hashScore >= -alpha ? none : e.hashScore, e.hashHorizon};
        return true;
    }

    void record(Node &n, int score, int alpha0, int beta, bool insert) {
        n.position.hashHorizon = horizonPly_;
        n.position.hashScore = score;
        n.position.hashAlpha = alpha0;
        n.position.hashBeta = beta;
        if (insert)
            table_.insert(n.position);
    }

    int search(Node &n, int level, Value &result, int alpha, int beta, Line &line) {
        line.top = level;
        if (level == 0) {
            horizonPly_ = n.position.plyCount + n.depth / 10;
            table_.clear();
        }
        alpha = isNone(alpha) ? none : alpha;
        beta = isNone(beta) ? none : beta;
        const int alpha0 = alpha;
        if (n.list.empty()) {
            list(n, none);
        } else {
            heapSort(n.list);
            reduce(n);
        }
        ++count_.nodes;
        count_.maxLevel = std::max(count_.maxLevel, level);
        count_.movesGenerated += n.size();
        result = {none, n.depth / 10};
        if (valuedHere(n, level, result, alpha, beta))
            return -1;
        const int childDepth = n.depth + (n.list[0].move.taken.empty() ? 0 : 7);
        int best = -1;
        Line childLine;
        Value value{none, n.depth / 10};
        for (int i = n.size() - 1; i >= 0; --i) {
            Node::Branch &b = n.branch(i);
            if (b.child == nullptr) {
                b.child = std::make_unique<Node>(n.position);
                play(b.child->position, b.move);
            }
            b.child->depth = childDepth - b.reduction;
            if (isDecided(-b.score))
                value = {-b.score, n.depth / 10};
            else if (!probe(b.child->position, alpha, beta, value))
                search(*b.child, level + 1, value, beta, alpha, childLine);
            if (level > 2)
                b.child.reset();
            if (isNone(value.points)) {
                b.score = none;
                continue;
            }
            value.points = -value.points;
            b.score = value.points;
            if (value.points > result.points) {
                result = value;
                best = i;
                line.take(childLine, level + 1);
                line.put(b.move, b.score, level);
            }
            alpha = std::max(alpha, value.points);
            if (i == 0)
                break;
            const bool byMove = -value.points <= beta;
            if (byMove || (!isNone(alpha) && -alpha <= beta)) {
                ++count_.cutoffs;
                result = value;
                if (byMove)
                    record(n, result.points, alpha0, beta, true);
                return -1;
            }
        }
        if (level + 1 >= n.depth / 10)
            addChoice(n, result);
        record(n, result.points, alpha0, beta, alpha0 != -beta);
        return best;
    }

    static void addChoice(const Node &n, Value &result) {
        if (isNone(result.points) || isDecided(result.points) || n.size() <= 2)
            return;
        int good = 0;
        for (const Node::Branch &b : n.list)
            good += b.score >= result.points - 30;
        result.points += 7 * std::min(good - 1, 3);
    }

    const Rules rules_;
    const bool giveAway_;
    const bool gambit_;
    thinkStatistic count_; // a record of numbers
    Table table_;
    int horizonPly_ = -1;
};

} // namespace

std::string searchReport(Rules rules, const board &position, int plies, bool giveAway) {
    return Search(rules, giveAway, position.isGambit()).run(position, plies);
}

std::string searchReport(const std::string &move, const Score &score, const thinkStatistic &counts,
                         const BestLine &line) {
    QString text;
    line.asString(text);
    std::string report =
        move + "\nscore " + std::to_string(score.value) + " at " + std::to_string(score.depth);
    const std::pair<const char *, int> numbers[] = {{"\nnodes ", counts.nodes},
                                                    {"\nmoves ", counts.movesGenerated},
                                                    {"\nvalued ", counts.scoresCalculated},
                                                    {"\ncut ", counts.cutoffs},
                                                    {"\nsacrificed ", counts.senselessSacrifices},
                                                    {"\nfrom table ", counts.hashHits},
                                                    {"\nlevels ", counts.maxLevel}};
    for (const auto &[name, number] : numbers)
        report += name + std::to_string(number);
    return report + "\n" + text.toStdString();
}

} // namespace plain
