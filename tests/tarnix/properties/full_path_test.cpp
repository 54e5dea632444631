#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/input_actions.h"
#include "host/session/user_actions.h"

namespace tarnix {
namespace {

using namespace adsk::core;

/// A test with the user's data: a project "Alfa", whose folders each test fills.
class FullPath : public PropertiesTest {
protected:
    [[nodiscard]] std::filesystem::path data() const { return session->folder() / "data"; }

    /// Puts a design into the user's data, under a path without its ending.
    void store(const std::string& path, const std::string& outline) {
        const std::filesystem::path file = data() / (path + ".design.json");
        std::filesystem::create_directories(file.parent_path());
        open(outline);
        session->save(file);
    }

    /// Opens a stored design.
    void openStored(const std::string& path,
                    host::ReferencedFiles references = host::ReferencedFiles::KnownAtOnce) {
        session->useData({data(), "Alfa", references});
        session->open(data() / (path + ".design.json"));
    }

    /// What the box shows.
    [[nodiscard]] std::string shown() const {
        const Ptr<TextBoxCommandInput> box = session->input(kFullPath);
        return box->text();
    }

    /// Opens a design of a bolt and a referenced motor, and shows the motor's path.
    void showReferenced() {
        store("Alfa/Engine", "Piston");
        store("Alfa/Gearbox", R"(
            Motor  document=Engine
            Bolt)");
        openStored("Alfa/Gearbox");
        openAndPick("Motor:1");
        ASSERT_EQ(shown(), "RefDoc: Alfa // Engine");
    }

    /// Picks a bolt of a stored design with one host call refused.
    void pickBoltWithout(const std::string& call) {
        store("Alfa/Gearbox", "Bolt");
        openStored("Alfa/Gearbox");
        openProperties();
        host::gate::refuse(call, 1);
        session->pick("Bolt:1");
    }

    /// Picks the motor again with one host call refused.
    void pickMotorWithout(const std::string& call) {
        showReferenced();
        session->pick("Bolt:1");
        ASSERT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
        host::gate::refuse(call, 1);
        session->pick("Motor:1");
    }
};

TEST_F(FullPath, IsEmptyForADesignThatWasNeverSaved) {
    store("Alfa/Other", "Bolt");
    session->useData({data(), "Alfa"});
    open("Bolt");
    openAndPick("Bolt:1");
    EXPECT_EQ(box(kFullPath), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(FullPath, ShowsLabelProjectFoldersAndFileInHtml) {
    store("Alfa/Designs/Motors/Gearbox", "Bolt");
    openStored("Alfa/Designs/Motors/Gearbox");
    openProperties();
    EXPECT_EQ(box(kFullPath), R"(<b><span style="color: blue">ThisDoc: </span></b>Alfa)"
                              R"(<b><span style="color: blue"> // </span></b>Designs)"
                              R"(<b><span style="color: blue"> // </span></b>Motors)"
                              R"(<b><span style="color: blue"> // </span></b>Gearbox)");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Designs // Motors // Gearbox");
}

TEST_F(FullPath, OfAFileInTheRootFolderHasOneSeparator) {
    store("Alfa/Gearbox", "Bolt");
    openStored("Alfa/Gearbox");
    openProperties();
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
}

TEST_F(FullPath, OfThePickedRootComponentIsThisDocument) {
    showReferenced();
    session->pick("");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
}

TEST_F(FullPath, OfAnOrdinaryOccurrenceIsThisDocument) {
    showReferenced();
    session->pick("Bolt:1");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
}

TEST_F(FullPath, OfAReferencedOccurrenceIsTheReferencedDocument) {
    store("Alfa/Bought/Big/Engine", "Piston");
    store("Alfa/Designs/Gearbox", "Motor  document=Engine");
    openStored("Alfa/Designs/Gearbox");
    openProperties();
    host::gate::reset();
    session->pick("Motor:1");
    EXPECT_EQ(box(kFullPath), R"(<b><span style="color: blue">RefDoc: </span></b>Alfa)"
                              R"(<b><span style="color: blue"> // </span></b>Bought)"
                              R"(<b><span style="color: blue"> // </span></b>Big)"
                              R"(<b><span style="color: blue"> // </span></b>Engine)");
    EXPECT_EQ(host::gate::count("DataFile::id"), 0U);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(FullPath, OfAReferenceThatTheHostDoesNotKnowYetIsFoundByAWalk) {
    store("Alfa/Bought/Big/Engine", "Piston");
    store("Alfa/Bought/Screw", "Head");
    store("Alfa/Designs/Gearbox", "Motor  document=Engine");
    openStored("Alfa/Designs/Gearbox", host::ReferencedFiles::KnownWhenListed);
    openProperties();
    host::gate::reset();
    session->pick("Motor:1");
    EXPECT_EQ(shown(), "RefDoc: Alfa // Bought // Big // Engine");
    // Each of the three files was met, and the referenced document was asked once more.
    EXPECT_EQ(host::gate::count("DataFile::id"), 3U);
    EXPECT_EQ(host::gate::count("Document::dataFile"), 2U);
}

TEST_F(FullPath, OfAReferenceThatWasFoundNeedsNoSecondWalk) {
    store("Alfa/Bought/Engine", "Piston");
    store("Alfa/Gearbox", R"(
        Motor  document=Engine
        Bolt)");
    openStored("Alfa/Gearbox", host::ReferencedFiles::KnownWhenListed);
    openAndPick("Motor:1");
    session->pick("Bolt:1");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
    host::gate::reset();
    session->pick("Motor:1");
    EXPECT_EQ(shown(), "RefDoc: Alfa // Bought // Engine");
    EXPECT_EQ(host::gate::count("DataFolder::dataFiles"), 0U);
}

TEST_F(FullPath, OfAReferenceWithoutAFileIsEmpty) {
    store("Alfa/Gearbox", "Motor  document=Engine");
    openStored("Alfa/Gearbox");
    openAndPick("Motor:1");
    EXPECT_EQ(box(kFullPath), "");
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_TRUE(session->messages().empty());
}

TEST_F(FullPath, OfAReferenceIsEmptyWhereTheUserHasNoData) {
    open("Motor  document=Engine");
    openAndPick("Motor:1");
    EXPECT_EQ(box(kFullPath), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

class FullPathWithout : public FullPath, public testing::WithParamInterface<const char*> {};

TEST_P(FullPathWithout, IsEmptyAndThePickGoesOn) {
    pickMotorWithout(GetParam());

    EXPECT_EQ(box(kFullPath), "");
    EXPECT_EQ(value(kPartName), "Motor");
    EXPECT_EQ(uncaughtExceptions(), "");
}

INSTANTIATE_TEST_SUITE_P(EachCall, FullPathWithout,
                         testing::Values("Component::parentDesign", "Product::parentDocument",
                                         "UserInterface::activeSelections", "Selections::item"));

TEST_F(FullPath, WithoutASelectionIsThisDocument) {
    store("Alfa/Bought/Engine", "Piston");
    store("Alfa/Gearbox", "Motor  document=Engine");
    openStored("Alfa/Gearbox");
    openAndPick("Motor:1");
    EXPECT_EQ(shown(), "RefDoc: Alfa // Bought // Engine");
    session->pick("Motor:1");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
}

TEST_F(FullPath, WithTwoSelectedEntitiesIsThisDocument) {
    store("Alfa/Bought/Engine", "Piston");
    store("Alfa/Gearbox", R"(
        Motor  document=Engine
        Bolt
        Nut)");
    openStored("Alfa/Gearbox");
    host::selectInModel({entity("Bolt:1"), entity("Nut:1")});
    openProperties();
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
    session->pick("Motor:1");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
    EXPECT_EQ(value(kPartName), "Motor");
}

TEST_F(FullPath, InTheDocumentationWorkspaceIsAlwaysTheActiveDocument) {
    store("Alfa/Bought/Engine", "Piston");
    store("Alfa/Gearbox", "Motor  document=Engine");
    openStored("Alfa/Gearbox");
    session->activateWorkspace("FusionDocumentationEnvironment");
    openAndPick("Motor:1");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
    EXPECT_EQ(value(kPartName), "Motor");
}

TEST_F(FullPath, ThrowsWhenTheProjectOfTheFileIsMissing) {
    pickBoltWithout("DataFile::parentProject");
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of QEMA_selectComponent");
}

TEST_F(FullPath, IsEmptyWhenTheActiveDocumentIsMissing) {
    pickBoltWithout("Application::activeDocument");
    EXPECT_EQ(box(kFullPath), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(FullPath, OfASelectionWithoutAnEntityIsThisDocument) {
    pickMotorWithout("Selection::entity");
    EXPECT_EQ(shown(), "ThisDoc: Alfa // Gearbox");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(FullPath, OfAFileWithoutAFolderIsASeparator) {
    pickBoltWithout("DataFile::parentFolder");
    EXPECT_EQ(shown(), "ThisDoc: Alfa //  // Gearbox");
}

}  // namespace
}  // namespace tarnix
