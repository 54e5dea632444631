#include "tests/support/real_files.h"
#include "tests/tarnix/bom/behaviour/written_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

/// The write-back of edited tables against the reference, on files that real systems wrote.
namespace test_support {
namespace {

namespace fs = std::filesystem;

constexpr int kColumns = 6;

bool isReadable(const fs::path& file) {
    return file.extension() == ".stp" || file.extension() == ".step";
}

/// The STEP files of the folder, and the one below it that refers to files beside it.
std::vector<std::string> fileNames() {
    std::vector<std::string> names;
    if (!fs::is_directory(realFiles())) return names;
    for (const fs::directory_entry& entry : fs::directory_iterator(realFiles())) {
        if (isReadable(entry.path())) names.push_back(entry.path().filename().string());
    }
    names.push_back("s1-c5-214/s1-c5-214.stp");
    std::sort(names.begin(), names.end());
    return names;
}

/// Attributes that such files cannot hold: custom properties, and what another add-in left.
host::DesignData withAttributes(host::DesignData design) {
    constexpr const char* kGroup = "QEMA_PropertiesAttributesGroup";
    for (std::size_t i = 1; i < design.components.size(); ++i) {
        if (i % 2 == 1)
            design.components[i].attributes.push_back(
                {.group = kGroup, .name = "QEMA_Supplier", .value = "A"});
        if (i % 3 == 1)
            design.components[i].attributes.push_back(
                {.group = kGroup, .name = "QEMA_Mass", .value = "old"});
        if (i % 5 == 1)
            design.components[i].attributes.push_back(
                {.group = "Other", .name = "Key", .value = "kept"});
        for (host::OccurrenceData& child : design.components[i].children)
            child.grounded = i % 2 == 0;
    }
    return design;
}

class RealWriteBack : public WrittenDesign, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override {
        WrittenDesign::SetUp();
        configure({"QEMA_Part Name;Name", "QEMA_Description;Text", "QEMA_Quantity;Qty",
                   "QEMA_Mass;Mass", "QEMA_Supplier;From", "QEMA_Bounding Box;Box"});
        session->open(realFiles() / GetParam());
        session->openDesign(withAttributes(session->design()));
    }

    /// Types into three cells of a column: the first, the middle one and the last.
    void editThree(int column, const std::string& text) {
        const std::vector<std::string> ids = cellIds(column);
        if (ids.empty()) return;
        session->paste(ids.front(), text + " first");
        session->paste(ids[ids.size() / 2], text + " middle");
        session->paste(ids.back(), text + " last");
    }

    /// Chooses for the last row and then for the first, which may hide others.
    void chooseTwo(const std::string& first, const std::string& last) {
        const std::vector<std::string> ids = cellIds(4);
        if (ids.empty()) return;
        session->choose(ids.back(), last);
        session->choose(ids.front(), first);
    }

    /// The last row of a component wins, so what the table's last row holds is in the design. A
    /// file of one part has no rows.
    void expectLastRowWritten() const {
        const host::DesignData design = session->design();
        const auto hasIt = [](const host::ComponentData& component) {
            return component.partNumber == "number last" && component.name == "name last" &&
                   component.description == "text last";
        };
        EXPECT_EQ(std::count_if(design.components.begin(), design.components.end(), hasIt),
                  design.components.size() > 1 ? 1 : 0);
    }

    void edit() {
        editThree(3, "number");
        editThree(5, "name");
        editThree(6, "text");
        editThree(8, "mass");
        editThree(9, "supplier");
    }
};

TEST_P(RealWriteBack, OfBothTablesInTurnIsLikeTheReferenceAndKept) {
    showModel();
    unfold(/*atMost=*/8);
    edit();
    chooseTwo("Buy", "Reference");
    expectWrittenLikeTheReference(reference::Tab::Model, kColumns);
    expectLastRowWritten();

    showStructure();
    edit();
    chooseTwo("Reference", "AsPart");
    expectWrittenLikeTheReference(reference::Tab::Structure, kColumns);

    expectKeptInItsFile();
}

TEST(RealFiles, AreBesideTheProject) {
    needRealFiles();
    if (!IsSkipped()) {
        EXPECT_TRUE(fs::is_regular_file(realFiles() / fileNames().front()));
    }
}

std::string testName(const testing::TestParamInfo<std::string>& file) {
    std::string name = file.param;
    std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
    return name;
}

// Without the folder there is no such test, which GoogleTest would take for a mistake.
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealWriteBack);
INSTANTIATE_TEST_SUITE_P(File, RealWriteBack, testing::ValuesIn(fileNames()), testName);

}  // namespace
}  // namespace test_support
