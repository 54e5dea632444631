#include "samples/samples.h"
#include "tests/host/import/drawn_parts.h"
#include "tests/support/text.h"
#include "tests/workbench/reader_fixture.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <utility>

/// Parts that are recognised by their shapes.
namespace {

using drafts::part;
using drafts::plate;
using test_support::ProgramResult;
using test_support::text;

/// A part whose shape cannot be compared, which a.step is the last to say.
constexpr const char* kNoSurface = R"sh(
case "$1" in */a.step) sleep 0.5 ;; esac
echo '{"design": {"unit": "mm", "files": [], "roots": [0], "components": [' \
    '{"id": "", "name": "Vase", "description": "", "shape": 0, "bodies": 1,' \
    '"material": "Steel", "density": 0.00785, "uses": []}]}}'
while read -r verb rest; do
    case "$verb" in
        measure) echo '{"area": 6, "volume": 1}' ;;
        *) echo '{"error": "no surface"}' ;;
    esac
done
)sh";

class PartShapesOfSeveralFiles : public test_support::WorkbenchWithReader {
protected:
    void SetUp() override {
        WorkbenchWithReader::SetUp();
        readerIs(kNoSurface);
        std::filesystem::create_directory(folder.path() / "in");
        folder.write("in/a.step", "ISO-10303-21;");
        folder.write("in/b.step", "ISO-10303-21; ");
    }

    [[nodiscard]] std::string warning(const std::string& name) const {
        return "warning: " + path("in/" + name) + ": \"Vase\": cannot be compared: no surface\n";
    }
};

TEST_F(PartShapesOfSeveralFiles, AreWarnedOfInTheOrderOfTheFiles) {
    const ProgramResult result = run({"parts", path("in"), "--shapes", "--jobs", "2", "--columns",
                                      "Part Number", "--format", "jsonl"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, warning("a.step") + warning("b.step") + "2 files listed\n");
}

TEST_F(PartShapesOfSeveralFiles, AreWarnedOfWhereTwoAreCompared) {
    const ProgramResult result = run({"compare", path("in/a.step"), path("in/b.step")});

    EXPECT_EQ(result.output, "No differences, 1 line\n");
    EXPECT_EQ(result.errors, warning("a.step") + warning("b.step"));
}

class PartShapes : public test_support::Workbench {
protected:
    /// Three plates of one shape, one of them on its edge, and another.
    std::string plates() {
        return folder.write(
            "Plates.step",
            samples::stepFile("x",
                              {part("Plate", plate(10, 20, 5)), part("Plate (1)", plate(20, 5, 10)),
                               part("Panel", plate(20, 10, 5)), part("Other", plate(20, 10, 6))}));
    }
};

TEST_F(PartShapes, AreOneItem) {
    const ProgramResult result =
        run({"parts", plates(), "--merge-by", "shape", "--columns", "Part Number,Quantity",
             "--sort", "Quantity:desc", "--format", "csv"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Part Number,Quantity\r\nPanel,3\r\nOther,1\r\n");
}

TEST_F(PartShapes, UnderDifferentNumbersArePossibleDuplicates) {
    const ProgramResult result = run({"parts", plates(), "--shapes", "--format", "json"});

    ASSERT_EQ(result.status, 0) << result.errors;
    const nlohmann::json list = nlohmann::json::parse(result.output);
    ASSERT_EQ(list.at("possibleDuplicates").size(), 1U);
    EXPECT_EQ(list["possibleDuplicates"][0].at("items"),
              (nlohmann::json{"Panel", "Plate", "Plate (1)"}));
}

TEST_F(PartShapes, AreNotComparedUnlessThatIsAskedFor) {
    const ProgramResult result = run({"parts", plates(), "--format", "json"});

    ASSERT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(nlohmann::json::parse(result.output).at("possibleDuplicates").empty());
}

TEST_F(PartShapes, OfADesignFileCannotBeCompared) {
    expectFailure(run({"parts", design("Bolt"), "--merge-by", "shape"}), 2,
                  "tarnix-workbench: \"shape\": the shapes of this design cannot be compared\n");
}

TEST_F(PartShapes, HaveAPictureForEachClass) {
    const ProgramResult result = run({"parts", plates(), "--columns", "Part Number,Thumbnail",
                                      "--merge-by", "shape", "--format", "json"});

    ASSERT_EQ(result.status, 0) << result.errors;
    const nlohmann::json pictures = nlohmann::json::parse(result.output).at("pictures");
    ASSERT_EQ(pictures.size(), 2U);
    // The base64 of the first bytes of every PNG file.
    EXPECT_EQ(pictures.dump().find("iVBORw0KGgo"), pictures.dump().find("iVBOR"));
    EXPECT_NE(pictures.dump().find("iVBORw0KGgo"), std::string::npos);
}

TEST_F(PartShapes, MakeAModel) {
    const std::string file = path("plates.glb");

    const ProgramResult result = run({"parts", plates(), "--output", file});

    EXPECT_EQ(result.status, 0) << result.errors;
    const std::string model = test_support::readFile(file);
    EXPECT_EQ(model.substr(0, 4), "glTF");
    EXPECT_NE(model.find(R"("path":"Plate (1):1")"), std::string::npos);
}

TEST_F(PartShapes, MakeAModelWhoseSizeIsReported) {
    const ProgramResult result = run({"parts", plates(), "--output", path("plates.glb")});

    // Four plates of six sides.
    EXPECT_NE(result.errors.find("model: 4 meshes, 48 triangles, "), std::string::npos)
        << result.errors;
    EXPECT_EQ(run({"parts", plates(), "--quiet", "--output", path("plates.glb")}).errors, "");
}

TEST_F(PartShapes, MakeAModelWithExtensionsUnlessAPlainOneIsAskedFor) {
    const std::string compression = "EXT_meshopt_compression";
    run({"parts", plates(), "--output", path("small.glb")});
    run({"parts", plates(), "--plain", "--output", path("plain.glb")});

    EXPECT_NE(test_support::readFile(path("small.glb")).find(compression), std::string::npos);
    EXPECT_EQ(test_support::readFile(path("plain.glb")).find("extensions"), std::string::npos);
}

TEST_F(PartShapes, AreDrawnInOneOfThreeDetails) {
    const ProgramResult result =
        run({"parts", plates(), "--detail", "rough", "--output", path("plates.glb")});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("--detail"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("coarse"), std::string::npos) << result.errors;
}

TEST_F(PartShapes, OfADesignFileMakeNoModel) {
    const std::string file = design("Bolt");

    expectFailure(run({"parts", file, "--format", "glb"}), 1,
                  "tarnix-workbench: " + file +
                      ": has no shapes to make a model of; open a STEP or IGES file\n");
}

}  // namespace
