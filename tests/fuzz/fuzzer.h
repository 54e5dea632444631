#pragma once

#include "tests/fuzz/fuzzed_session.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

/// What the programs for libFuzzer share. Each of them has an entry of this name, which the library
/// calls with what it made up.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// The session of this program.
inline FuzzedSession& theSession() {
    static FuzzedSession session;
    return session;
}

/// Has the library keep the bytes of a run that found something wrong.
inline void stopAtFault(const std::string& fault) {
    if (!fault.empty()) {
        std::cerr << "FOUND: " << fault << std::endl;
        std::abort();
    }
}

}  // namespace fuzz
