// BitSearch: the DeepSearch of one rule set and board size, and its nodes.
#ifndef BITS_BITSEARCH_H
#define BITS_BITSEARCH_H

#include "bits/analysiscache.h"
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
    bool probe(const BitPosition<N> &child, std::uint32_t hash, bool whiteToMove, int beta,
               int alpha, Score &value) const {
        const board *stored = table.find(child, hash, whiteToMove);
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
    AnalysisCache<N> analyses;
    MoveStack<BitMove<N>> stack;
};

// A level of the deep search: what NodeProcedure asks of a node, over a bit position. One is made
// when its level is first reached and then serves every node there, which the level above sets up.
// Its moves lie on the context's stack; those of a quiet position are listed only when they are to
// be searched.
template <int N, const RuleTraits &Rules, bool White>
class BitNode {
    using Context = BitContext<N, Rules>;
    using Child = BitNode<N, Rules, !White>;
    friend Child;

public:
    BitNode(Context &context, int level) : context_(context), level_(level) {}

    // Searches a position as a node that no other is above.
    Score searchAsTop(const BitPosition<N> &position, int ply, int budget, int alpha, int beta) {
        position_ = position;
        tally_ = context_.material.tallies().of(position);
        setUp(ply, budget, 0);
        return NodeProcedure<BitNode>::run(*this, alpha, beta);
    }
    // What the last search found.
    const BitLine<N> &line() const { return line_; }

    SearchContext &context() const { return context_.search; }
    int level() const { return level_; }
    int budget() const { return budget_; }
    int horizon() const { return horizon_; }
    void endLine() { line_.setTop(level_); }

    // A listing finds the moves in the state of never searched ones: their scores are none, and
    // they are searched in reverse order.
    [[gnu::always_inline]] bool listMoves() {
        Generator generator(position_);
        capture_ = generator.canCapture();
        if (capture_) {
            context_.stack.cut(first_);
            generator.listCaptures(context_.stack, context().listingWatch());
            if (context().listingWatch().isGivenUp())
                return false;
            // Captures beyond the limit are dropped, possibly all of them.
            moves_ = static_cast<int>(context_.stack.size() - first_);
            capture_ = moves_ > 0;
        }
        if (!capture_)
            moves_ = generator.countQuiet();
        return true;
    }

    int moves() const { return moves_; }
    bool mustCapture() const { return capture_; }

    Score material() { return {value(0), ply_}; }

    [[gnu::always_inline]] Score staticValue() {
        // Beyond the horizon a run delays nothing, and short-king rules give nothing for it.
        const bool runsCount = Rules.flyingKings || level_ == horizon_;
        if (Analysis::fewPieces(position_) || (runsCount && Analysis::mayPass(position_)))
            return analysedValue();
        return material();
    }

    void prepareMoves(int childBudget) {
        if (!capture_) {
            context_.stack.cut(first_);
            Generator(position_).listQuiet(context_.stack, moves_);
        }
        if (child_ == nullptr)
            child_ = std::make_unique<Child>(context_, level_ + 1);
        child_->setUp(ply_ + 1, childBudget, context_.stack.size());
    }

    int enter(int i) {
        const BitMove<N> m = move(i);
        const BitPosition<N> after = position_.template after<White>(m);
        Child &child = *child_;
        child.tally_ =
            context_.material.tallies().template after<White>(tally_, position_, after, m);
        child.position_ = after;
        if (m.taken != 0)
            child.protection_ = unknown;
        return Score::none;
    }

    bool probe(int beta, int alpha, Score &value) {
        return context_.probe(child_->position_, child_->tally_.hash(), !White, beta, alpha, value);
    }

    Score search(int alpha, int beta) { return NodeProcedure<Child>::run(*child_, alpha, beta); }

    void leave(int i, int score) { move(i).score = score; }

    void setBest(int i) {
        line_.copyFrom(child_->line_, level_ + 1);
        line_.updateAt(move(i).from, move(i).to, move(i).score, level_);
    }
    void cutOff() {}

    void record(int value, int alpha0, int beta, bool insert) {
        if (insert)
            context_.table.insert(position_, tally_.hash(), White, ply_, value, alpha0, beta);
    }

    void addChoiceBonus(Score &result) const {
        if (moves_ <= movesWithoutBonus)
            return;
        int good = 0;
        for (int i = 0; i < moves_ && good < mostGoodMoves; ++i)
            good += isGoodMove(move(i).score, result);
        result += severalMovesBonus(result, moves_, good);
    }

private:
    using Generator = BitMoveGenerator<N, Rules, White>;
    using Analysis = BitAnalysis<N>;
    using Material = BitMaterial<N, Rules.flyingKings>;

    // What all nodes have in common that the node above, or the search, will visit in turn. Their
    // moves come on the stack from `first` on. They begin with an empty line.
    void setUp(int ply, int budget, std::size_t first) {
        ply_ = ply;
        budget_ = budget;
        horizon_ = budget / 10;
        first_ = first;
        protection_ = unknown;
        line_.setTop(0);
    }

    BitMove<N> &move(int i) const { return context_.stack[first_ + static_cast<unsigned>(i)]; }

    // The static value, `further` points for white being added.
    int value(int further) {
        context().countStaticValue();
        if (protection_ == unknown)
            protection_ = Material::protection(position_.template side<White>());
        const int moved = Material::protection(position_.template side<!White>());
        const int whites = tally_.points() + context_.material.firstKings(position_) + further;
        return (White ? whites : -whites) + protection_ - moved +
               context().statistic().randomTerm();
    }

    [[gnu::noinline]] Score analysedValue() {
        const AnalysisResult found =
            context_.analyses.find(position_, tally_.hash(), White, [this] { return analyse(); });
        if (found.canPass && level_ == horizon_)
            return {Score::none, 0};
        return {value(found.points), ply_};
    }
    AnalysisResult analyse() const {
        const Analysis analysis(position_, White);
        const int freedom =
            Analysis::fewPieces(position_) ? AbstractEngine::freedomValue * analysis.freedom() : 0;
        return {freedom +
                    Material::passages(analysis.whitePassageMen(), analysis.blackPassageMen()),
                analysis.canPass()};
    }

    static constexpr int unknown = -1;

    Context &context_;
    const int level_;
    std::unique_ptr<Child> child_;
    BitPosition<N> position_;
    BitTally tally_;
    int protection_ = unknown; // of the side to move: the same after all quiet moves to here
    int ply_ = 0;
    int budget_ = 0;
    int horizon_ = 0;
    int moves_ = 0;
    bool capture_ = false;
    std::size_t first_ = 0; // of this node's moves on the stack
    BitLine<N> line_;
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
        return context_.probe(child_, context_.material.tallies().of(child_).hash(), whiteToMove_,
                              beta, alpha, value);
    }

    Score search(int level, int depth, int alpha, int beta, BestLine &line) override {
        return whiteToMove_ ? run(white_, level, depth, alpha, beta, line)
                            : run(black_, level, depth, alpha, beta, line);
    }

    void noteStored(const board &b) override {
        const BitPosition<N> p(b);
        context_.table.note(b, p, context_.material.tallies().of(p).hash());
    }

private:
    using Squares = DarkSquares<N>;

    template <bool White>
    using Top = std::unique_ptr<BitNode<N, Rules, White>>;

    template <bool White>
    Score run(Top<White> &top, int level, int depth, int alpha, int beta, BestLine &line) {
        if (top == nullptr)
            top = std::make_unique<BitNode<N, Rules, White>>(context_, level);
        const Score value = top->searchAsTop(child_, ply_, depth, alpha, beta);
        top->line().writeTo(line, level);
        return value;
    }

    BitContext<N, Rules> context_;
    // The levels of the search, by the side to move at the highest.
    Top<true> white_;
    Top<false> black_;
    BitPosition<N> child_;
    bool whiteToMove_ = true;
    int ply_ = 0;
};

#endif
