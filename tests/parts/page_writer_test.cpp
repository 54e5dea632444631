#include "parts/page_writer.h"

#include "tests/parts/drawn_list.h"
#include "web/page_template.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <stdexcept>
#include <string>

using nlohmann::json;
using parts::View;
using test_support::drawn;
using test_support::request;

namespace {

std::string page(const std::string& outline, const std::string& pageTemplate,
                 const std::string& model = "") {
    const host::DesignData design = drawn(outline);
    std::vector<parts::PartsList> lists;
    for (const View view : {View::Parts, View::Indented}) {
        lists.push_back(parts::buildPartsList(design, request(view, "Part Number,Quantity")));
        lists.back().source = {.file = "models/drive.step", .hash = "sha256:0123abcd"};
    }
    std::ostringstream text;
    parts::writePage(pageTemplate, design, lists, model, text);
    return text.str();
}

}  // namespace

TEST(PageWriter, FillsTheTwoMarksAndNothingElse) {
    const std::string filled = page("Bolt", "a@PARTS@b@MODEL@c", "glTF");

    EXPECT_EQ(filled.substr(0, 2), "a{");
    EXPECT_EQ(filled.substr(filled.size() - 11), "}bZ2xURg==c");
}

TEST(PageWriter, HasTheListsAndThePlacesOfTheirRows) {
    const json data = json::parse(page(R"(
        Frame
          Bolt
          Bolt)",
                                       "@PARTS@@MODEL@"));

    EXPECT_EQ(data["schema"], "tarnix-page");
    EXPECT_EQ(data["version"], 1);
    EXPECT_EQ(data["file"], json({{"name", "drive.step"}, {"sha256", "0123abcd"}}));
    EXPECT_EQ(data["paths"], json({"Frame:1+Bolt:1", "Frame:1+Bolt:2", "Frame:1"}));
    EXPECT_EQ(data["views"][0]["list"]["view"], "parts");
    EXPECT_EQ(data["views"][0]["occurrences"], json::parse("[[0,1]]"));
    EXPECT_EQ(data["views"][1]["list"]["rows"][0]["cells"]["partNumber"], "Frame");
    EXPECT_EQ(data["views"][1]["occurrences"], json::parse("[[2],[0,1]]"));
}

TEST(PageWriter, LetsNoNameBeginATag) {
    const std::string filled = page(R"(
        Bolt  name="</script><!--")",
                                    "@PARTS@@MODEL@");

    EXPECT_EQ(filled.find('<'), std::string::npos);
    EXPECT_EQ(json::parse(filled)["paths"][0], "</script><!--:1");
}

TEST(PageWriter, RefusesATemplateWithoutItsMarks) {
    EXPECT_THROW(page("Bolt", "@PARTS@"), std::logic_error);
    EXPECT_THROW(page("Bolt", "@MODEL@"), std::logic_error);
}

TEST(PageTemplate, IsTheBuiltPage) {
    const std::string built = web::pageTemplate();

    EXPECT_TRUE(built.starts_with("<!DOCTYPE html>"));
    EXPECT_TRUE(built.ends_with("</html>\n"));
    EXPECT_NE(built.find(R"(<script type="application/json" id="parts">@PARTS@</script>)"),
              std::string::npos);
}
