#include "tests/search/drawntree.h"

#include <gtest/gtest.h>

#include <charconv>

namespace {

using Node = DrawnTree::Node;

Node readNode(const char *&at) {
    Node node;
    if (*at == 'x')
        node.isCapture = *at++ == 'x';
    if (*at == '=') {
        for (++at; *at >= 'a' && *at <= 'z'; ++at)
            node.sameAs += *at;
        return node;
    }
    at = std::from_chars(at, at + std::string(at).size(), node.material).ptr;
    if (*at == '#')
        node.isEnd = *at++ == '#';
    if (*at != '(')
        return node;
    for (++at; *at != ')'; at += *at == ' ')
        node.replies.push_back(readNode(at));
    ++at;
    return node;
}

// A position is the way to it: a piece without colour on (ply, reply) for every move. The bit sets
// cannot have that, and the analysis finds nothing in it.
class TreeEngine : public AbstractEngine {
public:
    TreeEngine(DrawnTree &tree, ::board *b, int budget)
        : AbstractEngine(b, budget, &tree.statistic, maxBoardSize), tree_(tree) {
        const int plies = b->plyCount - tree.rootPly;
        for (int ply = 0; ply < plies; ++ply) {
            int reply = 0;
            while (b->squares[ply][reply] == 0)
                ++reply;
            name_ += static_cast<char>('a' + reply);
            if (node_->replies.empty())
                ++beyond_;
            else
                node_ = &node_->replies[static_cast<std::size_t>(reply)];
        }
    }

    bool FillMoveList() override {
        releaseMoves();
        tree_.listed += ' ' + name_;
        const int ply = board->plyCount - tree_.rootPly;
        for (int i = 0; i < replyCount(); ++i) {
            moveList.append(LegalMove({ply, maxBoardSize - 1}, {ply, i}));
            if (reply(i).isCapture)
                moveList.last().insTaken({ply, i}, 0);
        }
        return moveList.isEmpty();
    }
    bool FillNotCapturingMoveList(QValueList<LegalMove> *, ::board *) override { return false; }
    const char *className() override { return "TreeEngine"; }
    int materialScore(heuristic *) override {
        ++statistic->scoresCalculated;
        return beyond_ % 2 == 0 ? node_->material : -node_->material;
    }
    AbstractEngine *selfClone(::board *b, int budget, thinkStatistic *, int) override {
        auto *clone = new TreeEngine(tree_, b, budget);
        tree_.cloned += ' ' + clone->name_ + ':' + std::to_string(budget);
        return clone;
    }
    bool aboutToPass() override { return false; }
    int SafeDiag(XY &, int) override { return 0; }
    void makeMove(::board *b, LegalMove *m) override {
        const int i = m->to().y;
        const std::string &sameAs = reply(i).sameAs;
        const std::string name = sameAs.empty() ? name_ + static_cast<char>('a' + i) : sameAs;
        b->clear();
        for (int ply = 0; ply < static_cast<int>(name.size()); ++ply)
            b->squares[ply][name[static_cast<std::size_t>(ply)] - 'a'] = codeMan;
        b->whiteToMove = !b->whiteToMove;
        ++b->plyCount;
    }

private:
    int replyCount() const {
        constexpr int quietReplies = 3;
        if (node_->replies.empty())
            return node_->isEnd ? 0 : quietReplies;
        return static_cast<int>(node_->replies.size());
    }
    const Node &reply(int i) const {
        static const Node quiet;
        return node_->replies.empty() ? quiet : node_->replies[static_cast<std::size_t>(i)];
    }

    DrawnTree &tree_;
    const Node *node_ = &tree_.root;
    int beyond_ = 0; // plies below the last node drawn
    std::string name_;
};

board emptyBoard(int ply) {
    board b(maxBoardSize);
    b.clear();
    b.plyCount = ply;
    b.whiteToMove = ply % 2 == 0;
    return b;
}

} // namespace

DrawnTree::DrawnTree(const std::string &text, int ply)
    : EngineRig(RuleSet::International, emptyBoard(ply)), rootPly(ply) {
    const char *at = text.c_str();
    root = readNode(at);
    EXPECT_EQ(std::string(at), "") << text;
    engine = std::make_unique<TreeEngine>(*this, &position, 1);
}

std::string DrawnTree::searchNode(int plies, int level, int alpha, int beta) {
    listed.clear();
    cloned.clear();
    engine->depth = 10 * plies;
    const LegalMove *best =
        engine->getBestMove(level, score, Score(alpha, -1), Score(beta, -1), line, false);
    return best == nullptr ? "none" : std::string(1, static_cast<char>('a' + best->to().y));
}

LegalMove &DrawnTree::move(char letter) {
    for (LegalMove &m : engine->moveList) {
        if (m.to().y == letter - 'a')
            return m;
    }
    ADD_FAILURE() << "no move " << letter;
    return engine->moveList.first();
}
