// One resource that is whole, one that lacks a file, one with wrong files, one that is unknown.
const char* const kFolders[] = {"././Resources/Whole", "Resources/Short", "Resources/Broken",
                                "./resources/Unknown"};
