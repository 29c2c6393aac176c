// The playing levels: how long or how deep the computer thinks.
#ifndef SEARCH_LEVELS_H
#define SEARCH_LEVELS_H

#include "search/thinkstatistic.h"

struct Level {
    const char *name; // in the settings, to be translated in the context "fsettings"
    int plies;        // thinks so deep; 0: for a time
    int seconds;
    int scoreNoise; // see thinkStatistic

    // Asks the searches that use the statistics to think so from now on.
    void request(thinkStatistic &statistic) const {
        if (plies > 0)
            statistic.setReqDepth(plies);
        else
            statistic.setReqTime(seconds);
        statistic.scoreNoise = scoreNoise;
    }
};

inline constexpr Level levels[] = {
    {QT_TRANSLATE_NOOP("fsettings", "Easy 1"), 1, 0, 1000},
    {QT_TRANSLATE_NOOP("fsettings", "Easy 2"), 2, 0, 400},
    {QT_TRANSLATE_NOOP("fsettings", "2 sec/move"), 0, 2, 5},
    {QT_TRANSLATE_NOOP("fsettings", "5 sec/move"), 0, 5, 5},
    {QT_TRANSLATE_NOOP("fsettings", "10 sec/move"), 0, 10, 5},
    {QT_TRANSLATE_NOOP("fsettings", "20 sec/move"), 0, 20, 5},
    {QT_TRANSLATE_NOOP("fsettings", "1 min/move"), 0, 60, 5},
    {QT_TRANSLATE_NOOP("fsettings", "infinite (until break)"), 0, thinkStatistic::unlimitedSeconds,
     5},
};
inline constexpr int defaultLevelItem = 3;

#endif
