#include "tests/support/leak_check.h"

namespace test_support {

bool looksForLeaks() { return false; }

bool leaksFound() { return false; }

void prepareLeakReports() {}

}  // namespace test_support
