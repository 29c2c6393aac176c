#include "bits/bitsearch.h"

template std::unique_ptr<DeepSearch> makeBitSearch<10>(const RuleTraits &, SearchContext &);
