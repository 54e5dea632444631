#include "drafts.h"
#include "host/design/document.h"
#include "host/ui/application.h"

#include <Core/CoreAll.h>

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// One record of 80 columns.
std::string record(const std::string& text, char section, std::size_t number) {
    std::ostringstream line;
    line << std::left << std::setw(72) << text << section << std::right << std::setw(7) << number
         << "\n";
    return line.str();
}

/// An entity's parameters, which begin with its type; the form is that of its directory entry.
struct Entity {
    int type = 0;
    int form = 0;
    std::string parameters;
};

std::string fields(const std::vector<int>& numbers) {
    std::ostringstream text;
    for (const int each : numbers) {
        text << std::setw(8) << each;
    }
    return text.str();
}

/// An IGES file whose unit has this flag and name.
std::string iges(const std::vector<Entity>& entities, const std::string& unit = "2,2HMM") {
    std::string directory;
    std::string parameters;
    for (std::size_t index = 0; index < entities.size(); ++index) {
        const Entity& each = entities[index];
        const auto place = static_cast<int>(index) + 1;
        directory += record(fields({each.type, place, 0, 0, 0, 0, 0, 0, 0}), 'D', 2 * index + 1);
        directory +=
            record(fields({each.type, 0, 0, 1, each.form, 0, 0, 0, 0}), 'D', 2 * index + 2);
        std::ostringstream line;
        line << std::left << std::setw(64) << each.parameters << std::right << std::setw(8)
             << 2 * index + 1;
        parameters += record(line.str(), 'P', index + 1);
    }
    std::ostringstream end;
    end << "S" << std::setw(7) << 1 << "G" << std::setw(7) << 2 << "D" << std::setw(7)
        << 2 * entities.size() << "P" << std::setw(7) << entities.size();
    return record("A draft.", 'S', 1) +
           record("1H,,1H;,5Hdraft,9Hdraft.igs,5Hhands,1H1,32,38,6,308,15,5Hdraft,1.0,", 'G', 1) +
           record(unit + ",1,0.01,15H20260101.000000,1.0E-6,100.0,2Hme,2Hme,11,0;", 'G', 2) +
           directory + parameters + record(end.str(), 'T', 1);
}

/// A rectangle of 10 x 20 that two lines span.
const std::vector<Entity> kRectangle = {{110, 0, "110,0.,0.,0.,10.,0.,0.;"},
                                        {110, 0, "110,0.,20.,0.,10.,20.,0.;"},
                                        {118, 1, "118,1,3,0,1;"}};

class IgesImport : public testing::Test {
protected:
    drafts::Folder folder;
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

TEST_F(IgesImport, WithoutBodiesHasNone) {
    const host::DesignData design =
        drafts::import(folder.write("line.igs", iges({kRectangle.front()})));

    EXPECT_EQ(drafts::tree(design), "line\n");
    EXPECT_FALSE(design.components.front().geometry);
}

TEST_F(IgesImport, IsOpenedByTheImportManager) {
    using namespace adsk::core;
    host::startHost({});
    const Ptr<ImportManager> manager = Application::get()->importManager();

    const Ptr<Document> document = manager->importToNewDocument(
        manager->createIGESImportOptions(folder.write("Panel.ige", iges(kRectangle))));

    EXPECT_EQ(drafts::tree(host::snapshot(document)), "Panel\n");
    host::endHost();
}

TEST_F(IgesImport, RefusesWhatOnlyBeginsAsIges) {
    const std::string file = folder.write("broken.igs", record("Nothing follows.", 'S', 1));

    EXPECT_EQ(drafts::refusal(file), file + ": cannot be read as IGES; export it again");
}

}  // namespace
