#include "app/choices.h"

#include "search/thinkstatistic.h"

#include <cstddef>

namespace {

// The items of the rules' and sizes' combo boxes are in the order of the lists of all rule sets and
// all board sizes.
constexpr Level levelItems[] = {
    {1, 0, 1000}, {2, 0, 400}, {0, 2, 5},  {0, 5, 5},
    {0, 10, 5},   {0, 20, 5},  {0, 60, 5}, {0, thinkStatistic::unlimitedSeconds, 5},
};

template <class Item, std::size_t count>
std::optional<Item> find(const Item (&items)[count], int index) {
    if (index < 0 || index >= static_cast<int>(count))
        return {};
    return items[index];
}

} // namespace

std::optional<RuleSet> rulesChoice(int index) {
    return find(allRuleSets, index);
}

std::optional<int> squaresChoice(int index) {
    return find(allBoardSizes, index);
}

std::optional<Level> levelChoice(int index) {
    return find(levelItems, index);
}
