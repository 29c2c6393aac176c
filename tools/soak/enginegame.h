// EngineGame: a game of the computer against itself, without a window, that watches itself.
#ifndef TOOLS_SOAK_ENGINEGAME_H
#define TOOLS_SOAK_ENGINEGAME_H

#include "app/choices.h"
#include "base/host.h"
#include "eval/squaresvalue.h"
#include "search/hashtable.h"
#include "search/thinkstatistic.h"

#include <functional>
#include <memory>
#include <random>

class AbstractEngine;
class LegalMove;

struct GameSetup {
    RuleSet rules = RuleSet::International;
    int size = 10;
    bool giveAway = false;
    Level level{};
    unsigned int seed = 1; // of the random opening and of the searches
    int openingPlies = 0;  // random moves before the computer plays
    int mostPlies = 0;     // the game is cut there
};

struct GameOutcome {
    enum class End { WhiteMovesNoMore, BlackMovesNoMore, Cut };
    End end = End::Cut;
    int plies = 0;
    qint64 nodes = 0;
    QString fault; // what went wrong, and where; empty when nothing did
};

// What lives as long as the program does, as in the game: the statistics, the square values and the
// hash table. Boxes and the seed go through it while it exists.
class SoakTable : public Host {
public:
    thinkStatistic statistic;
    SquaresValue values{10, false};
    hashTable table{10003};

    SoakTable();
    ~SoakTable() override;
    SoakTable(const SoakTable &) = delete;
    SoakTable &operator=(const SoakTable &) = delete;

    unsigned int nextSeed = 1;
    QString boxes; // shown since the last look

    bool messageBox(BoxKind kind, const QString &title, const QString &text, BoxButtons buttons,
                    QWidget *parent) override;
    // A clearly best move is not held back.
    void pause(int) override {}
    unsigned int seed() override { return nextSeed; }

private:
    Host *previous_;
};

// A search that was made: how long it might take and took.
struct Thought {
    int moves; // legal moves at the root
    qint64 budgetMs;
    int usedMs;
    int depth; // plies
};

class EngineGame {
public:
    EngineGame(SoakTable &table, const GameSetup &setup);
    ~EngineGame();

    // Called after every search; false cuts the game.
    using Watch = std::function<bool(const Thought &)>;
    // Plays until a side has no move, the limit or a fault. Every move is checked against the plain
    // twin of the rules, every search's figures for sense, the table after the game.
    GameOutcome play(const Watch &watch);

private:
    void playOpening();
    bool playOne(const Watch &watch, GameOutcome &outcome);
    QString playChecked(const LegalMove &move);
    QString searchFault(const LegalMove *move) const;

    SoakTable &table_;
    const GameSetup setup_;
    std::mt19937 random_;
    board position_;
    std::unique_ptr<AbstractEngine> engine_;
};

#endif
