// What the programs of properties have in common. A property is a function of any bytes: it makes
// of them what it needs, a position say, and ends the program when something about that is not as
// it always has to be. The same function is fuzzed, run over kept cases and over random bytes.
#ifndef TESTS_PROPERTIES_HARNESS_H
#define TESTS_PROPERTIES_HARNESS_H

#include "tests/properties/bytes.h"

#include <span>
#include <string>

using Property = void (*)(Bytes &bytes);

// The properties of this program; the first byte of an input says which is meant. Their order is
// part of the kept cases: new ones come last.
std::span<const Property> properties();

// Says what is wrong and with what, and ends the program, which a fuzzer takes for a fault found.
[[noreturn]] void reportFault(const std::string &what, const std::string &where);

// Reports two texts that are to be the same and are not.
void wantSame(const std::string &a, const std::string &b, const std::string &where);

#endif
