// ElapsedTime: a stopwatch on the host's clock.
#ifndef BASE_ELAPSEDTIME_H
#define BASE_ELAPSEDTIME_H

#include "base/host.h"

#include <algorithm>
#include <limits>

// Null until started.
class ElapsedTime {
public:
    bool isNull() const { return startedAt_ < 0; }
    void start() { startedAt_ = host().clockMs(); }
    // Milliseconds since start(); 0 when null. Stays at the largest int after some 24 days.
    int elapsed() const {
        if (isNull())
            return 0;
        const qint64 ms = host().clockMs() - startedAt_;
        return static_cast<int>(std::clamp<qint64>(ms, 0, std::numeric_limits<int>::max()));
    }

private:
    qint64 startedAt_ = -1;
};

#endif
