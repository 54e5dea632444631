#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_run.h"

#include "host/base/utf8_path.h"
#include "host/session/session_folder.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

/// How many fresh folders this process has now.
std::ptrdiff_t freshFolders() {
    const host::SessionFolder one = host::SessionFolder::makeFresh({});
    const auto all = std::distance(fs::directory_iterator(one.path().parent_path()), {});
    one.discard({});
    return all;
}

// With the ending of a module the name is longer than the system takes.
TEST(NamedAddin, LeavesNothingWhereItsModuleCannotBeCopied) {
    constexpr std::size_t kLongestName = 255;
    const test_support::TemporaryFolder folder;
    const fs::path module = folder.path() / std::string(kLongestName, 'm');
    test_support::writeFile(module, "module");
    const std::ptrdiff_t before = freshFolders();

    EXPECT_THROW(workbench::NamedAddin(host::toUtf8(module)), workbench::Failure);

    EXPECT_EQ(freshFolders(), before);
}

}  // namespace
