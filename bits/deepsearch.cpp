#include "search/deepsearch.h"

#include "bits/bitsearch.h"
#include "eval/squaresvalue.h"
#include "rules/amengine.h"

#include <typeinfo>

namespace {

// The rules that the engine's class stands for, null for a class of one's own.
const RuleTraits *rulesOf(const AbstractEngine &engine) {
    if (typeid(engine) == typeid(IntEngine))
        return &internationalRules;
    if (typeid(engine) == typeid(PolEngine))
        return &polishRules;
    if (typeid(engine) == typeid(AmEngine))
        return &americanRules;
    return nullptr;
}

template <int N>
std::unique_ptr<DeepSearch> makeFor(const AbstractEngine &root, const RuleTraits &rules,
                                    SearchContext &context) {
    if (!BitPosition<N>::representable(*root.board))
        return nullptr;
    return makeBitSearch<N>(rules, context);
}

} // namespace

std::unique_ptr<DeepSearch> DeepSearch::make(const AbstractEngine &root, SearchContext &context) {
    const RuleTraits *rules = rulesOf(root);
    const bool oneSize = root.board->size == root.size && XY::B_SIZE == root.size &&
                         AbstractEngine::pSQV != nullptr && AbstractEngine::pSQV->size == root.size;
    const bool table = AbstractEngine::pHT != nullptr && AbstractEngine::pHT->usable();
    if (!root.deepSearchAllowed || rules == nullptr || !oneSize || !table)
        return nullptr;
    switch (root.size) {
    case 6:
        return makeFor<6>(root, *rules, context);
    case 8:
        return makeFor<8>(root, *rules, context);
    case 10:
        return makeFor<10>(root, *rules, context);
    case 12:
        return makeFor<12>(root, *rules, context);
    default:
        return nullptr;
    }
}
