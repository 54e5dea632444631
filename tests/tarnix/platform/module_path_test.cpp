#include "tests/tarnix/platform/module_path_fixture.h"

namespace tarnix::platform {
namespace {

TEST_F(ModulePath, IsThatOfTheModuleAndNotOfTheProgram) {
    EXPECT_EQ(pathOfProbeAt(folder.path() / "Probe.dll"), folder.windows("Probe.dll"));
}

TEST_F(ModulePath, HasBackslashesBetweenFolders) {
    std::filesystem::create_directory(folder.path() / "inner");
    const std::string path = pathOfProbeAt(folder.path() / "inner" / "Probe.dll");
    EXPECT_TRUE(path.ends_with("\\inner\\Probe.dll")) << path;
    EXPECT_EQ(path.find('/'), std::string::npos) << path;
}

TEST_F(ModulePath, IsCutOffAtTheLimitOf260WideCharacters) {
    const std::filesystem::path inner =
        std::filesystem::path(std::string(150, 'a')) / std::string(150, 'b');
    const std::filesystem::path deep = folder.path() / inner;
    std::filesystem::create_directories(test::longPath(deep));
    const std::string whole = folder.windows(inner.generic_string());

    EXPECT_EQ(pathOfProbeAt(test::longPath(deep / "Probe.dll")), whole.substr(0, 259));
}

}  // namespace
}  // namespace tarnix::platform
