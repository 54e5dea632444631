#include "tests/support/addin_test.h"
#include "tests/support/files.h"
#include "tests/support/leak_check.h"
#include "tests/support/temporary_folder.h"

#include "host/application/main_queue.h"
#include "host/design/outline.h"
#include "host/session/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using host::Session;
using host::SessionError;
using host::SessionOptions;
using test_support::addinOptions;

namespace {

/// The session with a real add-in, which is not started by itself.
class SessionWithAddin : public test_support::AddinTest {
protected:
    [[nodiscard]] bool runsAtStart() const override { return false; }

    /// What making a session of these options complains about.
    static std::string complaint(const SessionOptions& options) {
        try {
            const Session failing(options);
        } catch (const SessionError& error) {
            return error.what();
        }
        return "none";
    }

    /// Stores a column with the mass in one session of these options, and starts the next.
    void configureIn(const SessionOptions& options) {
        restart(options);
        configure({"QEMA_Mass;Weight"});
        restart(options);
    }

    /// The table of a bolt of a litre, with the columns that are stored.
    std::string tableOfALitre() {
        EXPECT_TRUE(session->run());
        open("Bolt  box=10x10x10");
        showModel();
        return table();
    }
};

}  // namespace

TEST_F(SessionWithAddin, TheModuleIsACopyInAFolderOfItsOwn) {
    EXPECT_EQ(session->addin().folder, session->folder() / "Tarnix");
    EXPECT_TRUE(fs::exists(session->addin().module()));
    EXPECT_FALSE(fs::equivalent(session->addin().module(), addinOptions().addin / "Tarnix.dll"));
}

TEST_F(SessionWithAddin, RunAnswersWhatTheModuleAnswers) {
    EXPECT_TRUE(session->run());
    EXPECT_FALSE(host::unloadsAfterRun());
}

TEST_F(SessionWithAddin, StopIsFalseWhenItRaises) {
    ASSERT_TRUE(session->run());

    EXPECT_FALSE(session->stop());
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");
}

TEST_F(SessionWithAddin, AnotherSessionHasFreshStatics) {
    ASSERT_TRUE(session->run());
    open("Bolt");
    showModel();
    ASSERT_EQ(table(), "1 | Part | Bolt");
    restart(addinOptions());
    ASSERT_TRUE(session->run());
    open("Bolt");

    showModel();

    // The numbering goes on as long as the add-in stays loaded.
    EXPECT_EQ(table(), "1 | Part | Bolt");
}

TEST_F(SessionWithAddin, ARelativePathStartsWhereTheProcessStood) {
    const fs::path place = session->folder().parent_path();
    endSession();
    const fs::path before = fs::current_path();
    fs::current_path(place);
    restart(addinOptions());
    session->openOutline("Bolt");

    session->save("relative.design.json");

    EXPECT_TRUE(fs::exists(place / "relative.design.json"));
    fs::remove(place / "relative.design.json");
    endSession();
    fs::current_path(before);
}

TEST_F(SessionWithAddin, ADesignFileComesBackAsItWasSaved) {
    const fs::path file = session->folder() / "frame.design.json";
    session->openOutline(
        "Frame  number=F-1 description=\"A frame\"\n"
        "  Leg\n"
        "  Leg\n");
    session->save(file);
    session->newDesign();

    const std::vector<host::ReadingWarning> warnings = session->open(file);

    EXPECT_TRUE(warnings.empty());
    const host::DesignData design = session->design();
    ASSERT_EQ(design.components.size(), 3U);
    EXPECT_EQ(design.components[1].partNumber, "F-1");
    EXPECT_EQ(design.components[1].description, "A frame");
    EXPECT_EQ(design.components[1].children.size(), 2U);
}

TEST_F(SessionWithAddin, AFileThatCannotBeReadLeavesTheDesignOpen) {
    session->openOutline("Bolt");
    const fs::path file = session->folder() / "broken.design.json";
    test_support::writeFile(file, "{\"components\": [");

    EXPECT_THROW(session->open(file), host::DesignError);
    EXPECT_EQ(session->design().components.size(), 2U);
}

TEST_F(SessionWithAddin, ASketchIsEditedUntilItIsLeft) {
    host::DesignData design = host::parseOutline("Bolt");
    design.components.at(1).sketches = {{"Outline", {}}, {"Holes", {{true, false}}}};
    session->openDesign(std::move(design));
    const auto application = adsk::core::Application::get();

    session->editSketch(1, 1);
    const adsk::core::Ptr<adsk::fusion::Sketch> edited = application->activeEditObject();
    ASSERT_TRUE(edited);
    EXPECT_EQ(edited->sketchCurves()->count(), 1U);

    session->leaveSketch();
    EXPECT_FALSE(adsk::core::Ptr<adsk::fusion::Sketch>(application->activeEditObject()));
}

TEST_F(SessionWithAddin, ASketchThatIsNotThereIsRefused) {
    session->openOutline("Bolt");

    EXPECT_THROW(session->editSketch(1, 0), SessionError);
    EXPECT_THROW(session->editSketch(7, 0), SessionError);
}

TEST_F(SessionWithAddin, DesignsThatTheModuleOpensAreNotThoseOfThePerson) {
    session->openOutline("Bolt");
    EXPECT_TRUE(session->designsOpenedByModule().empty());
    host::DesignData design = host::parseOutline("Nut");
    design.name = "Opened";

    host::ApplicationObject::current()->openInHost(std::move(design));

    ASSERT_EQ(session->designsOpenedByModule().size(), 1U);
    EXPECT_EQ(session->designsOpenedByModule().front().name, "Opened");
    EXPECT_EQ(session->design().name, "Opened");
}

/// A shape that cannot be measured.
class NoSize final : public host::Geometry {
public:
    double area() override { throw std::runtime_error("the shell is open"); }
    double volume() override { throw std::runtime_error("the shell is open"); }
    std::optional<host::Box> box(const host::Transform& /*placement*/) override {
        throw std::runtime_error("the shell is open");
    }
};

TEST_F(SessionWithAddin, WhatCannotBeMeasuredIsToldOfTheDesignThatIsOpen) {
    ASSERT_TRUE(session->run());
    host::DesignData design = host::parseOutline("Bolt");
    design.components[1].geometry = std::make_shared<NoSize>();
    session->openDesign(std::move(design));
    showStructure();

    EXPECT_EQ(session->unmeasured(),
              (std::vector<host::Unmeasured>{{"Bolt", "the shell is open"}}));

    session->newDesign();
    EXPECT_TRUE(session->unmeasured().empty());
}

TEST_F(SessionWithAddin, AnUnknownInputIsRefusedWithTheIdsThereAre) {
    ASSERT_TRUE(session->run());
    openBom();
    std::string text;

    try {
        static_cast<void>(session->input("QEMA_nothing"));
    } catch (const SessionError& error) {
        text = error.what();
    }

    EXPECT_EQ(text.rfind("the dialog has no input \"QEMA_nothing\"; it has QEMA_tab_models_BOM, "
                         "QEMA_btnExportXls, QEMA_bom_models, ",
                         0),
              0U)
        << text;
}

TEST_F(SessionWithAddin, AnIdOfTwoTabsMeansTheActiveOne) {
    ASSERT_TRUE(session->run());
    showStructure();

    const adsk::core::Ptr<adsk::core::CommandInput> button = session->input("QEMA_btnExportXls");

    ASSERT_TRUE(button->parentCommandInput());
    EXPECT_EQ(button->parentCommandInput()->id(), "QEMA_tab_structure_BOM");
}

TEST_F(SessionWithAddin, WithoutADialogThereAreNoInputs) {
    ASSERT_TRUE(session->run());

    EXPECT_FALSE(session->dialogOpen());
    EXPECT_THROW(static_cast<void>(session->input("QEMA_btnExportXls")), SessionError);
}

TEST_F(SessionWithAddin, AnUnknownCommandIsRefused) {
    ASSERT_TRUE(session->run());

    EXPECT_THROW(session->press("QM_TX_nothing"), host::MisuseError);
}

TEST_F(SessionWithAddin, AFolderWithoutAddinIsRefused) {
    endSession();
    SessionOptions options = addinOptions();
    options.addin = options.addin.parent_path();

    EXPECT_EQ(complaint(options).rfind("no add-in there: ", 0), 0U) << complaint(options);
}

TEST_F(SessionWithAddin, AModuleThatIsNoneIsRefusedAndLeavesNothing) {
    endSession();
    const test_support::TemporaryFolder folder;
    const fs::path before = fs::current_path();
    SessionOptions options = addinOptions();
    options.addin = folder.path() / "Fake";
    options.scratchRoot = folder.path() / "fresh";
    fs::create_directories(options.addin);
    test_support::writeFile(options.addin / "Fake.dll", "no code");
    test_support::writeFile(options.addin / "Fake.manifest", "{}");

    EXPECT_EQ(complaint(options).rfind("the add-in's module cannot be loaded: ", 0), 0U)
        << complaint(options);
    EXPECT_TRUE(fs::is_empty(options.scratchRoot));
    EXPECT_EQ(fs::current_path(), before);
}

TEST_F(SessionWithAddin, ASecondOneInTheProcessIsRefusedAndDoesNotDisturbTheFirst) {
    EXPECT_EQ(complaint(addinOptions()), "this process has a session already");
    EXPECT_TRUE(session->run());
}

TEST_F(SessionWithAddin, OnesAfterAnotherMayShareAFolder) {
    if (test_support::looksForLeaks()) {
        GTEST_SKIP() << "the leak checker needs the module's file, which goes with the folder";
    }
    const test_support::TemporaryFolder place;
    SessionOptions options = addinOptions();
    options.folder =
        std::make_shared<const host::SessionFolder>(host::SessionFolder::makeFresh(place.path()));
    configureIn(options);

    EXPECT_EQ(tableOfALitre(), "1 | Part | Bolt | 7.850");
    endSession();
    EXPECT_TRUE(fs::exists(options.folder->path() / "Tarnix"));
}

TEST_F(SessionWithAddin, AHomeKeepsWhatTheAddinWrote) {
    SessionOptions options = addinOptions();
    options.home = session->folder().parent_path() / "home";
    configureIn(options);

    EXPECT_EQ(tableOfALitre(), "1 | Part | Bolt | 7.850");
}
