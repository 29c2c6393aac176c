// QArray<T>: the toolkit's plain array of simple values, with short arrays kept in place.
#ifndef BASE_QARRAY_H
#define BASE_QARRAY_H

#include <QVarLengthArray>

#include <algorithm>
#include <type_traits>

// An array of trivially copyable values; a copy shares nothing with it. Up to `InPlace` elements
// live inside the object, more on the heap. Indices are the caller's responsibility.
template <class T, unsigned InPlace = 4>
class QArray : private QVarLengthArray<T, InPlace> {
    static_assert(std::is_trivially_copyable_v<T>, "elements are copied as bytes");
    using Base = QVarLengthArray<T, InPlace>;

public:
    QArray() = default;
    explicit QArray(unsigned size) { resize(size); }

    using Base::append;
    using Base::begin;
    using Base::data;
    using Base::end;
    using Base::isEmpty;
    using Base::last;
    using Base::operator[];
    using typename Base::value_type;

    unsigned size() const { return static_cast<unsigned>(Base::size()); }
    unsigned count() const { return size(); }
    T &at(unsigned i) { return (*this)[i]; }
    const T &at(unsigned i) const { return (*this)[i]; }

    // Drops the elements from number `size` on, or adds zero ones up to it.
    void resize(unsigned size) { Base::resize(size, T()); }
    // Drops the elements from number `size` on, if there are any.
    void truncate(unsigned size) { resize(std::min(size, this->size())); }
    // Sets all elements to `value`, after resizing to `size` where that is given.
    void fill(T value, int size = -1) {
        if (size >= 0)
            resize(static_cast<unsigned>(size));
        std::fill(begin(), end(), value);
    }
    // An array of its own with the same elements.
    QArray copy() const { return *this; }

    bool operator==(const QArray &other) const { return static_cast<const Base &>(*this) == other; }
};

#endif
