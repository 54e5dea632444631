#include "tests/workbench/workbench_fixture.h"

#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace {

using OpenLocal = test_support::Workbench;

/// The output of a shell command.
std::string shell(const std::string& command) {
    struct Close {
        void operator()(std::FILE* stream) const { ::pclose(stream); }
    };
    const std::unique_ptr<std::FILE, Close> stream(::popen(command.c_str(), "r"));
    std::string text;
    std::array<char, 256> buffer = {};
    while (std::fgets(buffer.data(), buffer.size(), stream.get()) != nullptr) {
        text += buffer.data();
    }
    return text;
}

TEST_F(OpenLocal, IsCancelledByAnInterrupt) {
    const std::filesystem::path file = folder.path() / "frame.ipt";
    test_support::writeFile(file, "nothing that can be converted");
    const std::filesystem::path program = host::environment::programFolder() / "tarnix-workbench";

    // One that is interrupted before it listens ends with the shell's status alone.
    std::string text = "130\n";
    for (int seconds = 4; text == "130\n" && seconds < 100; seconds *= 4) {
        text = shell("cd '" + folder.path().string() + "' && timeout --preserve-status -s INT " +
                     std::to_string(seconds) + " '" + program.string() + "' open-local '" +
                     file.string() + "' 2>&1; echo $?");
    }

    EXPECT_EQ(test_support::firstLines(text, 1),
              "the add-in says: File still uploaded, open from data panel after conversion "
              "completes\n");
    EXPECT_EQ(text.substr(text.size() - 2), "1\n");
}

}  // namespace
