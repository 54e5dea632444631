// Options of the leak checker, in each program that loads the add-in.
//
// The one intended leak: the object of Open local file is kept in no variable, and nothing ever
// destroys it. Nothing else is suppressed, and the suppression is not printed at the end.

extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_options();       // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "leak:createOpenLocalFileForever\n";
}

extern "C" const char* __lsan_default_options() {  // NOLINT(bugprone-reserved-identifier)
    return "print_suppressions=0";
}
