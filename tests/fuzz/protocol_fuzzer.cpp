#include "tests/fuzz/fuzzed_protocol.h"
#include "tests/fuzz/fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::FuzzedProtocol protocol;
    fuzz::stopAtFault(protocol.act({data, size}));
    return 0;
}
