// STEP and IGES are read by Open CASCADE, which is native only.

#include "tests/host/import/iges_drafts.h"
#include "tests/tarnix/commands/open_local_file_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

class OpenLocalFileOfAnotherSystem : public OpenLocalFileTest {
protected:
    /// A copy of a sample under another name.
    std::string sample(const std::string& name) const {
        const std::filesystem::path copy = folder.path() / name;
        std::filesystem::create_directories(copy.parent_path());
        std::filesystem::copy_file(std::filesystem::path(SAMPLES_FOLDER) / "camera-slider.step",
                                   copy);
        return copy.string();
    }
};

TEST_F(OpenLocalFileOfAnotherSystem, OpensAStepFileOfUpperCaseInAFolderOfUpperCase) {
    pick({sample("From THEM/SLIDER.STEP")});

    EXPECT_EQ(session->design().name, "SLIDER");
    EXPECT_EQ(uploaded(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileOfAnotherSystem, OpensAnIgesFileOfUpperCase) {
    pick({file("From THEM/PANEL.IGS", drafts::iges(drafts::kRectangle))});

    EXPECT_EQ(session->design().name, "PANEL");
    ASSERT_TRUE(session->design().components.front().geometry);
    // 10 x 20 mm in cm2.
    EXPECT_NEAR(session->design().components.front().geometry->area(), 2, 1e-9);
    EXPECT_EQ(uploaded(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileOfAnotherSystem, MeasuresItWithThePointInTheLocaleOfTheCommand) {
    pick({sample("slider.stp")});

    showStructure();

    const adsk::core::Ptr<adsk::core::StringValueCommandInput> mass = session->input("idAllMass");
    EXPECT_EQ(mass->value(), "2.110");
}

TEST_F(OpenLocalFileOfAnotherSystem, OpensAnUploadedStepFileUnderAnotherEnding) {
    pick({sample("slider.prt")});

    EXPECT_EQ(uploaded(), Texts{"slider"});
    EXPECT_EQ(session->design().name, "slider");
}

}  // namespace
