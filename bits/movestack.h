// MoveStack: the move lists of a line of nodes, one above the other.
#ifndef BITS_MOVESTACK_H
#define BITS_MOVESTACK_H

#include <algorithm>
#include <cstddef>
#include <memory>

// A stack of trivially copyable moves that keeps its memory. A node lists its moves on top and cuts
// the stack back when it is done. Moves are named by their index: an append may move them all.
template <class Move>
class MoveStack {
public:
    std::size_t size() const { return size_; }
    Move &operator[](std::size_t i) { return moves_[i]; }
    const Move &operator[](std::size_t i) const { return moves_[i]; }

    void append(const Move &move) {
        if (size_ == capacity_)
            grow();
        moves_[size_++] = move;
    }
    // Makes room for `count` more moves and returns the place of the first, to be written before
    // anything else is asked of the stack.
    Move *room(std::size_t count) {
        while (capacity_ - size_ < count)
            grow();
        return moves_.get() + size_;
    }
    // Takes in the moves that were written from room() up to `end`.
    void extendTo(const Move *end) { size_ = static_cast<std::size_t>(end - moves_.get()); }
    // Drops everything from index `size` on.
    void cut(std::size_t size) { size_ = size; }

private:
    [[gnu::noinline]] void grow() {
        const std::size_t wanted = std::max<std::size_t>(2 * capacity_, 1024);
        auto grown = std::make_unique_for_overwrite<Move[]>(wanted);
        std::copy_n(moves_.get(), size_, grown.get());
        moves_ = std::move(grown);
        capacity_ = wanted;
    }

    std::unique_ptr<Move[]> moves_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

#endif
