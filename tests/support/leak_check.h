#pragma once

namespace test_support {

/// Whether this build looks for leaks: in one with sanitizers.
bool looksForLeaks();

/// Looks for memory that is no longer reachable, and reports it on stderr. True when there is some;
/// always false in a build without a sanitizer.
bool leaksFound();

/// Does now what the first leak report would do: reads the names of the functions of all loaded
/// modules. Copies of the process have them then.
void prepareLeakReports();

}  // namespace test_support
