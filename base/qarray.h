// QArray<T>: the toolkit's plain array of simple values, with short arrays kept in place.
#ifndef BASE_QARRAY_H
#define BASE_QARRAY_H

#include <cstring>
#include <type_traits>

// An array of trivially copyable values with copy semantics: every QArray owns its elements, a copy
// shares nothing. Up to `InPlace` elements live inside the object, more on the heap. Elements added
// by resize() are zero. Indices are the caller's responsibility.
template <class T, unsigned InPlace = 4>
class QArray {
    static_assert(std::is_trivially_copyable_v<T>, "elements are copied as bytes");

public:
    QArray() = default;
    explicit QArray(unsigned size) { resize(size); }
    QArray(const QArray &other) { assign(other); }
    QArray(QArray &&other) noexcept { steal(other); }
    ~QArray() { release(); }

    QArray &operator=(const QArray &other) {
        if (this != &other)
            assign(other);
        return *this;
    }
    QArray &operator=(QArray &&other) noexcept {
        if (this != &other) {
            release();
            steal(other);
        }
        return *this;
    }

    unsigned size() const { return size_; }
    unsigned count() const { return size_; }
    bool isEmpty() const { return size_ == 0; }

    T *data() { return capacity_ > InPlace ? store_.heap : store_.inPlace; }
    const T *data() const { return capacity_ > InPlace ? store_.heap : store_.inPlace; }

    T &operator[](unsigned i) { return data()[i]; }
    const T &operator[](unsigned i) const { return data()[i]; }
    const T &at(unsigned i) const { return data()[i]; }
    T &last() { return data()[size_ - 1]; }
    const T &last() const { return data()[size_ - 1]; }

    T *begin() { return data(); }
    T *end() { return data() + size_; }
    const T *begin() const { return data(); }
    const T *end() const { return data() + size_; }

    // Drops the entries from `size` on, or adds zero entries up to it.
    void resize(unsigned size) {
        reserve(size);
        if (size > size_)
            std::memset(static_cast<void *>(data() + size_), 0, (size - size_) * sizeof(T));
        size_ = size;
    }

    void append(const T &value) {
        const T copy = value;
        resize(size_ + 1);
        last() = copy;
    }

    bool operator==(const QArray &other) const {
        if (size_ != other.size_)
            return false;
        for (unsigned i = 0; i < size_; ++i) {
            if (!(at(i) == other.at(i)))
                return false;
        }
        return true;
    }

private:
    void reserve(unsigned size) {
        if (size <= capacity_)
            return;
        const unsigned wanted = size > 2 * capacity_ ? size : 2 * capacity_;
        T *grown = new T[wanted];
        std::memcpy(static_cast<void *>(grown), data(), size_ * sizeof(T));
        release();
        store_.heap = grown;
        capacity_ = wanted;
    }
    void assign(const QArray &other) {
        reserve(other.size_);
        std::memcpy(static_cast<void *>(data()), other.data(), other.size_ * sizeof(T));
        size_ = other.size_;
    }
    void steal(QArray &other) {
        store_ = other.store_;
        size_ = other.size_;
        capacity_ = other.capacity_;
        other.size_ = 0;
        other.capacity_ = InPlace;
    }
    void release() {
        if (capacity_ > InPlace)
            delete[] store_.heap;
        capacity_ = InPlace;
    }

    union Store {
        Store() : inPlace() {}
        T inPlace[InPlace];
        T *heap;
    };

    unsigned size_ = 0;
    unsigned capacity_ = InPlace;
    Store store_;
};

#endif
