#include "host/design/design_file.h"

#include "host/design/geometry.h"
#include "host/design/naming.h"
#include "host/design/outline.h"
#include "host/design/transform.h"
#include "tests/support/comma_locale.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

constexpr const char* kFile = "gearbox.design.json";

class DesignFile : public testing::Test {
protected:
    DesignData saveAndLoad(const DesignData& data) {
        saveDesignFile(path, data);
        return loadDesignFile(path);
    }

    /// What is wrong with a file of that content, without the file's name.
    std::string complaint(const std::string& content) {
        folder.write(kFile, content);
        return complaint();
    }

    std::string complaint(const ReadSource& readSource = {}, const ReadingLimits& limits = {}) {
        const std::u8string name = path.u8string();
        try {
            loadDesignFile(path, readSource, limits);
        } catch (const DesignError& error) {
            const std::string text = error.what();
            const std::string start = std::string(name.begin(), name.end()) + ": ";
            return text.starts_with(start) ? text.substr(start.size()) : "unnamed: " + text;
        }
        return "none";
    }

    /// A design file with one place spoiled.
    static std::string with(const std::string& components) {
        return R"({"format":"standin-host-design","version":1,"name":"D","components":)" +
               components + "}";
    }

    test_support::TemporaryFolder folder;
    const fs::path path = folder.path() / kFile;
};

void expectSame(const OccurrenceData& left, const OccurrenceData& right) {
    EXPECT_EQ(left.absent, right.absent);
    EXPECT_EQ(left.component, right.component);
    EXPECT_EQ(left.instance, right.instance);
    EXPECT_EQ(left.transform, right.transform);
    EXPECT_EQ(left.grounded, right.grounded);
}

void expectSame(const ComponentData& left, const ComponentData& right) {
    EXPECT_EQ(left.name, right.name);
    EXPECT_EQ(left.partNumber, right.partNumber);
    EXPECT_EQ(left.hasExplicitPartNumber, right.hasExplicitPartNumber);
    EXPECT_EQ(left.description, right.description);
    EXPECT_EQ(left.document, right.document);
    EXPECT_EQ(left.material, right.material);
    EXPECT_EQ(left.attributes, right.attributes);
    EXPECT_EQ(left.sketches, right.sketches);
    ASSERT_EQ(left.children.size(), right.children.size());
    for (std::size_t index = 0; index < left.children.size(); ++index) {
        expectSame(left.children[index], right.children[index]);
    }
}

TEST_F(DesignFile, HoldsEverythingOfADesign) {
    DesignData data = parseOutline(
        "Převodovka \"漢\"  number=\"\" description=\"a\\\\b\" attribute=G/a/1 attribute=G/b/\n"
        "  Bolt  at=0.1,-2.5e-7,1e20 grounded document=Other material=Zinc:0.0071\n"
        "  (absent)\n"
        "Air  material=none");
    data.name = "Gearbox";
    data.unit = "mm";
    data.attributes = {{.group = "G", .name = "whole", .value = "line\nbreak"}};
    data.components[1].hasExplicitPartNumber = true;
    data.components[2].sketches = {
        {"Profile",
         {{true, false}, {false, true, SketchCurveKind::Line}, {.kind = SketchCurveKind::Arc}}},
        {"Empty", {}}};

    const DesignData loaded = saveAndLoad(data);

    EXPECT_EQ(loaded.name, "Gearbox");
    EXPECT_EQ(loaded.unit, "mm");
    EXPECT_EQ(loaded.attributes, data.attributes);
    EXPECT_FALSE(loaded.source.has_value());
    ASSERT_EQ(loaded.components.size(), 4u);
    expectSame(loaded.components[0], data.components[0]);
    expectSame(loaded.components[1], data.components[1]);
    expectSame(loaded.components[2], data.components[2]);
    expectSame(loaded.components[3], data.components[3]);
}

TEST_F(DesignFile, KeepsMeasuresAndBoxesOfADesignWithoutSource) {
    const DesignData loaded = saveAndLoad(parseOutline(R"(
        Box    box=1x2x3.5
        Told   measures=10.25:2.5
        Empty)"));

    EXPECT_EQ(loaded.components[1].geometry->area(), 25);
    EXPECT_EQ(loaded.components[1].geometry->volume(), 7);
    EXPECT_EQ(loaded.components[1].geometry->box({}), (Box{{0, 0, 0}, {1, 2, 3.5}}));
    EXPECT_EQ(loaded.components[2].geometry->area(), 10.25);
    EXPECT_EQ(loaded.components[2].geometry->box({}), std::nullopt);
    EXPECT_EQ(loaded.components[3].geometry, nullptr);
}

TEST_F(DesignFile, KeepsWhatIsAssumedOfAMaterialAndHowManyBodiesThereAre) {
    DesignData design = parseOutline("Pair  material=Steel:0.00785");
    design.components[1].material->nameAssumed = true;
    design.components[1].material->densityAssumed = true;
    design.components[1].geometry = fixedGeometry(2, 1, std::nullopt, /*bodies=*/2);
    const DesignData read = saveAndLoad(design);

    EXPECT_EQ(read.components[1].material, design.components[1].material);
    EXPECT_EQ(read.components[1].geometry->bodies(), 2U);
}

TEST_F(DesignFile, SavingAgainWritesTheSameBytes) {
    saveDesignFile(path, parseOutline(R"(
        Frame  at=0.1,0.2,0.3
          Bolt  box=1x2x3)"));
    const std::string first = folder.read(kFile);

    saveDesignFile(path, loadDesignFile(path));

    EXPECT_EQ(folder.read(kFile), first);
    EXPECT_EQ(folder.names(), Names{kFile});
}

TEST_F(DesignFile, EachChildAndAttributeTakesOneLine) {
    DesignData design = parseOutline("Frame\n  Leg  at=1,2,3\n  Leg");
    design.components[1].attributes = {{"Group", "Colour", "\"red\""}, {"Group", "Size", "4"}};
    saveDesignFile(path, design);

    const std::string text = folder.read(kFile);
    EXPECT_NE(text.find(R"(
   "children": [
    {"component":2,"instance":1,"transform":[1.0,0.0,0.0,1.0,0.0,1.0,0.0,2.0,0.0,0.0,1.0,3.0,0.0,0.0,0.0,1.0]},
    {"component":2,"instance":2}
   ])"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find(R"(
   "attributes": [
    {"group":"Group","name":"Colour","value":"\"red\""},
    {"group":"Group","name":"Size","value":"4"}
   ])"),
              std::string::npos)
        << text;
}

TEST_F(DesignFile, ReadsAHandWrittenFile) {
    folder.write(kFile, with(R"([
        {"name": "D", "partNumber": "D", "children": [
            {"component": 1, "instance": 1},
            {"component": 1, "instance": 2,
             "transform": [1,0,0,5, 0,1,0,0, 0,0,1,0, 0,0,0,1]}]},
        {"name": "Bolt", "partNumber": "M8", "material": null,
         "geometry": {"area": 6, "volume": 1, "min": [0,0,0], "max": [1,1,1]}}])"));

    const DesignData data = loadDesignFile(path);

    EXPECT_EQ(data.components[0].children[1].transform, translation(5, 0, 0));
    EXPECT_EQ(data.components[1].partNumber, "M8");
    EXPECT_FALSE(data.components[1].material.has_value());
    EXPECT_EQ(data.components[1].geometry->box({}), (Box{{0, 0, 0}, {1, 1, 1}}));
}

TEST_F(DesignFile, MemberNamesMatchExistingFiles) {
    const std::string text =
        with(R"([{"name":"D","partNumber":"D-1","numberIsOwn":true,"children":[]}])");
    folder.write(kFile, text);

    const DesignData data = loadDesignFile(path);
    EXPECT_TRUE(data.components.at(0).hasExplicitPartNumber);
    saveDesignFile(path, data);
    EXPECT_NE(folder.read(kFile).find("\"numberIsOwn\": true"), std::string::npos)
        << folder.read(kFile);
}

TEST_F(DesignFile, NumbersHaveAPointWhateverTheLocale) {
    const test_support::CommaLocale locale;
    ASSERT_TRUE(locale.isSystems()) << "there is no Czech locale";

    const DesignData loaded = saveAndLoad(parseOutline("Bolt  at=12345.5,0.25,0 box=1000x2.5x1"));
    const DesignData outline = parseOutline("Bolt  at=1.5,0,0");

    EXPECT_EQ(loaded.components[0].children[0].transform, translation(12345.5, 0.25, 0));
    EXPECT_EQ(loaded.components[1].geometry->volume(), 2500);
    EXPECT_EQ(outline.components[0].children[0].transform, translation(1.5, 0, 0));
    EXPECT_NE(folder.read(kFile).find("12345.5"), std::string::npos);
}

TEST_F(DesignFile, InvalidUtf8IsReplacedAndTheFileCanBeRead) {
    DesignData data = parseOutline("Bolt");
    data.components[1].description = "caf\xe9";

    EXPECT_EQ(saveAndLoad(data).components[1].description, "caf\xef\xbf\xbd");
}

TEST_F(DesignFile, InvalidDesignIsNotSavedAndTheOldFileIsKept) {
    folder.write(kFile, "old");
    DesignData data = parseOutline("Bolt");
    data.components[0].children[0].component = 7;

    EXPECT_THROW(saveDesignFile(path, data), DesignError);

    EXPECT_EQ(folder.read(kFile), "old");
    EXPECT_EQ(folder.names(), Names{kFile});
}

TEST_F(DesignFile, UnwritablePlaceIsNamed) {
    try {
        saveDesignFile(folder.path() / "none" / "x.design.json", parseOutline("Bolt"));
        FAIL();
    } catch (const DesignError& error) {
        EXPECT_NE(std::string(error.what()).find("x.design.json: cannot be created"),
                  std::string::npos);
    }
}

TEST_F(DesignFile, MissingFileFolderAndEmptyFileAreRefused) {
    EXPECT_EQ(complaint(), "is not there");
    EXPECT_EQ(complaint(""), "cannot be read, or is empty");
    fs::remove(path);
    fs::create_directory(path);
    EXPECT_EQ(complaint(), "is no file");
}

TEST_F(DesignFile, InvalidJsonIsRefused) {
    EXPECT_TRUE(complaint("ISO-10303-21;")
                    .starts_with("is no design file: parse error at line 1, column 1"));
    EXPECT_TRUE(complaint("{\"format\":").starts_with("is no design file: parse error at line 1"));
    EXPECT_TRUE(complaint("{\"a\": 1e999}").starts_with("is no design file: number overflow"));
    EXPECT_TRUE(complaint("{\"a\": \"\xff\"}").starts_with("is no design file: parse error"));
}

TEST_F(DesignFile, InvalidJsonAfterAWholeDesignIsRefused) {
    const std::string design = with(R"([{"name":"D","partNumber":""}])");

    EXPECT_EQ(complaint(design + " \n"), "none");
    EXPECT_TRUE(complaint(design + "x").starts_with("is no design file: parse error at line 1"));
    EXPECT_EQ(complaint(design + std::string(1, '\0') + "x"),
              "is no design file: parse error at byte " + std::to_string(design.size()));
}

TEST_F(DesignFile, EscapedHalfOfAPairIsRefused) {
    EXPECT_TRUE(complaint(R"({"a": "\udc00"})").starts_with("is no design file: parse error"));
    EXPECT_TRUE(complaint(R"({"a": "\ud800"})").starts_with("is no design file: parse error"));
}

TEST_F(DesignFile, TextsAreReadWithEscapesAndLettersOfSeveralBytes) {
    folder.write(kFile, "\xEF\xBB\xBF" + with(R"([{"name":"D","partNumber":"",
        "description":"\ud83d\udd29 \u00e9\n\" šroub"}])"));

    EXPECT_EQ(loadDesignFile(path).components[0].description,
              "\xF0\x9F\x94\xA9 \xC3\xA9\n\" \xC5\xA1roub");
}

TEST_F(DesignFile, OfTwoMembersOfOneNameTheLastCounts) {
    folder.write(kFile, with(R"([{"name":"D","partNumber":"first","partNumber":"last"}])"));

    EXPECT_EQ(loadDesignFile(path).components[0].partNumber, "last");
}

TEST_F(DesignFile, WholeNumbersHaveNoSignFractionOrExponent) {
    const std::string reason =
        "components[0].children[0].component: should be a whole number from 0 to 2147483647";
    const auto withComponent = [&](const std::string& number) {
        return with(R"([{"name":"D","partNumber":"D","children":[{"component":)" + number + "}]}]");
    };
    EXPECT_EQ(complaint(withComponent("-0")), reason);
    EXPECT_EQ(complaint(withComponent("1.0")), reason);
    EXPECT_EQ(complaint(withComponent("1e0")), reason);
    EXPECT_EQ(complaint(withComponent("2147483648")), reason);
    EXPECT_EQ(complaint(withComponent("18446744073709551616")), reason);
}

TEST_F(DesignFile, EndlesslyNestedBracketsAreRefused) {
    const std::string reason = "is not a design file: brackets are nested too deep";

    EXPECT_EQ(complaint(std::string(101, '[')), reason);
    EXPECT_EQ(complaint(with(std::string(200'000, '[') + std::string(200'000, ']'))), reason);
    EXPECT_EQ(complaint(std::string(100, '[') + std::string(100, ']')),
              "the whole: should be an object");
}

TEST_F(DesignFile, BracketsInAStringAreNotNested) {
    EXPECT_EQ(
        complaint(with("[{\"name\":\"D\",\"partNumber\":\"\\\"" + std::string(200, '[') + "\"}]")),
        "none");
}

TEST_F(DesignFile, ForeignFormatAndOtherVersionsAreRefused) {
    EXPECT_EQ(complaint("[]"), "the whole: should be an object");
    EXPECT_EQ(complaint("{}"), "the whole: \"format\" is missing");
    EXPECT_EQ(complaint(R"({"format":"x"})"), "format: should be \"standin-host-design\"");
    EXPECT_EQ(complaint(R"({"format":"standin-host-design","version":2})"),
              "version: should be 1: the file was written by another version");
    EXPECT_EQ(complaint(R"({"format":"standin-host-design","version":"1"})"),
              "version: should be a number");
}

TEST_F(DesignFile, ErrorsNameThePlaceAndWhatWouldBeRight) {
    EXPECT_EQ(complaint(R"({"format":"standin-host-design","version":1,"name":"D"})"),
              "the whole: \"components\" is missing");
    EXPECT_EQ(complaint(with("{}")), "components: should be a list");
    EXPECT_EQ(complaint(with("[]")), "components: a design needs at least its root component");
    EXPECT_EQ(complaint(with(R"([{"name":"D"}])")), "components[0]: \"partNumber\" is missing");
    EXPECT_EQ(complaint(with(R"([{"name":7}])")), "components[0].name: should be a text");
    EXPECT_EQ(complaint(with(R"([{"name":"D","partNumber":"D","children":[{"component":-1}]}])")),
              "components[0].children[0].component: should be a whole number from 0 to 2147483647");
    EXPECT_EQ(complaint(with(R"([{"name":"D","partNumber":"D","children":[{"component":1.5}]}])")),
              "components[0].children[0].component: should be a whole number from 0 to 2147483647");
    EXPECT_EQ(complaint(with(
                  R"([{"name":"D","partNumber":"D","children":[{"component":5,"instance":1}]}])")),
              "components[0].children[0]: component 5 is not there; the last one is 0");
    EXPECT_EQ(
        complaint(with(
            R"([{"name":"D","partNumber":"D","children":[{"component":5,"instance":1,"transform":[1]}]}])")),
        "components[0].children[0].transform: should be a list of 16 numbers");
    EXPECT_EQ(
        complaint(with(R"([{"name":"D","partNumber":"D","geometry":{"area":-1,"volume":0}}])")),
        "components[0].geometry.area: should be a number of 0 or more");
    EXPECT_EQ(complaint(with(
                  R"([{"name":"D","partNumber":"D","attributes":[{"group":"G","name":"a"}]}])")),
              "components[0].attributes[0]: \"value\" is missing");
    EXPECT_EQ(complaint(with(R"([{"name":"D","partNumber":"D","geometry":{"source":true}}])")),
              "components[0].geometry: the design names no source for it");
    EXPECT_EQ(complaint(with(R"([{"name":"D","partNumber":"D","material":{"name":"S"}}])")),
              "components[0].material: \"density\" is missing");
}

TEST_F(DesignFile, AssemblyThatContainsItselfIsRefused) {
    EXPECT_EQ(complaint(with(
                  R"([{"name":"D","partNumber":""},
                {"name":"A","partNumber":"","children":[{"component":2,"instance":1}]},
                {"name":"B","partNumber":"","children":[{"component":1,"instance":1}]}])")),
              "components[1]: \"A\" contains itself; an assembly must be free of itself");
}

TEST_F(DesignFile, ExpansionBeyondTheLimitIsRefused) {
    // Two uses of the next in each of thirty assemblies: more than a thousand million parts.
    std::ostringstream components;
    components << R"([{"name":"D","partNumber":"","children":[{"component":1,"instance":1}]})";
    for (int next = 2; next <= 31; ++next) {
        components << R"(,{"name":"A)" << next << R"(","partNumber":"","children":[)"
                   << R"({"component":)" << next << R"(,"instance":1},)"
                   << R"({"component":)" << next << R"(,"instance":2}]})";
    }
    components << R"(,{"name":"End","partNumber":""}])";

    EXPECT_EQ(complaint(with(components.str())),
              "components: the assembly has more than 1000000 occurrences, which is the most that "
              "can be opened");
}

TEST_F(DesignFile, MoreOccurrencesThanTheLimitAreRefused) {
    // Two frames with three bolts each: eight occurrences.
    saveDesignFile(path, parseOutline(R"(
        Frame
          Bolt
          Bolt
          Bolt
        Frame)"));

    EXPECT_EQ(complaint({}, {.occurrences = 8}), "none");
    EXPECT_EQ(
        complaint({}, {.occurrences = 7}),
        "would become more than 7 occurrences; open a part of the assembly, or increase the limit");
}

TEST_F(DesignFile, FileThatMayExceedTheMemoryLimitIsRefused) {
    // A megabyte is for 32768 bytes.
    const std::string design = with(R"([{"name":"D","partNumber":""}])");
    folder.write(kFile, design + std::string(32768 - design.size(), ' '));
    EXPECT_EQ(complaint({}, {.megabytes = 1, .occurrences = 10}), "none");

    folder.write(kFile, design + std::string(32769 - design.size(), ' '));

    EXPECT_EQ(
        complaint({}, {.megabytes = 1, .occurrences = 10}),
        "may take more than 1 megabytes of memory; open a smaller design, or increase the limit");
}

/// A body that only the source knows.
class SourceGeometry final : public Geometry {
public:
    double area() override { return 6; }
    double volume() override { return 1; }
    std::optional<Box> box(const Transform& /*placement*/) override { return std::nullopt; }
};

class DesignFileWithSource : public DesignFile {
protected:
    DesignFileWithSource() : stepPath(folder.write("gearbox.stp", "ISO-10303-21;")) {
        saveDesignFile(path, edited());
    }

    /// What the source holds.
    [[nodiscard]] DesignData original() const {
        DesignData data = parseOutline(R"(
            Bolt
            Nut)");
        data.components[1].geometry = bolt;
        const std::u8string text = stepPath.u8string();
        data.source = SourceFile{.path = {text.begin(), text.end()}, .fingerprint = "f1"};
        return data;
    }

    /// The same, worked on.
    [[nodiscard]] DesignData edited() const {
        DesignData data = original();
        data.components[1].name = "Screw";
        data.components[1].attributes = {{.group = "G", .name = "a", .value = "1"}};
        data.components[2].geometry = boxGeometry(1, 2, 3);
        return data;
    }

    fs::path stepPath;
    std::shared_ptr<Geometry> bolt = std::make_shared<SourceGeometry>();
};

TEST_F(DesignFileWithSource, KeepsTheEditsAndTakesBodiesFromTheSource) {
    std::string asked;
    const DesignData loaded = loadDesignFile(path, [&](const SourceFile& source) {
        asked = source.path + " " + source.fingerprint;
        return original();
    });

    EXPECT_EQ(asked, original().source->path + " f1");
    EXPECT_EQ(loaded.components[1].name, "Screw");
    EXPECT_EQ(loaded.components[1].attributes,
              (std::vector<AttributeData>{{.group = "G", .name = "a", .value = "1"}}));
    EXPECT_EQ(loaded.components[1].geometry, bolt);
    EXPECT_EQ(loaded.components[2].geometry->volume(), 6);
    EXPECT_EQ(loaded.components[0].geometry, nullptr);
    EXPECT_EQ(loaded.source->fingerprint, "f1");
}

TEST_F(DesignFileWithSource, FindsASourceThatMovedAlongWithIt) {
    const fs::path other = folder.path() / "moved";
    fs::create_directory(other);
    fs::rename(stepPath, other / "gearbox.stp");
    fs::rename(path, other / "gearbox.design.json");

    const DesignData loaded = loadDesignFile(other / "gearbox.design.json",
                                             [&](const SourceFile&) { return original(); });

    EXPECT_EQ(fs::path(loaded.source->path), other / "gearbox.stp");
}

TEST_F(DesignFileWithSource, ChangedSourceIsRefused) {
    const std::string changed = "its source " + original().source->path +
                                " has changed since; put the former file in its place, or import "
                                "the new one";
    EXPECT_EQ(complaint([&](const SourceFile&) {
                  DesignData data = original();
                  data.source->fingerprint = "f2";
                  return data;
              }),
              changed);
    EXPECT_EQ(complaint([&](const SourceFile&) {
                  DesignData data = original();
                  data.components.emplace_back();
                  return data;
              }),
              changed);
}

TEST_F(DesignFileWithSource, UnreadableSourceIsNamed) {
    EXPECT_EQ(complaint(),
              "its bodies are in " + original().source->path + ", which cannot be read here");
}

TEST_F(DesignFileWithSource, IsNotReadWhereNoBodyIsInIt) {
    DesignData data = original();
    data.components[1].geometry = nullptr;
    saveDesignFile(path, data);

    EXPECT_EQ(loadDesignFile(path).source->fingerprint, "f1");
}

}  // namespace
}  // namespace host
