#include "tests/fuzz/fuzzed_lists.h"
#include "tests/fuzz/fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::stopAtFault(fuzz::readEditedLists({data, size}));
    return 0;
}
