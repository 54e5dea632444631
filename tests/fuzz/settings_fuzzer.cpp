#include "tests/fuzz/fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::stopAtFault(fuzz::theSession().useSettings({data, size}));
    return 0;
}
