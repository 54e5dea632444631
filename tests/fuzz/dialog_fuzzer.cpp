#include "tests/fuzz/fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::stopAtFault(fuzz::theSession().useDialog({data, size}));
    return 0;
}
