// Bytes: the input of a property, taken apart from the front.
#ifndef TESTS_PROPERTIES_BYTES_H
#define TESTS_PROPERTIES_BYTES_H

#include <algorithm>
#include <cstddef>
#include <cstdint>

class Bytes {
public:
    Bytes(const std::uint8_t *data, std::size_t size) : next_(data), end_(data + size) {}

    bool empty() const { return next_ == end_; }
    // The next byte, 0 when there are no more.
    int take() { return empty() ? 0 : *next_++; }
    // The next n bytes, or fewer when there are no more, to be taken apart by themselves.
    Bytes front(std::ptrdiff_t n) {
        const std::uint8_t *const start = next_;
        next_ += std::min(n, end_ - next_);
        return {start, static_cast<std::size_t>(next_ - start)};
    }
    // A number from 0 to n - 1, n at most 256.
    int below(int n) { return take() % n; }
    // One of the items of an array.
    template <class Item, std::size_t n>
    const Item &oneOf(const Item (&items)[n]) {
        return items[below(static_cast<int>(n))];
    }

private:
    const std::uint8_t *next_;
    const std::uint8_t *end_;
};

#endif
