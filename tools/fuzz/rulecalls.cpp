// Fuzzes the rules: engine, bit sets and the plain twin must agree on any position.

#include "tests/support/recordinghost.h"
#include "tests/support/twinagreement.h"
#include "tools/fuzz/situation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const RecordingHost host;
    Bytes bytes(data, size);
    const bool gambit = bytes.below(2) == 1;
    const Situation situation = readSituation(bytes);
    const std::string differences = twinDifferences(situation.rules, situation.position, gambit);
    if (!differences.empty())
        reportFault(situation, differences);
    return 0;
}
