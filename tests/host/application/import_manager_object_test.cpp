#include "host/application/import_manager_object.h"

#include <Core/CoreAll.h>
#include "host/application/running_host.h"
#include "host/base/last_error.h"
#include "host/design/design_file.h"
#include "host/design/document.h"
#include "host/design/outline.h"
#include "tests/host/import/drafts.h"
#include "tests/support/fault_watch.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace host {
namespace {

using namespace adsk::core;
using drafts::product;
using drafts::step;
using drafts::tree;

class ImportManagerTest : public testing::Test {
protected:
    ~ImportManagerTest() override { faults.verify(); }

    static Ptr<ImportManager> manager() { return adsk::core::Application::get()->importManager(); }

    test_support::TemporaryFolder folder;
    RunningHost host_;

    /// What the host reports against the test, and which of it the test expects.
    test_support::FaultWatch faults;
};

TEST_F(ImportManagerTest, OpensStepFilesAsNewDocuments) {
    const std::string file = folder.write("Frame.STEP", step(product(10, "A-1", "Frame")));

    const Ptr<Document> document =
        manager()->importToNewDocument(manager()->createSTEPImportOptions(file));

    ASSERT_TRUE(document);
    EXPECT_EQ(tree(snapshot(document)), "Frame\n");
    EXPECT_TRUE(adsk::core::Application::get()->activeDocument() == document);
    EXPECT_FALSE(document->dataFile());
}

TEST_F(ImportManagerTest, KeepsWhatTheReaderHadToSay) {
    const std::string file = folder.write(
        "a.step",
        step(product(10, "A", "Cart") + product(20, "W", "Wheel") + drafts::usage(30, 10, 20)));

    manager()->importToNewDocument(manager()->createSTEPImportOptions(file));

    EXPECT_EQ(host::ApplicationObject::current()->importWarnings,
              (std::vector<host::ReadingWarning>{
                  {.code = "no-placement",
                   .file = file,
                   .text = "has no placement for 1 usage; it is at the origin",
                   .component = "",
                   .value = {},
                   .unit = ""}}));
}

TEST_F(ImportManagerTest, OpensDesignFilesInThePlaceOfArchives) {
    const std::string file = (folder.path() / "Drive.f3d").string();
    saveDesignFile(file, parseOutline("Bolt"));

    const Ptr<Document> document =
        manager()->importToNewDocument(manager()->createFusionArchiveImportOptions(file));

    EXPECT_EQ(snapshot(document).components.at(1).name, "Bolt");
}

TEST_F(ImportManagerTest, OptionsCanBeGivenAnotherFile) {
    const Ptr<STEPImportOptions> options = manager()->createSTEPImportOptions("/nowhere");
    EXPECT_EQ(options->filename(), "/nowhere");

    EXPECT_TRUE(options->filename(folder.write("A.stp", step(product(10, "A", "A")))));

    EXPECT_TRUE(manager()->importToNewDocument(options));
}

TEST_F(ImportManagerTest, HasNoTranslatorForTheOtherFormats) {
    const std::string file = folder.write("a.sat", "400 0 1 0");

    EXPECT_FALSE(manager()->importToNewDocument(manager()->createSATImportOptions(file)));
    EXPECT_EQ(lastError().description,
              "this host has no translator for the format of adsk::core::SATImportOptions");
    EXPECT_FALSE(manager()->importToNewDocument(manager()->createSMTImportOptions(file)));
}

TEST_F(ImportManagerTest, RefusesWhatIsNotThereByName) {
    EXPECT_FALSE(
        manager()->importToNewDocument(manager()->createSTEPImportOptions("/nowhere/a.stp")));

    EXPECT_EQ(lastError().description, "/nowhere/a.stp: no such file");
}

TEST_F(ImportManagerTest, ReportsMissingOptions) {
    EXPECT_FALSE(manager()->importToNewDocument(nullptr));

    EXPECT_EQ(faults.misuses(), (std::vector<Misuse>{{"ImportManager::importToNewDocument",
                                                      "needs options that name a file"}}));
}

}  // namespace
}  // namespace host
