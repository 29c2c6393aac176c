// thinkStatistic: how the computer is to think, and how it thought.
#ifndef SEARCH_THINKSTATISTIC_H
#define SEARCH_THINKSTATISTIC_H

#include "base/elapsedtime.h"

#include <cstdlib>

// The playing level's request, the counters of the last search and the time control. One object,
// owned by the game and shared by all its engines. The counters stop at the largest int.
class thinkStatistic {
public:
    // A request of this many seconds or more is without limit: only BREAK, a decided score or a
    // clearly best move ends the search, and it neither uses nor changes the time credit.
    static constexpr int unlimitedSeconds = 99999999;

    int scoresCalculated;    // static evaluations made
    int nodes;               // positions searched
    int cutoffs;             // window cut-offs
    int senselessSacrifices; // nodes pruned as senseless sacrifices
    int hashHits;            // children answered from the hash table
    float growth;            // growth of the iteration time, as last estimated
    int movesGenerated;      // sum of the lengths of all move lists
    int maxLevel;            // deepest search level reached
    int elapsedMs;           // time of the last search
    int movesPerMs;          // movesGenerated per millisecond of the last search
    int timeCredit;          // ms saved on earlier moves; half of it may be spent on the next one
    bool giveAway;           // the side that cannot move wins
    int scoreNoise;          // evaluations add a random number below this; below 1: nothing
    int reqTime;             // seconds a move; -1 when a depth is requested
    int lastIterationMs;     // clock at the end of the last completed iteration
    int prevIterationMs;     // clock at the end of the one before
    int reqDepth;            // plies; -1 when a time is requested
    ElapsedTime timer;       // clock of the running search

    // 5 seconds a move, no credit, no give-away, no noise; counters and clock as clear() sets them.
    thinkStatistic();

    // Forgets the time credit and the counters.
    void newGame();
    // Zeroes the counters and starts the clock: a search begins.
    void clear();
    // A search ends; `moves` is the number of legal moves at its root. With more than one of them
    // the time left over (or overrun, negative) goes to the credit.
    void stop(int moves);

    // Requests a time and forgets the credit.
    void setReqTime(int seconds);
    int getReqTime() const { return reqTime; }
    // Requests a depth and forgets the credit; below 1 the request stays as it was.
    void setReqDepth(int plies);
    int getReqDepth() const { return reqDepth; }

    // What the time control may plan with for one move, in ms: the requested time and half of the
    // credit, 0.7 to 4 times the requested time. Negative when a depth is requested.
    qint64 budgetMs() const;
    // Clock reading, in ms, at which an iteration one ply deeper is expected to end; `moves` as in
    // stop(). Reads lastIterationMs and prevIterationMs, sets `growth`.
    int Estimate(int moves);
    // Notes the end of an iteration; true when the next one is expected to end within the budget.
    bool canTry(int moves);

    // The level's random term of an evaluation: 0 to scoreNoise - 1.
    int randomTerm() const { return scoreNoise > 1 ? std::rand() % scoreNoise : 0; }

    // Adds to a counter, stopping at the largest int.
    static void count(int &counter, qint64 more);
};

#endif
