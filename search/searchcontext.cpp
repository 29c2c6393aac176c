#include "search/searchcontext.h"

#include "base/host.h"
#include "search/deepsearch.h"
#include "search/thinkstatistic.h"

namespace {

// The countdown's restart value: events are processed once every 201 nodes.
constexpr int nodesBetweenEvents = 200;

} // namespace

SearchContext::SearchContext(thinkStatistic &statistic)
    : giveAway_(statistic.giveAway), statistic_(statistic), listingWatch_([this] {
          flush();
          host().processEvents();
          return !AbstractEngine::breakThinking;
      }) {}

SearchContext::~SearchContext() {
    flush();
}

void SearchContext::startDeepSearch(const AbstractEngine &root) {
    deepSearch_ = DeepSearch::make(root, *this);
}

void SearchContext::processEvents() {
    flush();
    host().processEvents();
    listingWatch_.restart();
    AbstractEngine::eventLoop = nodesBetweenEvents;
}

void SearchContext::flush() {
    thinkStatistic::count(statistic_.nodes, counts_.nodes);
    thinkStatistic::count(statistic_.movesGenerated, counts_.moves);
    thinkStatistic::count(statistic_.scoresCalculated, counts_.staticValues);
    thinkStatistic::count(statistic_.cutoffs, counts_.cutoffs);
    thinkStatistic::count(statistic_.senselessSacrifices, counts_.sacrifices);
    thinkStatistic::count(statistic_.hashHits, counts_.hashHits);
    statistic_.maxLevel = std::max(statistic_.maxLevel, counts_.maxLevel);
    counts_ = {};
}
