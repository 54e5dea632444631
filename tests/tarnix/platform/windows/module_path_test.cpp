#include "tests/tarnix/platform/module_path_fixture.h"

#include <windows.h>

namespace tarnix::platform {
namespace {

TEST_F(ModulePath, CharactersThatTheCodePageLacksBecomeSpaces) {
    if (::GetACP() != 1252) {
        GTEST_SKIP() << "written for the code page 1252";
    }
    // The first is in the code page, the second is not but resembles "a", the third is nothing
    // like.
    const std::filesystem::path name = L"M\u00F6bel \u0101\u6F22.dll";
    EXPECT_EQ(pathOfProbeAt(folder.path() / name), folder.windows("M") +
                                                       "\xF6"
                                                       "bel   .dll");
}

}  // namespace
}  // namespace tarnix::platform
