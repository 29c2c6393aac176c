// QValueList<T>: the toolkit's list of values, with stable element addresses.
#ifndef BASE_QVALUELIST_H
#define BASE_QVALUELIST_H

#include <array>
#include <cstddef>
#include <iterator>
#include <memory>
#include <new>
#include <utility>

// A list of values that shares nothing with its copies. Elements live in chunks that double in size
// and never move: the address of an element, and an iterator at it, stay valid while elements are
// appended or removed behind it, and no element costs an allocation of its own.
template <class T>
class QValueList {
    template <class List, class Value>
    class Iterator;

public:
    using iterator = Iterator<QValueList, T>;
    using const_iterator = Iterator<const QValueList, const T>;

    QValueList() = default;
    QValueList(const QValueList &other) { appendAll(other); }
    QValueList(QValueList &&other) noexcept { swap(other); }
    ~QValueList() {
        clear();
        for (std::size_t k = 0; k < chunks_.size() && chunks_[k] != nullptr; ++k)
            std::allocator<T>().deallocate(chunks_[k], chunkSize(k));
    }

    QValueList &operator=(const QValueList &other) {
        if (this != &other) {
            clear();
            appendAll(other);
        }
        return *this;
    }
    QValueList &operator=(QValueList &&other) noexcept {
        swap(other);
        return *this;
    }
    void swap(QValueList &other) noexcept {
        std::swap(chunks_, other.chunks_);
        std::swap(count_, other.count_);
    }

    int count() const { return count_; }
    int size() const { return count_; }
    bool isEmpty() const { return count_ == 0; }

    // The i-th element, 0 <= i < count().
    T &operator[](int i) { return *slot(i); }
    const T &operator[](int i) const { return *slot(i); }
    T &first() { return *slot(0); }
    const T &first() const { return *slot(0); }
    T &last() { return *slot(count_ - 1); }
    const T &last() const { return *slot(count_ - 1); }

    iterator begin() { return {this, 0}; }
    iterator end() { return {this, count_}; }
    const_iterator begin() const { return {this, 0}; }
    const_iterator end() const { return {this, count_}; }

    T &append(const T &value) {
        T *added = new (freshSlot()) T(value);
        ++count_;
        return *added;
    }
    T &append(T &&value) {
        T *added = new (freshSlot()) T(std::move(value));
        ++count_;
        return *added;
    }
    // Removes every element from index `count` on.
    void truncate(int count) {
        while (count_ > count)
            std::destroy_at(slot(--count_));
    }
    // Keeps the chunks for the next filling.
    void clear() { truncate(0); }
    // Removes the elements for which `unwanted` holds; the others keep their order (not their
    // addresses).
    template <class Predicate>
    void removeIf(Predicate unwanted) {
        int kept = 0;
        for (int i = 0; i < count_; ++i) {
            if (unwanted(std::as_const(*slot(i))))
                continue;
            if (kept != i)
                *slot(kept) = std::move(*slot(i));
            ++kept;
        }
        truncate(kept);
    }

private:
    static constexpr std::size_t firstChunk = 8;
    static constexpr std::size_t chunkSize(std::size_t k) { return firstChunk << k; }

    struct Place {
        std::size_t chunk;
        std::size_t offset;
    };
    static Place place(int i) {
        Place p{0, static_cast<std::size_t>(i)};
        while (p.offset >= chunkSize(p.chunk)) {
            p.offset -= chunkSize(p.chunk);
            ++p.chunk;
        }
        return p;
    }
    T *slot(int i) const {
        const Place p = place(i);
        return chunks_[p.chunk] + p.offset;
    }
    T *freshSlot() {
        const Place p = place(count_);
        if (chunks_[p.chunk] == nullptr)
            chunks_[p.chunk] = std::allocator<T>().allocate(chunkSize(p.chunk));
        return chunks_[p.chunk] + p.offset;
    }
    void appendAll(const QValueList &other) {
        for (const T &value : other)
            append(value);
    }

    template <class List, class Value>
    class Iterator {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = Value *;
        using reference = Value &;

        Iterator() = default;
        Iterator(List *list, int index) : list_(list), index_(index) {}

        Value &operator*() const { return (*list_)[index_]; }
        Value *operator->() const { return &(*list_)[index_]; }
        Iterator &operator++() {
            ++index_;
            return *this;
        }
        Iterator &operator--() {
            --index_;
            return *this;
        }
        bool operator==(const Iterator &other) const { return index_ == other.index_; }
        bool operator!=(const Iterator &other) const { return index_ != other.index_; }
        // Position in the list, counted from 0.
        int index() const { return index_; }

    private:
        List *list_ = nullptr;
        int index_ = 0;
    };

    // 24 doubling chunks from 8 elements on: more than a hundred million elements.
    std::array<T *, 24> chunks_{};
    int count_ = 0;
};

#endif
