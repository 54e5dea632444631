#include "tests/host/import/drafts.h"

#include "tests/support/real_files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <utility>

/// Files that real systems wrote. The expected counts were worked out from the text of the files
/// (products, usages, the tree that these make), and sizes from the ones that some of them hold.
namespace {

using drafts::tree;
using host::DesignData;

struct Counted {
    std::size_t nodes = 0;
    std::size_t leaves = 0;
    std::size_t levels = 0;

    bool operator==(const Counted&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Counted& counted) {
    return out << counted.nodes << " nodes, " << counted.leaves << " leaves, " << counted.levels
               << " levels";
}

Counted countFrom(const DesignData& design, std::size_t component) {
    Counted all = {1, 0, 0};
    for (const host::OccurrenceData& child : design.components[component].children) {
        const Counted below = countFrom(design, child.component);
        all = {all.nodes + below.nodes, all.leaves + below.leaves,
               std::max(all.levels, below.levels)};
    }
    all.leaves += design.components[component].children.empty() ? 1 : 0;
    return {all.nodes, all.leaves, all.levels + 1};
}

Counted count(const DesignData& design) { return countFrom(design, 0); }

/// How often each part is in the opened tree, by the names of the parts.
void countUses(const DesignData& design, std::size_t component, std::map<std::string, int>& uses) {
    for (const host::OccurrenceData& child : design.components[component].children) {
        ++uses[design.components[child.component].name];
        countUses(design, child.component, uses);
    }
}

double volumeFrom(const DesignData& design, std::size_t component) {
    const host::ComponentData& data = design.components[component];
    double volume = data.geometry == nullptr ? 0 : data.geometry->volume();
    for (const host::OccurrenceData& child : data.children) {
        volume += volumeFrom(design, child.component);
    }
    return volume;
}

const host::ComponentData& find(const DesignData& design, const std::string& name) {
    const auto found = std::find_if(design.components.begin(), design.components.end(),
                                    [&name](const auto& one) { return one.name == name; });
    if (found == design.components.end()) {
        throw std::out_of_range(name);
    }
    return *found;
}

std::size_t countIf(const DesignData& design, bool (*holds)(const host::ComponentData&)) {
    return static_cast<std::size_t>(
        std::count_if(design.components.begin(), design.components.end(), holds));
}

bool isShapeless(const host::ComponentData& component) {
    return component.children.empty() && component.geometry == nullptr;
}

class RealFiles : public testing::Test {
protected:
    void SetUp() override { test_support::needRealFiles(); }

    static std::string path(const std::string& name) {
        return (test_support::realFiles() / name).string();
    }

    DesignData import(const std::string& name) {
        return host::importStep(path(name), {}, {}, warnings);
    }

    static std::string reason(const std::string& name) {
        const std::string line = drafts::refusal(path(name));
        return line.substr(std::min(line.size(), path(name).size()));
    }

    std::vector<host::ReadingWarning> warnings;
};

TEST_F(RealFiles, TheClassicAssemblyHasItsTree) {
    const DesignData design = import("as1-oc-214.stp");

    const std::string bracket = R"(
    nut-bolt-assembly:1
      bolt:1
      nut:3
    nut-bolt-assembly:2
      bolt:1
      nut:3
    nut-bolt-assembly:3
      bolt:1
      nut:3
    l-bracket:1)";
    EXPECT_EQ(tree(design), R"(as1
  rod-assembly:1
    nut:1
    nut:2
    rod:1
  l-bracket-assembly:1)" + bracket +
                                R"(
  plate:1
  l-bracket-assembly:2)" + bracket +
                                "\n");
    EXPECT_EQ(count(design), (Counted{28, 18, 4}));
    EXPECT_EQ(design.unit, "mm");
    EXPECT_EQ(drafts::lines(warnings), std::vector<std::string>());
}

TEST_F(RealFiles, TheClassicAssemblyHasItsParts) {
    std::map<std::string, int> uses;
    countUses(import("as1-oc-214.stp"), 0, uses);

    EXPECT_EQ(uses, (std::map<std::string, int>{{"bolt", 6},
                                                {"l-bracket", 2},
                                                {"l-bracket-assembly", 2},
                                                {"nut", 8},
                                                {"nut-bolt-assembly", 6},
                                                {"plate", 1},
                                                {"rod", 1},
                                                {"rod-assembly", 1}}));
}

TEST_F(RealFiles, TheClassicAssemblyHasTheVolumesThatTheFileDeclares) {
    const DesignData design = import("as1-oc-214.stp");

    EXPECT_NEAR(volumeFrom(design, 0), 764.52, 0.001);
    EXPECT_NEAR(find(design, "plate").geometry->volume(), 530.574966551, 1e-5);
    EXPECT_NEAR(find(design, "l-bracket").geometry->volume(), 96.85857103522, 1e-5);
    EXPECT_NEAR(find(design, "bolt").geometry->volume(), 3.200717242138, 1e-5);
    EXPECT_NEAR(find(design, "nut").geometry->volume(), 0.66437421974184, 1e-5);
    EXPECT_NEAR(find(design, "rod").geometry->volume(), 15.70837382832, 1e-4);
}

TEST_F(RealFiles, APlacementOfTheClassicAssembly) {
    const DesignData design = import("as1-oc-214.stp");

    // The file puts the rod's assembly at (-10, 75, 60) mm, its z along x and its x against z.
    EXPECT_EQ(design.components[0].children[0].transform.cells,
              (std::array<double, 16>{0, 0, 1, -1, 0, 1, 0, 7.5, -1, 0, 0, 6, 0, 0, 0, 1}));
}

TEST_F(RealFiles, PartsWithConstructionGeometryAreParts) {
    const DesignData design = import("as1_pe_203.stp");

    EXPECT_EQ(count(design), (Counted{28, 18, 4}));
    EXPECT_EQ(design.unit, "in");
    // The file declares 5.305752176936E5 cubic inches for the plate.
    EXPECT_NEAR(find(design, "PLATE").geometry->volume(), 530575.2176936 * 16.387064, 0.1);
}

TEST_F(RealFiles, InventedDensitiesAreReportedAndTheNamesKept) {
    const DesignData design = import("as1-oc-214-mat.stp");

    const auto dense = [](const std::string& name) {
        return host::MaterialData{name, 0.00785, /*nameAssumed=*/false, /*densityAssumed=*/true};
    };
    EXPECT_EQ(find(design, "plate").material, dense("BRONZE"));
    EXPECT_EQ(find(design, "l-bracket").material, dense("ALUMINIUM"));
    EXPECT_EQ(find(design, "bolt").material, dense("STEEL"));
    EXPECT_EQ(find(design, "nut").material, host::defaultMaterial());
    ASSERT_EQ(warnings.size(), 3U);
    EXPECT_EQ(
        warnings[1].line(),
        path("as1-oc-214-mat.stp") +
            ": states 860 g^3 cm^2 as the density of \"plate\", which is no mass by volume; a "
            "default density is assumed");
}

TEST_F(RealFiles, ADocumentOfAPartIsNotMissed) {
    import("as1/trj2_as1-id-203.stp");

    EXPECT_EQ(drafts::lines(warnings), std::vector<std::string>());
}

TEST_F(RealFiles, FaultsOfAnnotationsAreNotReported) {
    import("nist_ctc_02_asme1_ap242-1.stp");

    EXPECT_EQ(drafts::lines(warnings), std::vector<std::string>());
}

TEST_F(RealFiles, PartsInOtherFilesAreFound) {
    const DesignData design = import("s1-c5-214/s1-c5-214.stp");

    EXPECT_EQ(tree(design), R"(*MASTER
  TAIL:1
    TAIL_TURBINE:1
    TAIL_MIDDLE_PART:1
    TAIL_TURBINE:2
  HEAD:1
    HEAD_FRONT:1
    HEAD_BACK:1
  MAINBODY:1
    MAINBODY_FRONT:1
    MAINBODY_BACK:1
  FOOT:1
    FOOT_FRONT_000:1
    FOOT_BACK_000:1
  FOOT:2
    FOOT_FRONT_000:1
    FOOT_BACK_000:1
)");
    EXPECT_EQ(countIf(design, isShapeless), 0);
    EXPECT_EQ(drafts::lines(warnings), std::vector<std::string>());
}

TEST_F(RealFiles, PartsInOtherFilesAreFoundFromARelativePath) {
    const std::string relative = std::filesystem::relative(path("s1-c5-214/s1-c5-214.stp"));

    EXPECT_EQ(count(host::importStep(relative, {}, {}, warnings)), (Counted{17, 11, 3}));
}

TEST_F(RealFiles, AMissingFileOfAPartIsNamed) {
    const test_support::TemporaryFolder folder;
    const std::string copy = (folder.path() / "s1.stp").string();
    std::filesystem::copy_file(path("s1-c5-214/s1-c5-214.stp"), copy);

    const DesignData design = host::importStep(copy, {}, {}, warnings);

    EXPECT_EQ(count(design), (Counted{6, 5, 2}));
    ASSERT_EQ(warnings.size(), 4U);
    EXPECT_EQ(warnings[0].line(),
              copy +
                  ": refers to the file \"TAIL.stp\", which is missing; \"TAIL\" "
                  "stays empty");
}

TEST_F(RealFiles, ASinglePartOfManySolidsIsOnePart) {
    const DesignData design = import("nist_ctc_02_asme1_ap242-1.stp");

    EXPECT_EQ(count(design), (Counted{1, 1, 1}));
    EXPECT_GT(design.components[0].geometry->volume(), 0);
}

TEST_F(RealFiles, APartOfSeveralBodiesIsOnePartAndItsMaterialNoProduct) {
    const DesignData design = import("malformed/bug33569.stp");

    EXPECT_EQ(tree(design), "MULTI\n");
    EXPECT_EQ(design.components[0].material->name, "STAHL_ALLGEMEIN");
    EXPECT_NEAR(design.components[0].material->density, 0.00785, 1e-9);
    EXPECT_GT(design.components[0].geometry->volume(), 0);
}

TEST_F(RealFiles, TheToolHeadHasPartsWithoutGeometry) {
    const DesignData design = import("MadMax_Core_MGN12H_DB_AH_v11.step");

    EXPECT_EQ(count(design), (Counted{88, 66, 6}));
    EXPECT_EQ(countIf(design, isShapeless), 3U);
    EXPECT_EQ(design.components[0].name, "MadMax_Core v11");
    EXPECT_EQ(design.components[0].partNumber, "MGN12H-DB");
}

TEST_F(RealFiles, TheToolHeadsMaterialsHaveTheirDensities) {
    const DesignData design = import("MadMax_Core_MGN12H_DB_AH_v11.step");
    std::set<std::pair<std::string, double>> materials;
    for (const host::ComponentData& component : design.components) {
        materials.emplace(component.material->name, component.material->density);
    }

    EXPECT_EQ(materials, (std::set<std::pair<std::string, double>>{{"ABS Plastic", 0.00106},
                                                                   {"Steel", 0.00785}}));
}

TEST_F(RealFiles, AJapaneseMaterialIsRead) {
    const DesignData design = import("ProMicro.step");

    EXPECT_EQ(count(design), (Counted{29, 27, 3}));
    EXPECT_EQ(countIf(design, [](const auto& one) { return one.material->name == "鋼"; }), 11U);
}

TEST_F(RealFiles, ABoardOfManyPartsIsShared) {
    const DesignData design = import("PCB_v3.5.step");

    EXPECT_EQ(count(design), (Counted{1414, 625, 6}));
    EXPECT_EQ(design.components.size(), 254U);
    // 20 products are called "Extruded" and have that as their number.
    EXPECT_EQ(find(design, "Extruded (19)").partNumber, "Extruded (19)");
    EXPECT_THROW(find(design, "Extruded (20)"), std::out_of_range);
}

TEST_F(RealFiles, ChineseNamesThatWereEscapedByteByByteAreRead) {
    const DesignData design = import("G2A EBB36 v2.step");

    EXPECT_EQ(count(design), (Counted{643, 374, 7}));
    EXPECT_EQ(find(design, "SOP8_塑体").partNumber, "SOP8_塑体");
    EXPECT_EQ(countIf(design, isShapeless), 73U);
}

TEST_F(RealFiles, SixtyFourDocumentsAreDifferentParts) {
    const DesignData design = import("PushDevice-Assembly.step");

    EXPECT_EQ(count(design), (Counted{68, 67, 2}));
    EXPECT_EQ(design.unit, "m");
    EXPECT_EQ(find(design, "Document").partNumber, "Document");
    EXPECT_EQ(find(design, "Document (63)").partNumber, "Document (63)");
    EXPECT_EQ(find(design, "probe").partNumber, "probe");
    EXPECT_EQ(countIf(design, isShapeless), 0U);
}

TEST_F(RealFiles, EightRussianPartsKeepTheirNames) {
    const DesignData design = import("bug31670_russian.stp");
    std::set<std::string> names;
    for (const host::ComponentData& component : design.components) {
        names.insert(component.partNumber);
    }

    EXPECT_EQ(names, (std::set<std::string>{"Дет1", "Дет2", "Дет3", "Дет4", "Дет5", "Дет6", "Дет7",
                                            "Дет8", "Сборка1"}));
    EXPECT_EQ(count(design), (Counted{18, 17, 2}));
}

TEST_F(RealFiles, ACorruptFileIsRefused) {
    EXPECT_EQ(reason("malformed/bug32314_corrupted.stp"),
              ": is cut off or damaged (5 syntax errors, line 12: unexpected "
              "TYPE, expecting '('); export it again");
}

TEST_F(RealFiles, ProductsThatContainEachOtherAreRefused) {
    EXPECT_EQ(reason("malformed/Ad054.stp"),
              ": holds an assembly that contains itself (P1 > P2 > P1); such a tree has no end");
}

TEST_F(RealFiles, AShellWithoutAProductIsRefused) {
    EXPECT_EQ(reason("malformed/M018.stp"),
              ": holds no product; export it as an assembly or a part (AP203, AP214 or AP242)");
}

TEST_F(RealFiles, AFileThatCrashesTheReaderIsRefused) {
    EXPECT_EQ(reason("malformed/U008.stp"),
              ": the reader crashed (Segmentation fault) at the stage \"Building\"; the file has 2 "
              "faulty entities, first Count of Parameters is not 0 for length_unit (#33); export "
              "it again, or open a part of it");
}

}  // namespace
