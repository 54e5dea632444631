#include "host/import/read_tree.h"

#include "host/import/read_design.h"
#include "samples/product.h"
#include "samples/samples.h"
#include "tests/host/import/drafts.h"
#include "tests/support/real_files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using host::DesignData;

/// A component without what only its shape tells.
struct Known {
    std::string name;
    std::string partNumber;
    std::optional<host::MaterialData> material;
    std::size_t bodies = 0;

    bool operator==(const Known&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Known& known) {
    return out << known.name << " (" << known.bodies << " bodies)";
}

std::vector<Known> knownOf(const DesignData& design) {
    std::vector<Known> all;
    for (const host::ComponentData& each : design.components) {
        all.push_back({each.name, each.partNumber, each.material,
                       each.geometry == nullptr ? 0 : each.geometry->bodies()});
    }
    return all;
}

class ReadTree : public testing::Test {
protected:
    void expectLikeWhole(const std::string& path) {
        const DesignData tree = host::readTree(path, {}, {}, warnings);
        const DesignData whole = host::readDesign(path, {}, {}, warnings);
        EXPECT_EQ(drafts::tree(tree), drafts::tree(whole)) << path;
        EXPECT_EQ(knownOf(tree), knownOf(whole)) << path;
        EXPECT_EQ(tree.source->fingerprint, whole.source->fingerprint) << path;
        EXPECT_EQ(tree.unit, whole.unit) << path;
    }

    test_support::TemporaryFolder folder;
    std::vector<host::ReadingWarning> warnings;
};

TEST_F(ReadTree, HasWhatTheWholeDesignHas) {
    expectLikeWhole(folder.write("gearbox.step", samples::planetaryGearbox()));
    expectLikeWhole(folder.write("slider.step", samples::cameraSlider()));
}

TEST_F(ReadTree, BodiesOfAnAssemblyAreNotBuilt) {
    const DesignData slider =
        host::readTree(folder.write("slider.step", samples::cameraSlider()), {}, {}, warnings);

    EXPECT_THROW(slider.components[1].geometry->volume(), std::runtime_error);
}

TEST_F(ReadTree, ALonePartIsReadWhole) {
    const DesignData part = host::readTree(
        folder.write(
            "plate.step",
            samples::stepFile("x", {{.key = "plate",
                                     .id = "P",
                                     .name = "Plate",
                                     .description = "",
                                     .material = {},
                                     .solid = samples::Solid{{{samples::rectangle(10, 20), 5}}, {}},
                                     .uses = {}}})),
        {}, {}, warnings);

    EXPECT_NEAR(part.components[0].geometry->volume(), 1, 1e-9);
}

class ReadTreeOfRealFiles : public ReadTree {
protected:
    void SetUp() override { test_support::needRealFiles(); }
};

TEST_F(ReadTreeOfRealFiles, IsThatOfTheWholeDesign) {
    for (const char* name : {"as1-oc-214.stp", "as1/trj2_as1-ug-214.stp", "s1-c5-214/s1-c5-214.stp",
                             "MadMax_Core_MGN12H_DB_AH_v11.step", "PCB_v3.5.step",
                             "PushDevice-Assembly.step", "bug31670_russian.stp"}) {
        expectLikeWhole((test_support::realFiles() / name).string());
    }
}

}  // namespace
