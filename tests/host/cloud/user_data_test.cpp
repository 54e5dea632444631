#include "host/cloud/user_data.h"

#include "host/base/gate.h"
#include "host/base/host_state.h"
#include "host/design/document.h"
#include "host/design/outline.h"
#include "tests/support/fault_watch.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace host {
namespace {

using namespace adsk::core;

class UserDataTest : public testing::Test {
    HostState host_;

protected:
    ~UserDataTest() override {
        faults.verify();
        endDocument(document);
    }

    /// Puts files on the disk, by their paths below the user's data.
    void store(const std::vector<std::string>& files) const {
        for (const std::string& file : files) {
            folder.write(file, "x");
        }
    }

    void open(const std::string& activeProject = "",
              ReferencedFiles references = ReferencedFiles::KnownAtOnce) {
        data = std::make_unique<UserData>(UserDataSetup{
            .folder = folder.path(), .activeProject = activeProject, .references = references});
    }

    [[nodiscard]] Ptr<DataFolder> root() const {
        return data->api()->activeProject()->rootFolder();
    }

    [[nodiscard]] Ptr<DataFile> fileAt(const std::string& path) const {
        return data->fileAt(folder.path() / path);
    }

    /// Opens a design, and ties it to the file "Gearbox.step" of the project "Alfa".
    void tieGearbox(const std::string& outline) {
        document = makeDocument(parseOutline(outline));
        data->tie(document, folder.path() / "Alfa" / "Gearbox.step");
    }

    /// The names below a folder: "Bought(Engine) Gearbox".
    static std::string tree(const Ptr<DataFolder>& from) {
        std::string all;
        for (std::size_t i = 0; i < from->dataFolders()->count(); ++i) {
            const Ptr<DataFolder> each = from->dataFolders()->item(i);
            all += (all.empty() ? "" : " ") + each->name() + "(" + tree(each) + ")";
        }
        for (std::size_t i = 0; i < from->dataFiles()->count(); ++i) {
            all += (all.empty() ? "" : " ") + from->dataFiles()->item(i)->name();
        }
        return all;
    }

    /// The operations that were misused so far, in one line. The test names them by asking.
    [[nodiscard]] std::string misused() { return test_support::operationsOf(faults.misuses()); }

    test_support::TemporaryFolder folder;
    std::unique_ptr<UserData> data;
    Ptr<Document> document;

    /// What the host reports against the test, and which of it the test expects.
    test_support::FaultWatch faults;
};

TEST_F(UserDataTest, ShowsEachFolderAsAProject) {
    store({"Beta/b.step", "Alfa/a.step", ".hidden/c.step"});
    open();
    EXPECT_EQ(data->api()->activeProject()->name(), "Alfa");
    open("Beta");
    EXPECT_EQ(data->api()->activeProject()->name(), "Beta");
    EXPECT_EQ(tree(root()), "b");
}

TEST_F(UserDataTest, ShowsFoldersAndFilesInOrderWithoutTheirEndings) {
    store({"Alfa/Designs/Motors/Gearbox.design.json", "Alfa/Designs/b.step", "Alfa/a.b.stp",
           "Alfa/.lock"});
    open();
    EXPECT_EQ(tree(root()), "Designs(Motors(Gearbox) b) a.b");
}

TEST_F(UserDataTest, FollowsAddedAndDeletedFiles) {
    store({"Alfa/a.step", "Alfa/b.step"});
    open();
    const Ptr<DataFile> gone = fileAt("Alfa/a.step");
    std::filesystem::remove(folder.path() / "Alfa" / "a.step");
    store({"Alfa/c.step"});
    EXPECT_EQ(tree(root()), "b c");
    EXPECT_FALSE(gone->isValid());
    EXPECT_EQ(gone->name(), "");
    EXPECT_EQ(gone->parentFolder(), nullptr);
    EXPECT_EQ(misused(), "DataFile::name DataFile::parentFolder");
}

TEST_F(UserDataTest, AFileKnowsItsFolderAndProject) {
    store({"Alfa/Designs/Gearbox.step"});
    open();
    const Ptr<DataFile> file = fileAt("Alfa/Designs/Gearbox.step");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->name(), "Gearbox");
    EXPECT_EQ(file->parentProject(), data->api()->activeProject());
    EXPECT_EQ(file->parentFolder()->name(), "Designs");
    EXPECT_FALSE(file->parentFolder()->isRoot());
    EXPECT_TRUE(file->parentFolder()->parentFolder()->isRoot());
    EXPECT_EQ(file->parentFolder()->parentFolder()->parentFolder(), nullptr);
}

// DataFile_name: the displayed name can be set; the id is that of all its versions.
TEST_F(UserDataTest, AFileIsRenamedOnTheDiskAndKeepsItsId) {
    store({"Alfa/Designs/Gearbox.design.json", "Alfa/Designs/Motor.step"});
    open();
    const Ptr<DataFile> file = fileAt("Alfa/Designs/Gearbox.design.json");
    const std::string id = file->id();

    EXPECT_TRUE(file->name("Drive"));

    EXPECT_EQ(tree(root()), "Designs(Drive Motor)");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Alfa/Designs/Drive.design.json"));
    EXPECT_EQ(file->name(), "Drive");
    EXPECT_EQ(file->id(), id);
    EXPECT_EQ(fileAt("Alfa/Designs/Drive.design.json"), file);
    store({"Alfa/Designs/Gearbox.design.json"});
    EXPECT_NE(fileAt("Alfa/Designs/Gearbox.design.json")->id(), id);
}

TEST_F(UserDataTest, ANameThatIsInUseOrNoNameIsRefused) {
    store({"Alfa/Gearbox.step", "Alfa/Motor.step", "Alfa/Designs/a.step"});
    open();
    const Ptr<DataFile> file = fileAt("Alfa/Gearbox.step");

    for (const char* refused : {"Motor", "", "a/b", ".hidden", "dot.", "what?"}) {
        EXPECT_FALSE(file->name(refused)) << refused;
    }
    EXPECT_FALSE(file->parentFolder()->dataFolders()->item(0)->name("a\\b"));

    EXPECT_EQ(tree(root()), "Designs(a) Gearbox Motor");
    EXPECT_EQ(file->name(), "Gearbox");
}

// DataFolder_name, DataProject_name.
TEST_F(UserDataTest, AFolderAndAProjectAreRenamedWithAllThatIsInThem) {
    store({"Alfa/Designs/Motors/Gearbox.step"});
    open();
    const Ptr<DataFile> file = fileAt("Alfa/Designs/Motors/Gearbox.step");
    const Ptr<DataProject> project = data->api()->activeProject();
    const std::string id = project->id();

    EXPECT_TRUE(file->parentFolder()->parentFolder()->name("Plans"));
    EXPECT_TRUE(project->name("Beta"));

    EXPECT_EQ(tree(root()), "Plans(Motors(Gearbox))");
    EXPECT_EQ(fileAt("Beta/Plans/Motors/Gearbox.step"), file);
    EXPECT_EQ(project->name(), "Beta");
    EXPECT_EQ(project->id(), id);
    EXPECT_EQ(root()->name(), "Beta");
    EXPECT_TRUE(root()->name("Gamma"));
    EXPECT_EQ(project->name(), "Gamma");
    EXPECT_TRUE(file->isValid());
}

TEST_F(UserDataTest, ReturnsTheSameObjectForAFile) {
    store({"Alfa/a.step"});
    open();
    EXPECT_EQ(fileAt("Alfa/a.step"), root()->dataFiles()->item(0));
    EXPECT_EQ(root(), fileAt("Alfa/a.step")->parentFolder());
}

TEST_F(UserDataTest, IdsOfFilesDiffer) {
    store({"Alfa/a.step", "Alfa/a.stp", "Beta/a.step"});
    open();
    EXPECT_NE(fileAt("Alfa/a.step")->id(), fileAt("Alfa/a.stp")->id());
    EXPECT_NE(fileAt("Alfa/a.step")->id(), fileAt("Beta/a.step")->id());
}

TEST_F(UserDataTest, HasNoFileOutsideItsProjects) {
    store({"Alfa/a.step", "loose.step"});
    open();
    EXPECT_FALSE(fileAt("loose.step"));
    EXPECT_FALSE(fileAt("Alfa"));
    EXPECT_FALSE(fileAt("Alfa/b.step"));
    EXPECT_FALSE(fileAt("../outside.step"));
    EXPECT_TRUE(fileAt("Beta/../Alfa/a.step"));
}

TEST_F(UserDataTest, RefusesAMissingFolderAndAMissingProject) {
    store({"Alfa/a.step"});
    EXPECT_THROW(UserData({folder.path() / "missing", "", {}}), std::invalid_argument);
    EXPECT_THROW(UserData({folder.path() / "Alfa" / "a.step", "", {}}), std::invalid_argument);
    EXPECT_THROW(UserData({folder.path(), "Gamma", {}}), std::invalid_argument);
}

TEST_F(UserDataTest, WithoutProjectsHasNoActiveProject) {
    open();
    EXPECT_EQ(data->api()->activeProject(), nullptr);
}

TEST_F(UserDataTest, AssociatesADocumentWithItsFile) {
    store({"Alfa/Gearbox.step"});
    open();
    document = makeDocument(parseOutline("Bolt"));
    EXPECT_FALSE(document->isSaved());
    data->tie(document, folder.path() / "Alfa" / "Gearbox.step");
    EXPECT_EQ(document->dataFile(), fileAt("Alfa/Gearbox.step"));
    EXPECT_TRUE(document->isSaved());
}

TEST_F(UserDataTest, AssociatesReferencedDocumentsByName) {
    store({"Alfa/Gearbox.step", "Alfa/Bought/Engine.step", "Alfa/Engine.step"});
    open();
    tieGearbox("Motor  document=Engine\nBelt  document=Missing");
    EXPECT_EQ(referencesOf(document)[0]->dataFile(), fileAt("Alfa/Bought/Engine.step"));
    EXPECT_EQ(referencesOf(document)[1]->dataFile(), nullptr);
}

TEST_F(UserDataTest, AReferencedFileCanStayUnknownUntilItsFolderIsListed) {
    store({"Alfa/Gearbox.step", "Alfa/Bought/Engine.step"});
    open("", ReferencedFiles::KnownWhenListed);
    tieGearbox("Motor  document=Engine");
    const Ptr<Document> engine = referencesOf(document)[0];
    EXPECT_EQ(engine->dataFile(), nullptr);
    static_cast<void>(root()->dataFiles());
    EXPECT_EQ(engine->dataFile(), nullptr);
    static_cast<void>(root()->dataFolders()->item(0)->dataFiles());
    EXPECT_EQ(engine->dataFile(), fileAt("Alfa/Bought/Engine.step"));
}

TEST_F(UserDataTest, AReferencedFileInAListedFolderIsKnownAtOnce) {
    store({"Alfa/Gearbox.step", "Alfa/Engine.step"});
    open("", ReferencedFiles::KnownWhenListed);
    static_cast<void>(root()->dataFiles());
    tieGearbox("Motor  document=Engine");
    EXPECT_EQ(referencesOf(document)[0]->dataFile(), fileAt("Alfa/Engine.step"));
}

TEST_F(UserDataTest, AClosedDocumentIsNotAssociatedLater) {
    store({"Alfa/Gearbox.step", "Alfa/Engine.step"});
    open("", ReferencedFiles::KnownWhenListed);
    tieGearbox("Motor  document=Engine");
    const Ptr<Document> engine = referencesOf(document)[0];
    endDocument(document);
    static_cast<void>(root()->dataFiles());
    EXPECT_FALSE(engine->isValid());
    EXPECT_EQ(engine->dataFile(), nullptr);
    EXPECT_EQ(misused(), "Document::dataFile");
}

TEST_F(UserDataTest, ItsObjectsAreInvalidAfterItsEnd) {
    store({"Alfa/Designs/a.step"});
    open();
    const Ptr<Data> api = data->api();
    const Ptr<DataProject> project = api->activeProject();
    const Ptr<DataFolders> folders = project->rootFolder()->dataFolders();
    const Ptr<DataFile> file = fileAt("Alfa/Designs/a.step");
    data.reset();
    EXPECT_FALSE(api->isValid());
    EXPECT_EQ(api->activeProject(), nullptr);
    EXPECT_EQ(project->rootFolder(), nullptr);
    EXPECT_EQ(folders->item(0)->name(), "");
    EXPECT_EQ(file->parentProject(), nullptr);
    EXPECT_EQ(folders->item(1), nullptr);
    EXPECT_EQ(misused(),
              "Data::activeProject DataProject::rootFolder DataFolder::name "
              "DataFile::parentProject");
}

TEST_F(UserDataTest, ChangesItsActiveProject) {
    store({"Alfa/a.step", "Beta/b.step"});
    open("Beta");
    const Ptr<DataProject> beta = data->api()->activeProject();
    open();
    EXPECT_FALSE(data->api()->activeProject(beta));
    EXPECT_FALSE(data->api()->activeProject(nullptr));
    const Ptr<DataProject> second = fileAt("Beta/b.step")->parentProject();
    EXPECT_TRUE(data->api()->activeProject(second));
    EXPECT_EQ(data->api()->activeProject()->name(), "Beta");
}

}  // namespace
}  // namespace host
