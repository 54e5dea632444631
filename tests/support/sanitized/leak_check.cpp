#include "tests/support/leak_check.h"

#include <sanitizer/lsan_interface.h>

namespace test_support {

bool leaksFound() { return ::__lsan_do_recoverable_leak_check() != 0; }

}  // namespace test_support
