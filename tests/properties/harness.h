// What the programs of properties have in common. A property is a function of any bytes: it makes
// of them what it needs, a position say, and ends the program when something about that is not as
// it always has to be. The same function is fuzzed, run over kept cases and over random bytes.
#ifndef TESTS_PROPERTIES_HARNESS_H
#define TESTS_PROPERTIES_HARNESS_H

#include "rules/ruleset.h"
#include "search/hashtable.h"

#include <QTextStream>

#include <algorithm>
#include <span>
#include <string>

// The input of a property, taken apart from the front.
class Bytes {
public:
    Bytes(const std::uint8_t *data, std::size_t size) : left_(data, size) {}

    bool empty() const { return left_.empty(); }
    // The next n bytes, or fewer when there are no more, to be taken apart by themselves.
    Bytes front(int n) {
        const auto taken = left_.first(std::min(left_.size(), static_cast<std::size_t>(n)));
        left_ = left_.subspan(taken.size());
        return {taken.data(), taken.size()};
    }
    // The next byte, 0 when there are no more.
    int take() { return empty() ? 0 : front(1).left_[0]; }
    // A number from 0 to n - 1, n at most 256.
    int below(int n) { return take() % n; }
    // One of the items of an array.
    const auto &oneOf(const auto &items) {
        return items[below(static_cast<int>(std::size(items)))];
    }

private:
    std::span<const std::uint8_t> left_;
};

using Property = void (*)(Bytes &bytes);

// The properties of this program; the first byte of an input says which is meant. Their order is
// part of the kept cases: new ones come last.
std::span<const Property> properties();

// Where it is not good: says what is wrong and with what, and ends the program, which a fuzzer
// takes for a fault found.
void want(bool good, const std::string &what, const std::string &where);
// Two texts are to be the same.
void wantSame(const std::string &a, const std::string &b, const std::string &where);
// Every stored position is found where it is, and they are as many as the table says.
void wantSound(const hashTable &table, const std::string &where);

// A rule set and a valid position of it.
struct Situation {
    RuleSet rules = RuleSet::International;
    board position;
};

// Uses up all bytes and sets XY::B_SIZE. The first byte says rules, size, side to move, and which
// of two ways the others go: each plays one move of a game from its start, or each puts one piece
// on the board. Men and kings of both sides stand on dark squares, in any number, marked as able to
// move or not; a position may be without moves.
Situation readSituation(Bytes &bytes);
// For the message about a failure: a task that the bench can read.
std::string describe(const Situation &situation);

// The text form of a board or a table, without the end of the last line.
std::string textOf(const auto &thing) {
    QString text;
    QTextStream stream(&text);
    thing.toStream(stream);
    return text.trimmed().toStdString();
}

#endif
