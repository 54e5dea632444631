// One resource that is whole, one that lacks a file, one with wrong files, one that nobody knows.
const char* const kFolders[] = {"././Resources/Whole", "Resources/Short", "Resources/Broken",
                                "./resources/Unknown"};
