// BitLine: the principal variation below the levels that engines hang on.
#ifndef BITS_BITLINE_H
#define BITS_BITLINE_H

#include "bits/darksquares.h"
#include "search/bestline.h"

#include <algorithm>

// A BestLine in bit indices. It starts without contents but `top`;
// entries are read only below the `top` of a line, and those have been written.
template <int N>
class BitLine {
public:
    BitLine() : top_(0) {}

    void setTop(int level) { top_ = level; }
    void updateAt(std::uint8_t from, std::uint8_t to, int score, int level) {
        if (level < BestLine::levels)
            entries_[level] = {score, from, to};
    }
    void copyFrom(const BitLine &other, int level) {
        top_ = other.top_;
        for (int i = level; i < std::min(top_, BestLine::levels); ++i)
            entries_[i] = other.entries_[i];
    }
    // Writes `top` and the entries from `level` on into a BestLine.
    void writeTo(BestLine &line, int level) const {
        line.setTop(top_);
        for (int i = level; i < std::min(top_, BestLine::levels); ++i) {
            line.updateAt(DarkSquares<N>::squareOf(entries_[i].from),
                          DarkSquares<N>::squareOf(entries_[i].to), entries_[i].score, i);
        }
    }

private:
    struct Entry {
        int score;
        std::uint8_t from;
        std::uint8_t to;
    };

    int top_;
    Entry entries_[BestLine::levels];
};

#endif
