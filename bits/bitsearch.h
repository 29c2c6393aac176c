// BitSearch: the DeepSearch of one rule set and board size, and its nodes.
#ifndef BITS_BITSEARCH_H
#define BITS_BITSEARCH_H

#include "bits/bitanalysis.h"
#include "bits/bitline.h"
#include "bits/bitmaterial.h"
#include "bits/bitmovegenerator.h"
#include "bits/bittable.h"
#include "rules/legalmove.h"
#include "search/abstractengine.h"
#include "search/deepsearch.h"
#include "search/movesort.h"
#include "search/nodeprocedure.h"
#include "search/searchcontext.h"
#include "search/thinkstatistic.h"

// What all nodes of one deep search share.
template <int N, const RuleTraits &Rules>
struct BitContext {
    explicit BitContext(SearchContext &context)
        : search(context), material(*AbstractEngine::pSQV, AbstractEngine::isGambit),
          table(*AbstractEngine::pHT) {}

    // As AbstractEngine::canUseHT.
    bool probe(const BitPosition<N> &child, bool whiteToMove, int beta, int alpha, Score &value) {
        const board *stored = table.find(child, whiteToMove);
        if (stored == nullptr || alpha < stored->hashBeta || beta < stored->hashAlpha ||
            stored->hashHorizon < AbstractEngine::absHorizon)
            return false;
        value.set(stored->hashScore >= -alpha ? Score::none : stored->hashScore,
                  stored->hashHorizon);
        return true;
    }

    SearchContext &search;
    const BitMaterial<N, Rules.flyingKings> material;
    BitTable<N> table;
    MoveStack<BitMove<N>> stack;
};

// A node without an engine: what NodeProcedure asks of a node, over a bit position. Its moves lie
// on the context's stack while it lives; those of a quiet position are listed only when they are to
// be searched.
template <int N, const RuleTraits &Rules, bool White>
class BitNode {
    using Context = BitContext<N, Rules>;

public:
    using Line = BitLine<N>;

    BitNode(Context &context, const BitPosition<N> &position, int ply, int budget)
        : context_(context), position_(position), generator_(position), ply_(ply), budget_(budget),
          first_(context.stack.size()) {}
    ~BitNode() { context_.stack.cut(first_); }
    BitNode(const BitNode &) = delete;
    BitNode &operator=(const BitNode &) = delete;

    SearchContext &context() const { return context_.search; }
    int budget() const { return budget_; }

    // A listing finds the moves in the state of never searched ones: their scores are none, and
    // they are searched in reverse order.
    bool listMoves() {
        capture_ = generator_.canCapture();
        if (capture_)
            generator_.listCaptures(context_.stack, context().listingWatch());
        // Captures beyond the limit are dropped, possibly all of them.
        moves_ = static_cast<int>(context_.stack.size() - first_);
        capture_ = moves_ > 0;
        if (!capture_)
            moves_ = generator_.countQuiet();
        return moves_ == 0;
    }

    int moves() const { return moves_; }
    bool mustCapture() const { return capture_; }

    Score material() { return {materialScore(0, 0), ply_}; }

    bool staticValue(int level, int horizon, Score &value) {
        constexpr int freedomValue = AbstractEngine::freedomValue;
        const BitAnalysis<N> analysis(position_, White);
        typename DarkSquares<N>::Bits white = 0;
        typename DarkSquares<N>::Bits black = 0;
        if (analysis.canPass()) {
            if (level < horizon + 1)
                return false;
            if constexpr (Rules.flyingKings) {
                white = analysis.whitePassageMen();
                black = analysis.blackPassageMen();
            }
        }
        const int freedom = freedomValue * analysis.freedom();
        value.set(materialScore(white, black) + (White ? freedom : -freedom), ply_);
        return true;
    }

    void prepareMoves() {
        if (!capture_)
            generator_.listQuiet(context_.stack);
    }

    int enter(int i, int childBudget) {
        child_ = position_.template after<White>(move(i));
        childBudget_ = childBudget;
        return Score::none;
    }

    bool probe(int beta, int alpha, Score &value) {
        return context_.probe(child_, !White, beta, alpha, value);
    }

    void search(int level, Score &value, const Score &alpha, const Score &beta, Line &line) {
        using Child = BitNode<N, Rules, !White>;
        Child child(context_, child_, ply_ + 1, childBudget_);
        NodeProcedure<Child>(child, level).run(value, alpha, beta, line);
    }

    void leave(int i, int score) { move(i).score = score; }

    void updateLine(Line &line, int i, int level) {
        line.updateAt(move(i).from, move(i).to, move(i).score, level);
    }

    void record(const Score &value, int alpha0, const Score &beta, bool insert) {
        if (insert)
            context_.table.insert(position_, White, ply_, value.value, alpha0, beta.value);
    }

    void addChoiceBonus(Score &result) const {
        int good = 0;
        for (std::size_t i = first_; i < context_.stack.size(); ++i)
            good += isGoodMove(context_.stack[i].score, result);
        result += severalMovesBonus(result, moves_, good);
    }

private:
    using Bits = typename DarkSquares<N>::Bits;

    BitMove<N> &move(int i) { return context_.stack[first_ + static_cast<unsigned>(i)]; }

    int materialScore(Bits whitePassage, Bits blackPassage) {
        context().countStaticValue();
        const int balance = context_.material.balance(position_, whitePassage, blackPassage);
        return (White ? balance : -balance) + context().statistic().randomTerm();
    }

    Context &context_;
    const BitPosition<N> &position_;
    BitMoveGenerator<N, Rules, White> generator_;
    const int ply_;
    const int budget_;
    const std::size_t first_; // of this node's moves on the stack
    int moves_ = 0;
    bool capture_ = false;
    BitPosition<N> child_;
    int childBudget_ = 0;
};

template <int N, const RuleTraits &Rules>
class BitSearch final : public DeepSearch {
public:
    explicit BitSearch(SearchContext &context) : context_(context) {}

    void enter(const board &parent, const LegalMove &m) override {
        const BitPosition<N> before(parent);
        BitMove<N> move{};
        move.from = static_cast<std::uint8_t>(Squares::index(m.from().x, m.from().y));
        move.to = static_cast<std::uint8_t>(Squares::index(m.to().x, m.to().y));
        for (const XY &square : m.taken)
            move.taken |= Squares::square(square.x, square.y);
        whiteToMove_ = !parent.whiteToMove;
        ply_ = parent.plyCount + 1;
        child_ = parent.whiteToMove ? before.template after<true>(move)
                                    : before.template after<false>(move);
    }

    bool probe(int beta, int alpha, Score &value) override {
        return context_.probe(child_, whiteToMove_, beta, alpha, value);
    }

    void search(int level, int depth, Score &value, Score alpha, Score beta,
                BestLine &line) override {
        if (whiteToMove_)
            run<true>(level, depth, value, alpha, beta, line);
        else
            run<false>(level, depth, value, alpha, beta, line);
    }

    void noteStored(const board &b) override { context_.table.note(b); }

private:
    using Squares = DarkSquares<N>;

    template <bool White>
    void run(int level, int depth, Score &value, Score alpha, Score beta, BestLine &line) {
        using Node = BitNode<N, Rules, White>;
        const BitPosition<N> position = child_;
        Node node(context_, position, ply_, depth);
        BitLine<N> below;
        NodeProcedure<Node>(node, level).run(value, alpha, beta, below);
        below.writeTo(line, level);
    }

    BitContext<N, Rules> context_;
    BitPosition<N> child_;
    bool whiteToMove_ = true;
    int ply_ = 0;
};

#endif
