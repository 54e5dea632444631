#include "tarnix/helpdesk/folder_deletion.h"

#include "tests/support/temporary_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnix {
namespace {

constexpr uid_t kNobody = 65534;

/// Makes the superuser's process that of a user without rights for the while.
class AsNobody {
public:
    AsNobody() : isEffective_(::seteuid(kNobody) == 0) {}
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
    ~AsNobody() { static_cast<void>(::seteuid(0)); }

    [[nodiscard]] bool isEffective() const { return isEffective_; }

private:
    bool isEffective_;
};

/// A folder in which all users may make files, and delete only their own.
class FolderDeletionOfPosix : public testing::Test {
protected:
    void SetUp() override {
        if (::geteuid() != 0) {
            GTEST_SKIP() << "only the superuser makes files of others";
        }
        ASSERT_EQ(::chmod(folder.path().c_str(), 01777), 0);
    }

    /// Writes a file that belongs to the user without rights.
    void writeNobodys(const std::string& name) const {
        folder.write(name, "x");
        ASSERT_EQ(::chown((folder.path() / name).c_str(), kNobody, kNobody), 0);
    }

    test_support::TemporaryFolder folder;
};

TEST_F(FolderDeletionOfPosix, KeepsALockedFileAndWhatComesAfterIt) {
    writeNobodys("screen_001.png");
    folder.write("screen_002.png", "x");
    writeNobodys("screen_003.png");
    const std::string path = folder.windows("");
    {
        const AsNobody nobody;
        ASSERT_TRUE(nobody.isEffective());
        EXPECT_FALSE(deleteDirectoryTree({path.begin(), path.end()}));
    }
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"screen_002.png", "screen_003.png"}));
}

}  // namespace
}  // namespace tarnix
