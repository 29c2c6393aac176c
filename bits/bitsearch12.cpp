#include "bits/bitsearch.h"

template std::unique_ptr<DeepSearch> makeBitSearch<12>(const RuleTraits &, SearchContext &);
