#include "tests/tarnix/platform/module_path_fixture.h"

namespace tarnix::platform {
namespace {

TEST_F(ModulePath, KeepsTheBytesOfItsCharacters) {
    const std::string name =
        "M\xC3\xB6"
        "bel \xE6\xBC\xA2.dll";
    EXPECT_EQ(pathOfProbeAt(folder.path() / name), folder.windows(name));
}

TEST_F(ModulePath, CountsWideCharactersAndNotBytesAgainstTheLimit) {
    // 70 letters of two bytes each, then as many of three.
    std::string umlauts;
    std::string characters;
    for (int i = 0; i < 70; ++i) {
        umlauts += "\xC3\xB6";
        characters += "\xE6\xBC\xA2";
    }
    const std::filesystem::path deep = folder.path() / umlauts / characters / std::string(120, 'c');
    std::filesystem::create_directories(deep);

    const std::string path = pathOfProbeAt(deep / "Probe.dll");

    const std::string before = folder.windows(umlauts + "/" + characters + "/");
    const std::size_t room = 259 - (folder.path().string().size() + 1 + 70 + 1 + 70 + 1);
    EXPECT_EQ(path, before + std::string(room, 'c'));
}

TEST_F(ModulePath, HalfACharacterAtTheLimitIsASpace) {
    // Each of these takes two wide characters of Windows, so the last would begin at the 259th.
    const std::size_t used = folder.path().string().size() + 1;
    const std::string filling(258 - used - 1, 'a');
    const std::string astral = "\xF0\x9F\x98\x80.dll";
    std::filesystem::create_directories(folder.path() / filling);

    EXPECT_EQ(pathOfProbeAt(folder.path() / filling / astral), folder.windows(filling) + "\\ ");
}

}  // namespace
}  // namespace tarnix::platform
