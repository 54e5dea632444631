#include "host/import/reader_libraries.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace {

namespace fs = std::filesystem;

TEST(ReaderLibraries, AreThoseThatReadStepFiles) {
    const std::vector<fs::path> libraries = host::readerLibraries();

    EXPECT_TRUE(std::ranges::any_of(libraries, [](const fs::path& each) {
        return each.filename().string().starts_with("libTKSTEP.so.");
    }));
    EXPECT_TRUE(std::ranges::all_of(
        libraries, [](const fs::path& each) { return fs::is_regular_file(each); }));
}

TEST(ReaderLibraries, TheirStampsSayWhereTheyAreAndChangeWithThem) {
    const test_support::TemporaryFolder folder;
    const fs::path library = folder.write("libA.so.1", "one");
    fs::create_symlink(library, folder.path() / "libA.so");
    const std::string before = host::stampsOf({library});

    EXPECT_EQ(before.rfind(library.string() + " 3 ", 0), 0U) << before;
    EXPECT_EQ(host::stampsOf({folder.path() / "libA.so"}), before);
    fs::last_write_time(library, fs::last_write_time(library) - std::chrono::seconds(1));
    EXPECT_NE(host::stampsOf({library}), before);
}

}  // namespace
