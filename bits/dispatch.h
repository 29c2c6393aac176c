// From a rule set and a board size as values to code that is compiled for them.
#ifndef BITS_DISPATCH_H
#define BITS_DISPATCH_H

#include "rules/boardsizes.h"
#include "rules/ruleset.h"

#include <iterator>
#include <utility>

// Calls `attempt` with the numbers 0 to count - 1, as types, until it returns true.
template <std::size_t count>
bool anyOf(auto attempt) {
    return [&]<std::size_t... i>(std::index_sequence<i...>) {
        return (attempt(std::integral_constant<std::size_t, i>()) || ...);
    }
    (std::make_index_sequence<count>());
}

// A size and rules as template arguments: `form.squares` and `form.rules` of a function's
// parameter.
template <int Squares, const RuleTraits &Rules>
struct BitForm {
    static constexpr int squares = Squares;
    static constexpr const RuleTraits &rules = Rules;
};

// Calls `visit` with the BitForm of the board size and of the first rule set that `isWanted` holds
// for. False when there is none or the size is not in the list.
template <class Predicate, class Visit>
bool dispatchBits(Predicate isWanted, int squares, Visit visit) {
    return anyOf<std::size(boardSizes)>([&](auto size) {
        constexpr int n = boardSizes[size].squares;
        return n == squares && anyOf<std::size(ruleRows)>([&](auto rules) {
                   const bool found = isWanted(ruleRows[rules]);
                   if (found)
                       visit(BitForm<n, ruleRows[rules].traits>());
                   return found;
               });
    });
}

template <class Visit>
bool dispatchBits(RuleSet rules, int squares, Visit visit) {
    const auto isWanted = [rules](const RuleRow &row) { return row.id == rules; };
    return dispatchBits(isWanted, squares, visit);
}

#endif
