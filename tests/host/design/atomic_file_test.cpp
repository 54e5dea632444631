#include "host/design/atomic_file.h"
#include "tests/host/design/file_fixture.h"

#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using AtomicFile = FileTest;

TEST_F(AtomicFile, IsMadeWithItsContent) {
    const std::string content = std::string("a\r\n\0b\n", 6);

    writeFileAtomically(folder / "new", content);

    EXPECT_EQ(read(folder / "new"), content);
    EXPECT_EQ(names(), Names{"new"});
}

TEST_F(AtomicFile, ReplacesTheOldContentAsAWhole) {
    write(folder / "file", "a long old content");

    writeFileAtomically(folder / "file", "new");

    EXPECT_EQ(read(folder / "file"), "new");
    EXPECT_EQ(names(), Names{"file"});
}

TEST_F(AtomicFile, NameMayBeAnyText) {
    const fs::path path = folder / fs::path(u8"P\u0159evodovka \u6f22.json");

    writeFileAtomically(path, "x");

    EXPECT_EQ(read(path), "x");
}

TEST_F(AtomicFile, FolderThatIsNotThereIsAnError) {
    EXPECT_THROW(writeFileAtomically(folder / "none" / "file", "x"), std::system_error);

    EXPECT_EQ(names(), Names());
}

TEST_F(AtomicFile, FolderOfThatNameStandsAndNothingIsLeftBeside) {
    fs::create_directory(folder / "taken");

    EXPECT_THROW(writeFileAtomically(folder / "taken", "x"), std::system_error);

    EXPECT_EQ(names(), Names{"taken"});
    EXPECT_TRUE(fs::is_directory(folder / "taken"));
}

TEST_F(AtomicFile, LeftoverOfAnotherWriterIsNotTouched) {
    write(folder / "file.new-1-0", "theirs");

    writeFileAtomically(folder / "file", "ours");

    EXPECT_EQ(read(folder / "file.new-1-0"), "theirs");
    EXPECT_EQ(names(), (Names{"file", "file.new-1-0"}));
}

TEST_F(AtomicFile, LinkIsFollowed) {
    write(folder / "real", "old");
    std::error_code error;
    fs::create_symlink("real", folder / "link", error);
    if (error) GTEST_SKIP() << "no links here";

    writeFileAtomically(folder / "link", "new");

    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(read(folder / "real"), "new");
}

TEST_F(AtomicFile, PermissionsOfAReplacedFileStay) {
    write(folder / "file", "old");
    const fs::perms ownerOnly = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(folder / "file", ownerOnly);
    const fs::perms before = fs::status(folder / "file").permissions();

    writeFileAtomically(folder / "file", "new");

    EXPECT_EQ(fs::status(folder / "file").permissions(), before);
}

}  // namespace
}  // namespace host
