#pragma once

namespace test_support {

/// Looks for memory that nobody can reach any more, and reports it on stderr. True when there is
/// some; always false in a build without a sanitizer.
bool leaksFound();

/// Does now what the first leak report would do once: reading the names of the functions of all
/// modules that are loaded. Copies of the process have them then.
void prepareLeakReports();

}  // namespace test_support
