// SearchContext: what all nodes of one search share.
#ifndef SEARCH_SEARCHCONTEXT_H
#define SEARCH_SEARCHCONTEXT_H

#include "search/abstractengine.h"
#include "search/listingwatch.h"

#include <QtGlobal>

#include <algorithm>
#include <memory>

class DeepSearch;

// Made by the call that starts a search (an iteration of the drivers, or a single node for a caller
// of its own) and handed down to every node by reference, over engines and over bit sets. It counts
// and it processes events; the counts are in the statistics whenever events are processed and once
// the search has ended. What a user of the engine sees and sets meanwhile are the public statics of
// AbstractEngine.
class SearchContext {
public:
    // `statistic` stays the caller's.
    explicit SearchContext(thinkStatistic &statistic);
    ~SearchContext();
    SearchContext(const SearchContext &) = delete;
    SearchContext &operator=(const SearchContext &) = delete;

    const thinkStatistic &statistic() const { return statistic_; }
    // The side that cannot move wins.
    bool giveAway() const { return giveAway_; }
    // To be asked by listings of captures.
    ListingWatch &listingWatch() { return listingWatch_; }

    // Makes the deep search for the root's position, if there can be one. The transposition table
    // must be empty.
    void startDeepSearch(const AbstractEngine &root);
    // The search of the levels that no engine hangs on; null when engines do all. Not the caller's.
    DeepSearch *deepSearch() const { return deepSearch_.get(); }

    // Counts a node and its moves, and processes events when it is time.
    void countNode(int level, int moves) {
        ++counts_.nodes;
        counts_.moves += moves;
        if (counts_.maxLevel < level)
            counts_.maxLevel = level;
        if (--AbstractEngine::eventLoop < 0)
            processEvents();
    }
    void countStaticValue() { ++counts_.staticValues; }
    void countCutoff() { ++counts_.cutoffs; }
    void countSacrifice() { ++counts_.sacrifices; }
    void countHashHit() { ++counts_.hashHits; }

private:
    // Counts since the last flush; the statistics' own counters stop at the largest int.
    struct Counts {
        qint64 nodes = 0;
        qint64 staticValues = 0;
        qint64 moves = 0;
        qint64 cutoffs = 0;
        qint64 sacrifices = 0;
        qint64 hashHits = 0;
        int maxLevel = 0;
    };

    void processEvents();
    // Adds the counts to the statistics: slots that events call may read them.
    void flush();

    Counts counts_;
    const bool giveAway_;
    thinkStatistic &statistic_;
    ListingWatch listingWatch_;
    std::unique_ptr<DeepSearch> deepSearch_;
};

#endif
