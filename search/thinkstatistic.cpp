#include "search/thinkstatistic.h"

#include <algorithm>
#include <limits>

namespace {

// An iteration one ply deeper is taken to last at least twice as long, and at most this many times
// the number of root moves as long, as the last one.
constexpr double growthPerMove = 0.7;
constexpr float leastGrowth = 2.0F;

int clampToInt(qint64 n) {
    return static_cast<int>(
        std::clamp<qint64>(n, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

thinkStatistic::thinkStatistic()
    : timeCredit(0), giveAway(false), scoreNoise(0), reqTime(5), reqDepth(-1) {
    clear();
}

void thinkStatistic::newGame() {
    timeCredit = 0;
    clear();
}

void thinkStatistic::clear() {
    scoresCalculated = 0;
    nodes = 0;
    cutoffs = 0;
    senselessSacrifices = 0;
    hashHits = 0;
    growth = 0.0F;
    movesGenerated = 0;
    maxLevel = 0;
    elapsedMs = 0;
    movesPerMs = 0;
    lastIterationMs = 0;
    prevIterationMs = 0;
    timer.start();
}

void thinkStatistic::stop(int moves) {
    elapsedMs = timer.elapsed();
    movesPerMs = elapsedMs == 0 ? 0 : movesGenerated / elapsedMs;
    if (moves > 1 && reqTime < unlimitedSeconds)
        timeCredit = clampToInt(timeCredit + qint64{1000} * reqTime - lastIterationMs);
}

void thinkStatistic::setReqTime(int seconds) {
    reqTime = seconds;
    reqDepth = -1;
    timeCredit = 0;
}

void thinkStatistic::setReqDepth(int plies) {
    if (plies < 1)
        return;
    reqTime = -1;
    reqDepth = plies;
    timeCredit = 0;
}

int thinkStatistic::Estimate(int moves) {
    const double mostGrowth = growthPerMove * moves;
    float g = static_cast<float>(lastIterationMs) / (static_cast<float>(prevIterationMs) + 1.0F);
    if (g > mostGrowth)
        g = static_cast<float>(mostGrowth);
    g = std::max(g, leastGrowth);
    growth = g;
    const float end = static_cast<float>(lastIterationMs) * g;
    constexpr auto latest = static_cast<float>(std::numeric_limits<int>::max());
    return end >= latest ? std::numeric_limits<int>::max() : static_cast<int>(end);
}

qint64 thinkStatistic::budgetMs() const {
    const qint64 seconds = reqTime;
    const qint64 credit = reqTime < unlimitedSeconds ? timeCredit / 2 : 0;
    return std::min(std::max(1000 * seconds + credit, 700 * seconds), 4000 * seconds);
}

bool thinkStatistic::canTry(int moves) {
    const qint64 budget = budgetMs();
    lastIterationMs = timer.elapsed();
    const int expectedEnd = Estimate(moves);
    prevIterationMs = lastIterationMs;
    return expectedEnd <= budget;
}

void thinkStatistic::count(int &counter, qint64 more) {
    counter = clampToInt(counter + more);
}
