// The machine words that hold a set of squares.
#ifndef BITS_SETWORDS_H
#define BITS_SETWORDS_H

#include <bit>
#include <cstdint>
#include <type_traits>

// A set of up to 64 squares is one machine word. A larger one takes two, and has two forms: a
// DoubleWord, which can be scanned, compared and written as a constant, and a WordPair in a vector
// register, for what joins and shifts whole sets. There that takes half the instructions, and a
// dozen sets at hand fit the processor, whose general registers hold six. With one word both forms
// are the same, so that what computes with sets is written once.
__extension__ typedef unsigned __int128 DoubleWord;
using WordPair [[gnu::vector_size(16)]] = std::uint64_t;

template <class Bits>
using SetOf = std::conditional_t<std::is_same_v<Bits, DoubleWord>, WordPair, Bits>;

constexpr std::uint64_t asSet(std::uint64_t bits) {
    return bits;
}
inline WordPair asSet(DoubleWord bits) {
    return std::bit_cast<WordPair>(bits);
}
constexpr std::uint64_t asBits(std::uint64_t set) {
    return set;
}
inline DoubleWord asBits(WordPair set) {
    return std::bit_cast<DoubleWord>(set);
}

constexpr bool isEmpty(std::uint64_t set) {
    return set == 0;
}
inline bool isEmpty(WordPair set) {
    return (set[0] | set[1]) == 0;
}

constexpr int countBits(std::uint64_t set) {
    return std::popcount(set);
}
inline int countBits(WordPair set) {
    return std::popcount(set[0]) + std::popcount(set[1]);
}
constexpr int countBits(DoubleWord set) {
    return std::popcount(static_cast<std::uint64_t>(set)) +
           std::popcount(static_cast<std::uint64_t>(set >> 64));
}

// Whether bit i is in the set.
constexpr bool hasBit(std::uint64_t set, int i) {
    return (set >> i & 1) != 0;
}
inline bool hasBit(WordPair set, int i) {
    return hasBit(set[i >> 6], i & 63);
}
constexpr bool hasBit(DoubleWord set, int i) {
    return hasBit(static_cast<std::uint64_t>(i < 64 ? set : set >> 64), i & 63);
}

// Scans want a set that is not empty.
constexpr int lowestBit(std::uint64_t set) {
    return std::countr_zero(set);
}
constexpr int lowestBit(DoubleWord set) {
    const auto low = static_cast<std::uint64_t>(set);
    const auto high = static_cast<std::uint64_t>(set >> 64);
    return low != 0 ? std::countr_zero(low) : 64 + std::countr_zero(high);
}
constexpr int highestBit(std::uint64_t set) {
    return 63 - std::countl_zero(set);
}
constexpr int highestBit(DoubleWord set) {
    const auto high = static_cast<std::uint64_t>(set >> 64);
    return high != 0 ? 127 - std::countl_zero(high) : highestBit(static_cast<std::uint64_t>(set));
}
// Removes the lowest bit of the set and returns its index.
template <class Bits>
constexpr int takeLowest(Bits &set) {
    const int index = lowestBit(set);
    set &= set - 1;
    return index;
}

// The machine words of a set, the lowest first.
constexpr int wordsOf(std::uint64_t) {
    return 1;
}
inline int wordsOf(WordPair) {
    return 2;
}
constexpr std::uint64_t word(std::uint64_t set, int) {
    return set;
}
inline std::uint64_t word(WordPair set, int index) {
    return set[index];
}

// The set shifted by a constant, from word to word.
template <int By, class Bits>
constexpr Bits shiftedUp(Bits set) {
    return set << By;
}
template <int By>
WordPair shiftedUp(WordPair set) {
    const WordPair lowToHigh = __builtin_shufflevector(WordPair{}, set, 0, 2);
    return set << By | lowToHigh >> (64 - By);
}
template <int By, class Bits>
constexpr Bits shiftedDown(Bits set) {
    return set >> By;
}
template <int By>
WordPair shiftedDown(WordPair set) {
    const WordPair highToLow = __builtin_shufflevector(set, WordPair{}, 1, 2);
    return set >> By | highToLow << (64 - By);
}

#endif
