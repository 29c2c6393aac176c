// Lets the application breathe while the search runs.
#ifndef SEARCH_EVENTPUMP_H
#define SEARCH_EVENTPUMP_H

#include "base/host.h"
#include "rules/listingwatch.h"
#include "search/abstractengine.h"

// The countdown's restart value: events are processed once every 201 nodes.
inline constexpr int nodesBetweenEvents = 200;

// The next node's count processes events.
inline bool eventsAreDue() {
    return AbstractEngine::eventLoop <= 0;
}

// Counts one node; when the countdown has run out, processes pending events and starts it again.
inline void pumpEvents(int restart) {
    if (--AbstractEngine::eventLoop >= 0)
        return;
    host().processEvents();
    ListingWatch::restart();
    AbstractEngine::eventLoop = restart;
}

#endif
