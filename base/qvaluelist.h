// QValueList<T>: the toolkit's list of values, on the standard one.
#ifndef BASE_QVALUELIST_H
#define BASE_QVALUELIST_H

#include <iterator>
#include <list>

// A list of values that shares nothing with its copies. The address of an element, and an iterator
// at it, stay valid until that element is removed. Reaching an element by its number takes as many
// steps: loops use iterators. Numbers and iterators are the caller's responsibility, and so is that
// there is an element to be the first or last.
template <class T>
class QValueList : private std::list<T> {
    using Base = std::list<T>;

public:
    using typename Base::const_iterator;
    using typename Base::iterator;
    using typename Base::value_type;
    using Iterator = iterator;
    using ConstIterator = const_iterator;

    using Base::begin;
    using Base::clear;
    using Base::end;

    int count() const { return static_cast<int>(Base::size()); }
    int size() const { return count(); }
    bool isEmpty() const { return Base::empty(); }

    // Number `i`, from 0 on: an iterator at it, or the element itself.
    Iterator at(int i) { return std::next(begin(), i); }
    ConstIterator at(int i) const { return std::next(begin(), i); }
    T &operator[](int i) { return *at(i); }
    const T &operator[](int i) const { return *at(i); }
    T &first() { return Base::front(); }
    const T &first() const { return Base::front(); }
    T &last() { return Base::back(); }
    const T &last() const { return Base::back(); }

    // Return an iterator at the new element.
    Iterator append(const T &value) { return Base::insert(end(), value); }
    Iterator prepend(const T &value) { return Base::insert(begin(), value); }
    QValueList &operator+=(const T &value) { return append(value), *this; }
    QValueList &operator<<(const T &value) { return *this += value; }

    // Returns an iterator at the element that followed.
    Iterator remove(ConstIterator place) { return Base::erase(place); }
    // Removes all elements equal to `value`, or all for which `unwanted` holds; returns how many.
    int remove(const T &value) { return static_cast<int>(Base::remove(value)); }
    template <class Predicate>
    int removeIf(Predicate unwanted) {
        return static_cast<int>(Base::remove_if(unwanted));
    }
    void swap(QValueList &other) noexcept { Base::swap(other); }
    // Moves all elements of `other` to this list's end.
    void takeAll(QValueList &other) { Base::splice(end(), other); }
    // Moves the element at `place` of `other` to this list's end; its address stays.
    void take(QValueList &other, ConstIterator place) { Base::splice(end(), other, place); }
};

#endif
