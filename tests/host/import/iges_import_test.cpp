#include "host/application/running_host.h"
#include "host/design/document.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/iges_drafts.h"
#include "tests/support/temporary_folder.h"

#include <Core/CoreAll.h>

#include <gtest/gtest.h>

namespace {

using drafts::iges;
using drafts::kRectangle;

class IgesImport : public testing::Test {
protected:
    test_support::TemporaryFolder folder;
};

TEST_F(IgesImport, IsOneComponentOfTheFilesNameWithItsBodies) {
    const host::DesignData design = drafts::import(folder.write("Panel.IGS", iges(kRectangle)));

    EXPECT_EQ(drafts::tree(design), "Panel\n");
    EXPECT_EQ(design.name, "Panel");
    EXPECT_EQ(design.unit, "mm");
    ASSERT_TRUE(design.components.front().geometry);
    EXPECT_NEAR(design.components.front().geometry->area(), 2, 1e-9);
}

TEST_F(IgesImport, ReadsItsUnit) {
    const host::DesignData design =
        drafts::import(folder.write("panel.igs", iges(kRectangle, "1,4HINCH")));

    EXPECT_EQ(design.unit, "inch");
    // 200 square inches of 2.54 cm.
    EXPECT_NEAR(design.components.front().geometry->area(), 1290.32, 1e-6);
}

TEST_F(IgesImport, WithoutBodiesHasNoGeometry) {
    const host::DesignData design =
        drafts::import(folder.write("line.igs", iges({kRectangle.front()})));

    EXPECT_EQ(drafts::tree(design), "line\n");
    EXPECT_FALSE(design.components.front().geometry);
}

TEST_F(IgesImport, IsOpenedByTheImportManager) {
    using namespace adsk::core;
    const host::RunningHost host;
    const Ptr<ImportManager> manager = Application::get()->importManager();

    const Ptr<Document> document = manager->importToNewDocument(
        manager->createIGESImportOptions(folder.write("Panel.ige", iges(kRectangle))));

    EXPECT_EQ(drafts::tree(host::snapshot(document)), "Panel\n");
}

TEST_F(IgesImport, RefusesWhatOnlyBeginsAsIges) {
    const std::string file =
        folder.write("broken.igs", drafts::igesRecord("Nothing follows.", 'S', 1));

    EXPECT_EQ(drafts::refusal(file), file + ": cannot be read as IGES; export it again");
}

}  // namespace
