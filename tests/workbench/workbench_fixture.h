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
#include <utility>
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
        return save(host::parseOutline(addinOutline(outline)), name);
    }

    /// A design file with a design, which gets its name.
    std::string save(host::DesignData data, const std::string& name) {
        const auto file = folder.path() / host::fromUtf8(name + host::kDesignFileEnding);
        data.name = name;
        host::saveDesignFile(file, data);
        return host::toUtf8(file);
    }

    /// A design file "plate" whose root component is a brass plate of 10 x 5 x 2 cm, with nothing
    /// below it.
    std::string lonePart() {
        host::DesignData data = host::parseOutline("Plate  box=10x5x2 material=Brass:0.0085");
        data.components.front().geometry = data.components[1].geometry;
        data.components.front().material = data.components[1].material;
        data.components.front().children.clear();
        data.components.resize(1);
        return save(std::move(data), "plate");
    }

    /// A program that failed before it printed anything or made the folder `out()`.
    void expectFailure(const ProgramResult& result, int status, const std::string& errors) const {
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.errors, errors);
        EXPECT_EQ(result.output, "");
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "out"));
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

    /// A path in the test's folder as the system writes it, both in UTF-8.
    [[nodiscard]] std::string path(const std::string& name) const {
        return host::toUtf8((folder.path() / host::fromUtf8(name)).make_preferred());
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

/// What the workbench prints of it with the columns Quantity, called "Qty", and Mass.
inline constexpr const char* kSmallDesignsList = R"(
       Pos.  Part Number  BOM Structure  Qty  Mass [kg]
    ─  ────  ───────────  ─────────────  ───  ─────────
    ·     1  Frame        Produce          1      1.000
    ·     2  Bolt         Produce          2      0.500
    )";

/// How an error line lists what the BOM structure can be.
inline constexpr const char* kKnownStructures =
    "no such choice; available: \"Produce\", \"Buy\", \"AsPart\", \"Divided\", \"Reference\"\n";

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
