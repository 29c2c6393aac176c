#include "search/deepsearch.h"

#include "bits/bitsearch.h"
#include "bits/dispatch.h"
#include "eval/squaresvalue.h"

// There is one for engines of exactly the rule sets' classes only: one derived from them may play
// differently.
std::unique_ptr<DeepSearch> DeepSearch::make(const AbstractEngine &root, SearchContext &context) {
    const bool oneSize = root.board->size == root.size && XY::B_SIZE == root.size &&
                         AbstractEngine::pSQV != nullptr && AbstractEngine::pSQV->size == root.size;
    const bool table = AbstractEngine::pHT != nullptr && AbstractEngine::pHT->usable();
    if (!root.deepSearchAllowed || !oneSize || !table)
        return nullptr;
    std::unique_ptr<DeepSearch> search;
    const auto isRoots = [&root](const RuleRow &row) { return row.isOf(root); };
    dispatchBits(isRoots, root.size, [&](auto form) {
        if (BitPosition<form.squares>::representable(*root.board))
            search = std::make_unique<BitSearch<form.squares, form.rules>>(context);
    });
    return search;
}
