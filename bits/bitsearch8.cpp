#include "bits/bitsearch.h"

template std::unique_ptr<DeepSearch> makeBitSearch<8>(const RuleTraits &, SearchContext &);
