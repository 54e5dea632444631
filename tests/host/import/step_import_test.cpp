#include "host/import/step_import.h"

#include "host/import/reader_program.h"
#include "samples/product.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/step_text_edits.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <iterator>
#include <utility>

namespace {

using drafts::damage;
using drafts::labelOf;
using drafts::product;
using drafts::step;
using drafts::tree;
using drafts::usage;
using host::DesignData;
using samples::rectangle;
using samples::Solid;

/// A plate of 10 x 20 x 5 mm on the plane z = 0, its middle above the origin.
const Solid kPlate = {{{rectangle(10, 20), 5}}, {}};

/// A part that is the plate.
samples::Product part(const std::string& key, const std::string& id, const std::string& name) {
    return {.key = key,
            .id = id,
            .name = name,
            .description = "",
            .material = {},
            .solid = kPlate,
            .uses = {}};
}

samples::Product assembly(const std::string& key, const std::string& id, const std::string& name,
                          const std::vector<samples::Use>& uses) {
    samples::Product product = part(key, id, name);
    product.solid.reset();
    product.uses = uses;
    return product;
}

/// A file of the plate alone.
std::string plateFile() { return samples::stepFile("x", {part("plate", "P", "Plate")}); }

/// The same, damaged in one place; see `damage`.
std::string damagedPlate(const std::string& begin, const std::string& end,
                         const std::string& other) {
    std::string text = plateFile();
    damage(text, begin, end, other);
    return text;
}

class StepImport : public testing::Test {
protected:
    DesignData importText(const std::string& text) {
        return host::importStep(folder.write("Design.step", text), {}, {}, warnings);
    }

    /// What was warned of, without the path of the file, with which each line has to begin.
    [[nodiscard]] std::vector<std::string> reported() const {
        const std::string path = folder.path().string() + "/Design.step: ";
        std::vector<std::string> all = drafts::lines(warnings);
        for (std::string& line : all) {
            EXPECT_EQ(line.rfind(path, 0), 0U) << line;
            line.erase(0, path.size());
        }
        return all;
    }

    test_support::TemporaryFolder folder;
    std::vector<host::ReadingWarning> warnings;
};

TEST_F(StepImport, ASingleRootProductIsTheRootComponent) {
    const DesignData design =
        importText(step(product(10, "A-1", "Frame") + product(20, "P", "Bar") + usage(30, 10, 20) +
                        usage(31, 10, 20)));

    EXPECT_EQ(tree(design),
              "Frame\n"
              "  Bar:1\n"
              "  Bar:2\n");
    EXPECT_EQ(design.components[0].partNumber, "A-1");
    EXPECT_EQ(design.name, "Design");
}

TEST_F(StepImport, SeveralRootsArePutBelowARootNamedAfterTheFile) {
    EXPECT_EQ(
        tree(importText(samples::stepFile("x", {part("left", "A", "Left"), part("pin", "C", "Pin"),
                                                assembly("right", "B", "Right", {{"pin", {}}})}))),
        "Design\n"
        "  Left:1\n"
        "  Right:1\n"
        "    Pin:1\n");
}

TEST_F(StepImport, AnUnusedEmptyProductIsNotARootBesideOthers) {
    // As AP242 files hold their materials.
    EXPECT_EQ(tree(importText(step(product(10, "A", "Frame") + product(20, "P", "Bar") +
                                   product(30, "M", "Steel") + usage(40, 10, 20)))),
              "Frame\n"
              "  Bar:1\n");
}

TEST_F(StepImport, PartsOfTheSameNameAreDistinct) {
    const DesignData design =
        importText(step(product(10, "A", "Top") + product(20, "Document", "Document") +
                        product(30, "Document", "Document") + usage(40, 10, 20) +
                        usage(41, 10, 30) + usage(42, 10, 20)));

    EXPECT_EQ(tree(design),
              "Top\n"
              "  Document:1\n"
              "  Document (1):1\n"
              "  Document:2\n");
    EXPECT_EQ(design.components[1].partNumber, "Document");
    EXPECT_EQ(design.components[2].partNumber, "Document (1)");
}

TEST_F(StepImport, AProductWithoutANameIsCalledByItsId) {
    EXPECT_EQ(tree(importText(step(product(10, "P-7", "")))), "P-7\n");
    EXPECT_EQ(tree(importText(step(product(10, "", "")))), "Component\n");
}

TEST_F(StepImport, PartsWithoutGeometryHaveNone) {
    EXPECT_EQ(importText(step(product(10, "P", "Bar"))).components[0].geometry, nullptr);
}

TEST_F(StepImport, UsesWithoutAPlacementAreAtTheOrigin) {
    const DesignData design =
        importText(step(product(10, "A", "Top") + product(20, "P", "Bar") + usage(30, 10, 20)));

    EXPECT_EQ(design.components[0].children[0].transform, host::Transform());
}

TEST_F(StepImport, AUseOfAMissingProductIsSkippedWithAWarning) {
    const DesignData design = importText(step(product(10, "A", "Top") + product(20, "P", "Bar") +
                                              usage(30, 10, 20) + usage(31, 10, 99)));

    EXPECT_EQ(tree(design), "Top\n  Bar:1\n");
    EXPECT_EQ(reported(),
              (std::vector<std::string>{
                  "1 reference leads to an entity that is missing; what needs it is left out",
                  "has 1 faulty entity, first Parameter n0.5 (product_definition_relationship."
                  "related_product_definition) : Entity has illegal type (#31); what needs them "
                  "may be missing or wrong",
                  "places a product that is missing (#31); it is left out",
                  "has no placement for 1 usage; it is at the origin"}));
}

TEST_F(StepImport, ABodyThatCannotBeBuiltIsReported) {
    const std::string text =
        damagedPlate("MANIFOLD_SOLID_BREP('',#", ")", "MANIFOLD_SOLID_BREP('',$)");
    const std::string body = labelOf(text, "MANIFOLD_SOLID_BREP");

    EXPECT_EQ(importText(text).components[0].geometry, nullptr);
    EXPECT_EQ(reported(), (std::vector<std::string>{
                              "has 1 faulty entity, first Parameter n0.2 (outer) not an Entity (" +
                                  body + "); what needs them may be missing or wrong",
                              "has 1 body that cannot be built whole, first " + body +
                                  " of \"Plate\"; areas and masses are without them"}));
}

TEST_F(StepImport, ABodyThatLacksAFaceIsReported) {
    const std::string text =
        damagedPlate("ADVANCED_FACE('',(#", ");", "ADVANCED_FACE('',(),$,.T.);");

    EXPECT_NE(importText(text).components[0].geometry, nullptr);
    const std::vector<std::string> lines = reported();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].rfind("has 1 faulty entity, first Parameter n0.3 (face_geometry)", 0), 0U)
        << lines[0];
    EXPECT_NE(lines[0].find("(" + labelOf(text, "ADVANCED_FACE") + ")"), std::string::npos)
        << lines[0];
    EXPECT_EQ(lines[1], "has 1 body that cannot be built whole, first " +
                            labelOf(text, "MANIFOLD_SOLID_BREP") +
                            " of \"Plate\"; areas and masses are without them");
}

TEST_F(StepImport, ABodyWithoutAnyFaceIsReported) {
    const std::string text = damagedPlate("CLOSED_SHELL('',(", ");", "CLOSED_SHELL('',());");

    importText(text);

    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_NE(warnings[0].line().find("has 1 body that cannot be built whole"), std::string::npos)
        << warnings[0].line();
}

TEST_F(StepImport, ABodyThatCannotBeBuiltDoesNotAffectOtherParts) {
    std::string text =
        samples::stepFile("x", {part("plate", "P", "Plate"), part("bar", "B", "Bar"),
                                assembly("top", "A", "Top", {{"plate", {}}, {"bar", {}}})});
    damage(text, "MANIFOLD_SOLID_BREP('',#", ")", "MANIFOLD_SOLID_BREP('',$)");

    const DesignData design = importText(text);

    EXPECT_EQ(design.components[1].geometry, nullptr);
    EXPECT_NEAR(design.components[2].geometry->volume(), 1, 1e-9);
}

TEST_F(StepImport, AnEntityWithoutANameIsValid) {
    const std::string text = damagedPlate("MANIFOLD_SOLID_BREP(''", ",", "MANIFOLD_SOLID_BREP($,");

    EXPECT_NE(importText(text).components[0].geometry, nullptr);
    EXPECT_EQ(drafts::lines(warnings), std::vector<std::string>());
}

TEST_F(StepImport, PlacementsAreInCentimetresAndRotated) {
    const DesignData design = importText(samples::stepFile(
        "x", {part("plate", "P", "Plate"),
              assembly("top", "A", "Top", {{"plate", {{10, 20, 30}, {0, 0, 1}, {0, 1, 0}}}})}));

    // A quarter turn around z: x points whereto y pointed.
    EXPECT_EQ(design.components[0].children[0].transform.cells,
              (std::array<double, 16>{0, -1, 0, 1, 1, 0, 0, 2, 0, 0, 1, 3, 0, 0, 0, 1}));
}

TEST_F(StepImport, SizesAreInCentimetres) {
    const DesignData design = importText(plateFile());
    host::Geometry& plate = *design.components[0].geometry;

    EXPECT_NEAR(plate.area(), 7, 1e-9);  // 2 x (1x2 + 1x0.5 + 2x0.5)
    EXPECT_NEAR(plate.volume(), 1, 1e-9);
    EXPECT_EQ(plate.box({}), (host::Box{{-0.5, -1, 0}, {0.5, 1, 0.5}}));
}

TEST_F(StepImport, TheBoxOfARotatedShapeIsExact) {
    const DesignData design =
        importText(samples::stepFile("x", {{.key = "disc",
                                            .id = "P",
                                            .name = "Disc",
                                            .description = "",
                                            .material = {},
                                            .solid = Solid{{{samples::circle(10), 4}}, {}},
                                            .uses = {}}}));
    // A quarter turn around x and 5 cm along x: the disc is upright.
    const host::Transform upright = {{1, 0, 0, 5, 0, 0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1}};

    const host::Box box = design.components[0].geometry->box(upright).value();

    EXPECT_NEAR(box.min[0], 4, 1e-7);
    EXPECT_NEAR(box.max[0], 6, 1e-7);
    EXPECT_NEAR(box.min[1], -0.4, 1e-7);
    EXPECT_NEAR(box.max[1], 0, 1e-7);
    EXPECT_NEAR(box.min[2], -1, 1e-7);
    EXPECT_NEAR(box.max[2], 1, 1e-7);
}

TEST_F(StepImport, AnAssemblyWithABodyOfItsOwnKeepsBoth) {
    const DesignData design =
        importText(samples::stepFile("x", {part("plate", "P", "Plate"),
                                           {.key = "top",
                                            .id = "A",
                                            .name = "Top",
                                            .description = "",
                                            .material = {},
                                            .solid = Solid{{{rectangle(10, 10), 10}}, {}},
                                            .uses = {{"plate", {}}}}}));

    EXPECT_EQ(tree(design), "Top\n  Plate:1\n");
    EXPECT_NEAR(design.components[0].geometry->volume(), 1, 1e-9);
    EXPECT_NEAR(design.components[1].geometry->volume(), 1, 1e-9);
}

TEST_F(StepImport, AnAssemblyOfASinglePartHasNoBodyOfItsOwn) {
    const DesignData design = importText(samples::stepFile(
        "x", {part("plate", "P", "Plate"), assembly("top", "A", "Top", {{"plate", {{1, 2, 3}}}})}));

    EXPECT_EQ(design.components[0].geometry, nullptr);
    EXPECT_NE(design.components[1].geometry, nullptr);
}

TEST_F(StepImport, MaterialsComeWithTheirDensity) {
    const DesignData design = importText(
        samples::stepFile("x", {{.key = "plate",
                                 .id = "P",
                                 .name = "Plate",
                                 .description = "",
                                 .material = samples::Material{.name = "Litina", .density = 7200},
                                 .solid = kPlate,
                                 .uses = {}}}));

    EXPECT_EQ(design.components[0].material,
              (host::MaterialData{.name = "Litina", .density = 0.0072}));
}

TEST_F(StepImport, AMissingMaterialIsSteel) {
    EXPECT_EQ(
        importText(step(product(10, "P", "Bar"))).components[0].material,
        (host::MaterialData{
            .name = "Steel", .density = 0.00785, .nameAssumed = true, .densityAssumed = true}));
}

TEST_F(StepImport, WhatTheFileSaysOfAMaterialIsNotAssumed) {
    const DesignData design =
        importText(samples::stepFile("x", {{.key = "x",
                                            .id = "P",
                                            .name = "Plate",
                                            .description = "",
                                            .material = samples::Material{"Steel", 7850},
                                            .solid = kPlate,
                                            .uses = {}}}));

    EXPECT_EQ(
        design.components[0].material,
        (host::MaterialData{
            .name = "Steel", .density = 0.00785, .nameAssumed = false, .densityAssumed = false}));
}

TEST_F(StepImport, AWarningNamesItsKindItsFileAndItsComponent) {
    importText(step(product(10, "A", "Top") + drafts::reference(20, 10, "gone.stp")));

    const std::string path = folder.path().string() + "/Design.step";
    EXPECT_EQ(warnings, (std::vector<host::ReadingWarning>{
                            {.code = "missing-file",
                             .file = path,
                             .text = "refers to the file \"gone.stp\", which is missing; \"Top\" "
                                     "stays empty",
                             .component = "Top",
                             .value = {},
                             .unit = ""}}));
}

TEST_F(StepImport, ADensityInGramPerCubicCentimetreIsConverted) {
    const DesignData design = importText(
        step(product(10, "P", "Bar") +
             "#20=(MASS_UNIT()NAMED_UNIT(*)SI_UNIT($,.GRAM.));\n"
             "#21=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.CENTI.,.METRE.));\n"
             "#22=DERIVED_UNIT_ELEMENT(#20,1.);\n#23=DERIVED_UNIT_ELEMENT(#21,-3.);\n"
             "#24=DERIVED_UNIT((#22,#23));\n"
             "#25=MEASURE_REPRESENTATION_ITEM('density measure',POSITIVE_RATIO_MEASURE(2.7),#24);\n"
             "#26=REPRESENTATION('density',(#25),#27);\n#27=REPRESENTATION_CONTEXT('','');\n"
             "#28=PROPERTY_DEFINITION('material property','density',#10);\n"
             "#29=PROPERTY_DEFINITION_REPRESENTATION(#28,#26);\n"));

    EXPECT_DOUBLE_EQ(design.components[0].material->density, 0.0027);
}

TEST_F(StepImport, AProductTakesItsContentFromAnotherFile) {
    folder.write("sub/WHEEL.STEP", step(product(10, "W-1", "wheel file") +
                                        product(20, "S", "Spoke") + usage(30, 10, 20)));
    const DesignData design =
        importText(step(product(10, "A", "Cart") + product(20, "W", "Wheel") + usage(30, 10, 20) +
                        drafts::reference(40, 20, "sub\\\\wheel.step")));

    EXPECT_EQ(tree(design), "Cart\n  Wheel:1\n    Spoke:1\n");
}

TEST_F(StepImport, TheUnitOfTheFileIsReported) { EXPECT_EQ(importText(plateFile()).unit, "mm"); }

TEST_F(StepImport, TheFingerprintDetectsAChangedFile) {
    const DesignData first = importText(step(product(10, "P", "Bar")));
    const DesignData again = importText(step(product(10, "P", "Bar")));
    const DesignData changed = importText(step(product(10, "P", "Rod")));

    EXPECT_EQ(first.source->path, std::filesystem::canonical(folder.path() / "Design.step"));
    EXPECT_EQ(first.source->fingerprint, again.source->fingerprint);
    EXPECT_NE(first.source->fingerprint, changed.source->fingerprint);
}

TEST_F(StepImport, ProgressRunsFromReadingToBuilding) {
    std::vector<std::pair<std::string, double>> heard;
    host::importStep(
        folder.write("a.step", plateFile()), {},
        [&heard](const std::string& stage, double done) { heard.emplace_back(stage, done); },
        warnings);

    EXPECT_EQ(heard.front(), (std::pair<std::string, double>("Reading", 0)));
    EXPECT_EQ(heard.back(), (std::pair<std::string, double>("Building", 1)));
}

TEST_F(StepImport, TheReaderEndsWhenItsParentIsGone) {
    const std::string file = folder.write("a.step", step(product(10, "P", "Bar")));
    const std::string reader = host::findStepReader().string();
    int ends[2] = {};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
    const pid_t process = ::fork();
    if (process == 0) {
        ::dup2(ends[1], STDIN_FILENO);
        ::dup2(ends[1], STDOUT_FILENO);
        ::execl(reader.c_str(), "step-reader", file.c_str(), folder.path().c_str(), "10", "10",
                "60", "3072", "0", nullptr);
        ::_exit(99);
    }
    ::close(ends[1]);
    char first = 0;
    ASSERT_EQ(::read(ends[0], &first, 1), 1);

    ::close(ends[0]);

    int status = 0;
    EXPECT_EQ(::waitpid(process, &status, 0), process);
    EXPECT_TRUE(WIFSIGNALED(status) ? WTERMSIG(status) == SIGPIPE : WEXITSTATUS(status) == 0);
}

TEST_F(StepImport, NoProcessOutlivesTheDesign) {
    importText(plateFile());

    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

}  // namespace
