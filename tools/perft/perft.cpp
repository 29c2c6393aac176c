#include "tools/perft/perft.h"

#include "bits/bitmovegenerator.h"
#include "bits/bitposition.h"
#include "bits/dispatch.h"
#include "rules/legalmove.h"
#include "search/hashtable.h"

#include <algorithm>
#include <utility>

namespace {

template <int N, const RuleTraits &Rules>
class Counter {
public:
    Counter(bool distinct, const Perft::Progress &progress)
        : distinct_(distinct), progress_(progress) {}

    quint64 count(const board &b, int depth) {
        if (depth == 0)
            return 1;
        const BitPosition<N> p(b);
        return b.whiteToMove ? count<true>(p, depth) : count<false>(p, depth);
    }

private:
    template <bool White>
    using Generator = BitMoveGenerator<N, Rules, White>;

    template <bool White>
    quint64 count(const BitPosition<N> &p, int depth) {
        const quint64 positions = depth == 1 ? countMoves<White>(p) : countBelow<White>(p, depth);
        if (depth == progressDepth)
            report(positions);
        return positions;
    }

    // Quiet moves are counted, not listed.
    template <bool White>
    quint64 countMoves(const BitPosition<N> &p) {
        Generator<White> generator(p);
        const std::size_t captures = generator.canCapture() ? listCaptures(generator) : 0;
        stack_.cut(stack_.size() - captures);
        return captures > 0 ? captures : static_cast<quint64>(generator.countQuiet());
    }

    template <bool White>
    quint64 countBelow(const BitPosition<N> &p, int depth) {
        const std::size_t first = stack_.size();
        Generator<White> generator(p);
        if (!generator.canCapture() || listCaptures(generator) == 0)
            generator.listQuiet(stack_, generator.countQuiet());
        quint64 positions = 0;
        const std::size_t end = stack_.size();
        for (std::size_t i = first; i < end; ++i)
            positions += count<!White>(p.template after<White>(stack_[i]), depth - 1);
        stack_.cut(first);
        return positions;
    }

    // Returns their number. Captures beyond the limit are dropped, possibly all of them.
    template <class Moves>
    std::size_t listCaptures(const Moves &generator) {
        const std::size_t first = stack_.size();
        generator.listCaptures(stack_, unwatched_);
        if (distinct_)
            dropOtherRoutes(first);
        return stack_.size() - first;
    }

    void dropOtherRoutes(std::size_t first) {
        std::size_t kept = first;
        for (std::size_t i = first; i < stack_.size(); ++i) {
            const BitMove<N> m = stack_[i];
            bool known = false;
            for (std::size_t j = first; j < kept; ++j) {
                known |=
                    stack_[j].from == m.from && stack_[j].to == m.to && stack_[j].taken == m.taken;
            }
            if (!known)
                stack_[kept++] = m;
        }
        stack_.cut(kept);
    }

    void report(quint64 positions) {
        counted_ += positions;
        if (progress_)
            progress_(counted_);
    }

    static constexpr int progressDepth = 5;

    const bool distinct_;
    const Perft::Progress &progress_;
    MoveStack<BitMove<N>> stack_;
    ListingWatch unwatched_;
    quint64 counted_ = 0;
};

} // namespace

Perft::Perft(RuleSet rules, const board &b) : rules_(rules), position_(b) {}

quint64 Perft::count(int depth) const {
    const CaptureLimitScope report;
    return countFrom(position_, depth);
}

quint64 Perft::countFrom(const board &b, int depth) const {
    quint64 positions = 0;
    dispatchBits(rules_, b.size, [&](auto form) {
        positions = Counter<form.squares, form.rules>(distinct_, progress_).count(b, depth);
    });
    return positions;
}

std::vector<Perft::Share> Perft::divide(int depth) const {
    const CaptureLimitScope report;
    XY::B_SIZE = position_.size;
    board b = position_;
    const auto engine = newEngine(rules_, &b, 1, nullptr, b.size);
    engine->FillMoveList();
    std::vector<Share> shares;
    std::vector<std::pair<XY, board>> played;
    for (LegalMove &m : engine->moveList) {
        board after = b;
        engine->makeMove(&after, &m);
        const auto isSame = [&](const auto &other) {
            return other.first == m.from() && hashTable::areEqual(&other.second, &after);
        };
        if (distinct_ && std::any_of(played.begin(), played.end(), isSame))
            continue;
        played.emplace_back(m.from(), after);
        QString notation;
        m.ToString(notation);
        shares.push_back({notation, countFrom(after, depth - 1)});
    }
    return shares;
}
