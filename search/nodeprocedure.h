// The node procedure of the search, written once for every kind of node.
#ifndef SEARCH_NODEPROCEDURE_H
#define SEARCH_NODEPROCEDURE_H

#include "rules/listingwatch.h"
#include "search/abstractengine.h"
#include "search/movesort.h"
#include "search/score.h"

// At this many plies below the root a node is valued statically whatever it holds: captures and
// single moves are searched on past the horizon, and there are positions where they never end.
inline constexpr int levelLimit = 100;

// The budget of a node where a capture must be made grows by this, in tenths of a ply.
inline constexpr int captureExtension = 7;

// Negamax alpha-beta over one node. A Node is a position with its move list; it supplies:
//   Line                               the kind of best line it fills, see BestLine
//   int budget()                       depth budget, tenths of a ply
//   void begin(level)                  preparations before anything else
//   bool listMoves()                   lists and orders the moves; true when there is none
//   void count(level)                  bookkeeping and event processing
//   int moves(), bool mustCapture()    number of moves; whether they are captures
//   int ply()                          half-moves since the start of the game
//   bool giveAway()
//   int material()                     static value without an analysis
//   bool staticValue(level, horizon, value)   analyses; false when a man's run delays the value
//   void prepareMoves()                called once before the moves are searched
//   void enter(i, budget)              sets up the child of move i
//   int score(i), void setScore(i, s)  value the move had, has
//   bool probe(i, beta, alpha, score)  answers the child from the transposition table
//   void search(i, level, score, alpha, beta, line)   searches the child
//   void leave(i, level)               releases the child where it is not kept
//   void updateLine(line, i, level)    records move i as the best
//   void countCutoff()
//   void record(value, alpha0, beta, insert)   writes the search record, stores it when `insert`
//   void addChoiceBonus(result)        adds the bonus for several good moves
//   void trace(alpha0, beta)
template <class Node>
class NodeProcedure {
    using Line = typename Node::Line;

public:
    NodeProcedure(Node &node, int level)
        : node_(node), level_(level), horizon_(node.budget() / 10) {}

    // Values the node into `result` from its side's point of view. Returns the index of the best
    // move, -1 when the moves were not searched or the search was cut off. Window: see
    // AbstractEngine::getBestMove.
    int run(Score &result, Score alpha, Score beta, Line &line) {
        line.setTop(level_);
        node_.begin(level_);
        reviveNone(alpha);
        reviveNone(beta);
        if (level_ > 0 && AbstractEngine::breakThinking) {
            breakOff(level_, result, line);
            return -1;
        }
        const bool noMoves = node_.listMoves();
        if (ListingWatch::isGivenUp()) { // a part of the list says nothing
            breakOff(level_, result, line);
            return -1;
        }
        node_.count(level_);
        result.setNone(horizon_);
        if (valuedUnsearched(noMoves, result, alpha, beta))
            return -1;
        const int extension = node_.mustCapture() ? captureExtension : 0;
        return searchMoves(node_.budget() + extension, result, alpha, beta, line);
    }

    // What a node answers once the search is broken off.
    static void breakOff(int level, Score &result, Line &line) {
        line.setTop(level);
        result.setNone(-1);
    }

private:
    static void reviveNone(Score &bound) {
        if (bound.isNone())
            bound.value = Score::none;
    }

    // Nodes that end here: the level limit, no move, a senseless sacrifice, a quiet position at the
    // horizon. A position with a capture to make is always searched.
    bool valuedUnsearched(bool noMoves, Score &result, const Score &alpha, const Score &beta) {
        if (level_ >= levelLimit) {
            result.set(signedMaterial(node_), node_.ply());
            return true;
        }
        if (noMoves) {
            const int loss = Score::lost + level_;
            result.set(node_.giveAway() ? -loss : loss, horizon_);
            return true;
        }
        if (node_.mustCapture())
            return false;
        int value = 0;
        const bool done = canScore(level_, horizon_, node_.moves())
                              ? node_.staticValue(level_, horizon_, value)
                              : senselessSacrifice(node_, alpha, beta, value);
        if (done)
            result.set(value, node_.ply());
        return done;
    }

    // The last move of the list first. Children get the bounds swapped and not negated.
    int searchMoves(int childBudget, Score &result, Score alpha, const Score &beta, Line &line) {
        const int alpha0 = alpha.value;
        int best = -1;
        Line childLine;
        node_.prepareMoves();
        for (int i = node_.moves() - 1; i >= 0; --i) {
            Score value(Score::none, horizon_);
            searchMove(i, childBudget, value, alpha, beta, childLine);
            if (value.isNone()) {
                node_.setScore(i, Score::none);
                continue;
            }
            value.neg();
            node_.setScore(i, value.value);
            if (value > result) {
                result = value;
                best = i;
                line.copyFrom(&childLine, level_ + 1);
                node_.updateLine(line, i, level_);
            }
            if (value > alpha)
                alpha = value;
            if (i > 0 && cutsOff(value, alpha, beta)) {
                finishCutOff(value, result, alpha0, beta);
                return -1;
            }
        }
        if (level_ + 1 >= horizon_)
            node_.addChoiceBonus(result);
        node_.record(result, alpha0, beta, alpha0 != -beta.value);
        node_.trace(alpha0, beta);
        return best;
    }

    // A decided score of the last iteration stands; otherwise the table or a search answers.
    void searchMove(int i, int childBudget, Score &value, const Score &alpha, const Score &beta,
                    Line &childLine) {
        node_.enter(i, childBudget);
        const Score stored(-node_.score(i), horizon_);
        if (stored.aroundGameOver())
            value = stored;
        else if (!node_.probe(i, beta.value, alpha.value, value))
            node_.search(i, level_ + 1, value, beta, alpha, childLine);
        node_.leave(i, level_);
    }

    static bool cutsOff(const Score &value, const Score &alpha, const Score &beta) {
        return -value.value <= beta.value || (!alpha.isNone() && -alpha.value <= beta.value);
    }

    // A cut-off on the window alone leaves no record.
    void finishCutOff(const Score &value, Score &result, int alpha0, const Score &beta) {
        node_.countCutoff();
        result = value;
        if (-value.value <= beta.value)
            node_.record(result, alpha0, beta, true);
        node_.trace(alpha0, beta);
    }

public:
    // The rules of static valuation, shared with AbstractEngine's operations of these names.
    static bool canScore(int level, int horizon, int moves) {
        constexpr int surelyBeyond = 3;
        if (level < horizon || moves <= 1)
            return false;
        return level > horizon + surelyBeyond || moves >= 3;
    }

    // Seen from the parent and counted in thousands, the material balance is already below what the
    // parent is sure to get elsewhere. With few pieces left one unit more may be given.
    static bool senselessSacrifice(Node &node, const Score &alpha, const Score &beta,
                                   int &material) {
        if (beta.isNone() || beta.aroundGameOver() || alpha.aroundGameOver())
            return false;
        material = signedMaterial(node);
        const int balance = -Score::hiPart(material) + (AbstractEngine::isGambit ? 1 : 0);
        if (balance >= Score::hiPart(beta.value))
            return false;
        node.countSacrifice();
        return true;
    }

private:
    static int signedMaterial(Node &node) {
        const int material = node.material();
        return node.giveAway() ? -material : material;
    }

    Node &node_;
    const int level_;
    const int horizon_;
};

#endif
