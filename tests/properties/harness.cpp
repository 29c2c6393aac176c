#include "tests/properties/harness.h"

#include <cstdio>
#include <cstdlib>

// The name is the fuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Bytes bytes(data, size);
    const std::span<const Property> all = properties();
    all[static_cast<std::size_t>(bytes.below(static_cast<int>(all.size())))](bytes);
    return 0;
}

void reportFault(const std::string &what, const std::string &where) {
    std::fprintf(stderr, "FAULT: %s\n%s\n", what.c_str(), where.c_str());
    std::abort();
}

void wantSame(const std::string &a, const std::string &b, const std::string &where) {
    if (a != b)
        reportFault("these are to be the same:\n" + a + "\n-- and --\n" + b, where);
}
