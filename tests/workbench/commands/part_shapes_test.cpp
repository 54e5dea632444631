#include "samples/product.h"
#include "samples/samples.h"
#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <utility>

/// Parts that are recognised by their shapes.
namespace {

using samples::Product;
using samples::rectangle;
using samples::Solid;
using test_support::ProgramResult;
using test_support::text;

Product plate(const std::string& name, double width, double depth, double height) {
    return {.key = name,
            .id = name,
            .name = name,
            .description = "",
            .material = {},
            .solid = Solid{{{rectangle(width, depth), height}}, {}},
            .uses = {}};
}

class PartShapes : public test_support::Workbench {
protected:
    /// Three plates of one shape, one of them on its edge, and another.
    std::string plates() {
        return folder.write(
            "Plates.step",
            samples::stepFile("x", {plate("Plate", 10, 20, 5), plate("Plate (1)", 20, 5, 10),
                                    plate("Panel", 20, 10, 5), plate("Other", 20, 10, 6)}));
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

TEST_F(PartShapes, OfADesignFileMakeNoModel) {
    const std::string file = design("Bolt");

    expectFailure(run({"parts", file, "--format", "glb"}), 1,
                  "tarnix-workbench: " + file +
                      ": has no shapes to make a model of; open a STEP or IGES file\n");
}

}  // namespace
