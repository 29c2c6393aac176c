// AbstractEngine: the computer player, over rule operations that each rule set supplies.
#ifndef SEARCH_ABSTRACTENGINE_H
#define SEARCH_ABSTRACTENGINE_H

#include "base/qvaluelist.h"
#include "rules/board.h"
#include "rules/legalmove.h"
#include "search/score.h"

#include <vector>

class BestLine;
class ListingWatch;
class QTextStream;
class SquaresValue;
class hashTable;
class heuristic;
class thinkStatistic;

// An engine is bound to one board for its life and holds that position's legal moves. The search
// makes one engine per position it expands; each move of a list owns the engine and board of the
// position after it (`subEngine`, `subBoard`), so the engines form a tree that lives until the
// root's list is filled again or the root is destroyed.
//
// The rule sets derive from this class; all calls between rule operations are virtual. Depth
// budgets are in tenths of a ply. Only one search may run at a time, in the whole program; it
// processes pending events, and meanwhile nothing may touch the engine, its board or the
// statistics: only `breakThinking` may be set.
class AbstractEngine {
public:
    int depth;                      // the search's depth budget, tenths of a ply
    ::board *board;                 // the position, not owned
    int size;                       // squares a side
    QValueList<LegalMove> moveList; // as of the last FillMoveList()
    thinkStatistic *statistic;      // not owned, shared by all engines of a game

    // Where the engine is a search's root: levels that no engine need hang on may be left to a
    // DeepSearch, which finds the same. False has them searched over engines, for comparing.
    bool deepSearchAllowed = true;

    static bool breakThinking;   // request to stop the running search
    static bool isGambit;        // few pieces are left in the game's position
    static int eventLoop;        // nodes until pending events are processed
    static int absHorizon;       // ply counter at the horizon of the running iteration
    static SquaresValue *pSQV;   // the square values in force, not owned
    static hashTable *pHT;       // the transposition table, not owned
    static const XY jmpInter[4]; // the four diagonal steps, in the order all loops take them
    static const XY jmpEnd[4];   // the same, doubled

    // Points for a square that a side holds or can reach, while it has few of them.
    static constexpr int freedomValue = 20;

    AbstractEngine(::board *b, int depth, thinkStatistic *stat, int size);
    // Releases the tree under the engine; the board stays.
    virtual ~AbstractEngine();
    AbstractEngine(const AbstractEngine &) = delete;
    AbstractEngine &operator=(const AbstractEngine &) = delete;

    // Lists the legal moves of the board after releasing the old list's tree. True when there is
    // none. Listing sets the can-move marks of the board's men. Captures that can come in great
    // numbers are listed under countJump().
    virtual bool FillMoveList() = 0;
    // Replaces `list` by the non-capturing moves of the side to move in `b`, captures not looked
    // at; sets the can-move marks. True when there is one.
    virtual bool FillNotCapturingMoveList(QValueList<LegalMove> *list, ::board *b) = 0;
    virtual const char *className() = 0;
    // Static value of the board in points for the side to move, plus the level's random term.
    // `h` is an analysis of the board when some side can reach its promotion row, or null.
    virtual int materialScore(heuristic *h) = 0;
    // A new engine of the same rules; the caller owns it.
    virtual AbstractEngine *selfClone(::board *b, int depth, thinkStatistic *stat, int size) = 0;
    // Some man of either colour stands one row before promotion and carries the can-move mark.
    virtual bool aboutToPass() = 0;
    // How many of the two neighbours of the piece on `p` along diagonal d (0: (+1,+1), 1: (+1,-1))
    // protect it: own pieces, or the board's edge.
    virtual int SafeDiag(XY &p, int d) = 0;
    // Plays `m`, a move of the side to move, on `b`: moves and crowns the piece, removes what was
    // taken, passes the turn.
    virtual void makeMove(::board *b, LegalMove *m) = 0;

    // FillMoveList() under a watch: the list is worth nothing when the watch says so afterwards.
    bool listMoves(ListingWatch &watch);
    const QValueList<LegalMove> *getMoveList() const { return &moveList; }
    // The i-th move, i >= 0; null beyond the last. Valid until the list is filled again.
    LegalMove *getLegalMove(int i);
    // The side to move must capture, as of the last listing.
    bool isCapture() const;
    static void setSQV(SquaresValue *v) { pSQV = v; }
    static void setHashTable(hashTable *t) { pHT = t; }
    static bool getGambit() { return isGambit; }

    // Searches the board by the request in the statistics: iterative deepening, one ply a time, to
    // a depth or within a time. Returns an entry of `moveList`, valid until that is filled again;
    // null when there is no legal move. `score` receives the value for the side to move, `line` the
    // principal variation. Ends with a beep.
    LegalMove *getBestMove(Score &score, BestLine &line);
    // The two drivers of that, same contract but for the beep and the preparations.
    LegalMove *getBestMoveFixTime(Score &score, BestLine &line);
    LegalMove *getBestMoveFixDepth(Score &score, BestLine &line);

    // Negamax alpha-beta search of one node at `level` plies below the root. `alpha` is the best
    // value the side to move here is sure of; `beta` the best value the other side is sure of, in
    // that side's point of view (not negated). `result` receives the node's value, `line` the
    // principal variation from this level down. Returns the best move, null when the node was
    // valued without searching its moves or ended in a cut-off. `trace` prints the searched moves.
    LegalMove *getBestMove(int level, Score &result, Score alpha, Score beta, BestLine &line,
                           bool trace);
    // The node may be valued statically: at or beyond the horizon, with moves to choose from.
    bool canScore(int level) const;
    // A man that can run to promotion delays that by one level.
    bool canScore(int level, bool canPass) const;
    // Analyses the board into `h`: `freedom` is the mobility term in points for the side to move,
    // `canPass` whether some side can reach its promotion row. Returns `h` if so, else null.
    heuristic *doHeuristic(heuristic *h, int &freedom, bool &canPass);
    // The line that led here gave away material for nothing: counted in thousands, it is below what
    // the parent is sure of. `material` receives the node's material value when that was asked for.
    bool senseLessSacryfice(const Score &alpha, const Score &beta, int &material);
    // A record of child position `b` answers for it within the window of this node; it is copied
    // into `b`, its score none when it cannot raise alpha.
    bool canUseHT(::board *b, int betaValue, int alphaValue);
    // Prints the node and its moves' scores on standard output; the child's key is not shown.
    void printPLM(int alpha0, int beta, unsigned int thisKey, unsigned int childKey, int level);
    // Writes every position down to `depth` levels (here the plain number), without pruning.
    void genFullTree(QTextStream &ts, int level);

    // The list has more moves than come up in games: captures that branch. What the search keeps of
    // the positions after so many moves is at rest; and such a list is let go of bit by bit.
    bool isCrowded() const { return moveList.count() > crowd; }
    // Packs the move list and the tree below it into few bytes; the list is empty then.
    void rest();
    // Brings the list back as it was, if it is at rest. The engines below it stay so.
    void wake();
    // Frees a bit of the lists that have been let go of.
    void freeDiscarded();

    // Forgets all moves' scores: a fresh list is searched in reverse order of generation.
    void randMoveList();
    // Makes the move list the engine's own before an iteration changes it. Lists share nothing with
    // their copies, so nothing is left to do.
    void randTestSort();
    // Cuts the depth of moves that scored worse than the list's last, which is the best.
    static void depthUpdate(QValueList<LegalMove> *list);
    // A position with several good moves is worth up to 21 points more.
    void updatePoints(Score &s) const;
    // One root move is clearly better than all others, at sufficient depth.
    bool FavouriteMove(const QValueList<LegalMove> *list) const;
    // `v` lies outside the window.
    static bool outsideRange(int v, const Score &alpha, const Score &beta);

protected:
    // Empties the move list and releases the engines and boards that its moves own; those of a
    // crowded list bit by bit, in later calls of this and of freeDiscarded().
    void releaseMoves();
    // To be asked at every jump but the first of a sequence of captures: true when the listing is
    // to end there, with what it has, because the search that wanted it is broken off.
    bool countJump();
    // A static value in points for the side to move, made of a balance (white's points minus
    // black's): counts the evaluation and adds the level's random term.
    int staticValue(int balance);

private:
    static constexpr int crowd = 500;

    class SavedRoot;

    bool startDriver(Score &score);
    bool runIteration(Score &score, LegalMove *&best, BestLine &line);
    bool atLevelLimit() const;
    LegalMove *finishDriver(SavedRoot &saved, const LegalMove *last);
    std::size_t packedSize() const;
    void packInto(std::vector<unsigned char> &bytes) const;

    std::vector<unsigned char> atRest_; // the list, packed; empty unless it is at rest
    QValueList<LegalMove> discarded_;
    ListingWatch *watch_ = nullptr; // over the running listing, if any; not owned
};

#endif
