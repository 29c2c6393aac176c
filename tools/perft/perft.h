// perft: the move tree of a position, counted by depth.
#ifndef TOOLS_PERFT_PERFT_H
#define TOOLS_PERFT_PERFT_H

#include "rules/board.h"
#include "rules/ruleset.h"

#include <QString>

#include <functional>
#include <vector>

// Counts with bit sets, the last ply without playing it. Every route of a capture counts, as the
// move generation lists them.
class Perft {
public:
    // `b` must be a position that readPositionLine() accepts, or one reached by play.
    Perft(RuleSet rules, const board &b);

    // Counts captures of one piece that take the same pieces and end on the same square as one, as
    // published figures often do.
    void setDistinct(bool distinct) { distinct_ = distinct; }

    // Called from time to time during a count with the number of positions so far.
    using Progress = std::function<void(quint64)>;
    void setProgress(Progress progress) { progress_ = std::move(progress); }

    // Number of positions after `depth` plies; 1 for depth 0.
    quint64 count(int depth) const;

    struct Share {
        QString move;
        quint64 positions;
    };
    // The same by the first move, in the order of generation. Depth 1 or more.
    std::vector<Share> divide(int depth) const;

private:
    quint64 countFrom(const board &b, int depth) const;

    RuleSet rules_;
    board position_;
    bool distinct_ = false;
    Progress progress_;
};

#endif
