#pragma once

#include "tests/support/files.h"
#include "tests/support/outline.h"
#include "tests/support/run_program.h"
#include "tests/support/settings.h"
#include "tests/support/temporary_folder.h"
#include "tests/workbench/environment_variables.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/design/outline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace test_support {

/// The built program, with a user of its own who has not used it yet.
class Workbench : public testing::Test {
protected:
    void SetUp() override {
        variables.setUserData(folder.path() / "data");
        variables.set("LC_ALL", "C.UTF-8");
    }

    /// A design file with a drawn design.
    std::string design(const std::string& outline, const std::string& name = "sample") {
        const auto file = folder.path() / host::fromUtf8(name + host::kDesignFileEnding);
        host::DesignData data = host::parseOutline(addinOutline(outline));
        data.name = name;
        host::saveDesignFile(file, data);
        return host::toUtf8(file);
    }

    /// The columns that this user chose once.
    void configure(const std::vector<std::string>& items) {
        std::filesystem::create_directories(addinCopy());
        writeFile(settingsFile(), settingsDocument(items));
    }

    /// Settings of this user with these children of the root element.
    void storeSettings(const std::string& categories) {
        std::filesystem::create_directories(addinCopy());
        writeFile(settingsFile(),
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                  "<configuration nameOfApplication=\"Tarnix\">" +
                      categories + "</configuration>\r\n");
    }

    /// The root element of this user's settings; the line ends around it differ between systems.
    [[nodiscard]] std::string settingsRoot() const {
        const std::string bytes = readFile(settingsFile());
        const std::size_t from = std::min(bytes.find("<configuration"), bytes.size());
        return bytes.substr(from, bytes.rfind('>') + 1 - from);
    }

    [[nodiscard]] std::filesystem::path addinCopy() const {
        return folder.path() / "data" / "tarnix-workbench" / "Tarnix";
    }

    [[nodiscard]] std::filesystem::path settingsFile() const {
        return addinCopy() / "Tarnix_configuration.xml";
    }

    /// A path in the test's folder, both in UTF-8.
    [[nodiscard]] std::string path(const std::string& name) const {
        return host::toUtf8(folder.path() / host::fromUtf8(name));
    }

    [[nodiscard]] std::string out() const { return host::toUtf8(folder.path() / "out"); }

    static ProgramResult run(const std::vector<std::string>& arguments) {
        return runProgram("tarnix-workbench", arguments);
    }

    TemporaryFolder folder;
    EnvironmentVariables variables;
};

/// Two parts of 1 kg and 0.5 kg, the lighter one twice: boxes of 100 and 50 cm3 at 0.01 kg/cm3.
inline constexpr const char* kSmallDesign = R"(
    Frame  box=10x10x1 material=Sheet:0.01
    Bolt  box=10x5x1 material=Sheet:0.01
    Bolt)";

inline host::DesignData loadDesign(const std::string& file) {
    return host::loadDesignFile(host::fromUtf8(file));
}

inline std::string firstLines(const std::string& output, std::size_t count) {
    std::size_t end = 0;
    for (; count > 0 && end != std::string::npos; --count) {
        end = output.find('\n', end) + 1;
    }
    return output.substr(0, end);
}

inline bool isOneLine(const std::string& errors) {
    return !errors.empty() && errors.find('\n') == errors.size() - 1;
}

}  // namespace test_support
