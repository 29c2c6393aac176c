// Bytes: a fuzzer's input, taken apart from the front.
#ifndef TOOLS_FUZZ_BYTES_H
#define TOOLS_FUZZ_BYTES_H

#include <QByteArray>

#include <cstddef>
#include <cstdint>

class Bytes {
public:
    Bytes(const std::uint8_t *data, std::size_t size) : next_(data), end_(data + size) {}

    bool empty() const { return next_ == end_; }
    // The next byte, 0 when there are no more.
    int take() { return empty() ? 0 : *next_++; }
    // A number from 0 to n - 1, n at most 256.
    int below(int n) { return take() % n; }
    // All that is left.
    QByteArray rest() {
        const QByteArray text(reinterpret_cast<const char *>(next_), end_ - next_);
        next_ = end_;
        return text;
    }

private:
    const std::uint8_t *next_;
    const std::uint8_t *end_;
};

#endif
