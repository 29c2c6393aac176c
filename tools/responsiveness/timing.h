// Times that two processes can compare, and what is made of many of them.
#ifndef TOOLS_RESPONSIVENESS_TIMING_H
#define TOOLS_RESPONSIVENESS_TIMING_H

#include <algorithm>
#include <chrono>
#include <vector>

// Milliseconds on the machine's monotonic clock, which is the same for all its processes.
inline double nowMs() {
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

class Samples {
public:
    void add(double ms) {
        const auto place = std::upper_bound(sorted_.begin(), sorted_.end(), ms);
        sorted_.insert(place, ms);
    }
    bool isEmpty() const { return sorted_.empty(); }
    std::size_t count() const { return sorted_.size(); }
    // Of one sample or more.
    double least() const { return sorted_.front(); }
    double median() const { return sorted_[sorted_.size() / 2]; }
    double most() const { return sorted_.back(); }

private:
    std::vector<double> sorted_;
};

#endif
