#include "app/choices.h"

#include "rules/amengine.h"
#include "rules/intengine.h"
#include "rules/polengine.h"
#include "search/thinkstatistic.h"

#include <cstddef>
#include <iterator>
#include <new>

namespace {

template <class Engine>
AbstractEngine *make(board *b, int depth, thinkStatistic *stat, int size) {
    return new (std::nothrow) Engine(b, depth, stat, size);
}

constexpr EngineMaker rulesItems[] = {make<IntEngine>, make<AmEngine>, make<PolEngine>};

constexpr int sizeItems[] = {6, 8, 10, 12};

constexpr Level levelItems[] = {
    {1, 0, 1000}, {2, 0, 400}, {0, 2, 5},  {0, 5, 5},
    {0, 10, 5},   {0, 20, 5},  {0, 60, 5}, {0, thinkStatistic::unlimitedSeconds, 5},
};

constexpr Level unknownLevel = {0, 5, 1};

template <class Item, std::size_t count>
const Item *find(const Item (&items)[count], int index) {
    return index >= 0 && index < static_cast<int>(count) ? &items[index] : nullptr;
}

} // namespace

EngineMaker rulesChoice(int index) {
    const EngineMaker *found = find(rulesItems, index);
    return found != nullptr ? *found : nullptr;
}

int squaresChoice(int index) {
    const int *found = find(sizeItems, index);
    return found != nullptr ? *found : 0;
}

const Level *levelChoice(int index) {
    return find(levelItems, index);
}

EngineMaker fallbackRules() {
    return make<IntEngine>;
}

int fallbackSquares() {
    return 10;
}

const Level &fallbackLevel() {
    return unknownLevel;
}
