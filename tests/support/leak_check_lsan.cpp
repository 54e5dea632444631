#include "tests/support/leak_check.h"

#include <sanitizer/common_interface_defs.h>
#include <sanitizer/lsan_interface.h>

#include <array>

namespace test_support {

bool looksForLeaks() { return true; }

bool leaksFound() { return ::__lsan_do_recoverable_leak_check() != 0; }

void prepareLeakReports() {
    std::array<char, 256> name = {};
    ::__sanitizer_symbolize_pc(__builtin_return_address(0), "%f", name.data(), name.size());
    static_cast<void>(leaksFound());
}

}  // namespace test_support
