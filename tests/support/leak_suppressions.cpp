/// The one leak that is meant: the object of Open local file is kept in no variable, and nothing
/// ever destroys it.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "leak:createOpenLocalFileForever\n";
}
