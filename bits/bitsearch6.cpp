#include "bits/bitsearch.h"

template std::unique_ptr<DeepSearch> makeBitSearch<6>(const RuleTraits &, SearchContext &);
