#pragma once

namespace test_support {

/// Looks for memory that nobody can reach any more, and reports it on stderr. True when there is
/// some; always false in a build without a sanitizer.
bool leaksFound();

}  // namespace test_support
