#include "tests/workbench/workbench_fixture.h"

#include <string>

namespace {

using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

class WorkbenchCommands : public test_support::Workbench {
protected:
    static host::DesignData load(const std::string& file) {
        return host::loadDesignFile(host::fromUtf8(file));
    }

    /// Where the occurrences directly under the root lie along X, with a "g" behind grounded ones.
    static std::string places(const std::string& file) {
        std::string result;
        const host::DesignData data = load(file);
        for (const host::OccurrenceData& each : data.components.front().children) {
            result += std::to_string(static_cast<int>(each.transform.cells[3]));
            result += each.grounded ? "g " : " ";
        }
        return result;
    }

    [[nodiscard]] std::string path(const std::string& name) const {
        return host::toUtf8(folder.path() / host::fromUtf8(name));
    }
};

constexpr const char* kPlaced = R"(
    Frame  at=1,0,0
    Bolt  at=2,0,0
    Drive  at=3,0,0
      Nut  at=4,0,0)";

TEST_F(WorkbenchCommands, MoveToOriginPlacesAllUnderTheRootAndSaves) {
    const std::string file = design(kPlaced);

    const ProgramResult result = run({"move-to-origin", file});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Moved to the origin: 3\nSaved: " + file + "\n");
    EXPECT_EQ(places(file), "0 0 0 ");
}

TEST_F(WorkbenchCommands, MoveToOriginTakesNamedOccurrencesAndGroundsThem) {
    const std::string file = design(kPlaced);
    const std::string target = path("moved.design.json");

    const ProgramResult result = run({"move-to-origin", file, "--occurrence", "Bolt:1",
                                      "--occurrence", "Drive:1", "--ground", "--save", target});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(places(target), "1 0g 0g ");
    EXPECT_EQ(places(file), "1 2 3 ");
}

TEST_F(WorkbenchCommands, MoveToOriginOfAnUnknownOccurrenceSavesNothing) {
    const std::string file = design(kPlaced);
    const std::string bytes = readFile(host::fromUtf8(file));

    const ProgramResult result = run({"move-to-origin", file, "--occurrence", "Wheel:1"});

    EXPECT_NE(result.status, 0);
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(readFile(host::fromUtf8(file)), bytes);
}

TEST_F(WorkbenchCommands, MoveToOriginMovesAnOccurrenceThatIsNamedTwice) {
    const std::string file = design(kPlaced);

    const ProgramResult result =
        run({"move-to-origin", file, "--occurrence", "Bolt:1", "--occurrence", "Bolt:1"});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(places(file), "1 0 3 ");
}

TEST_F(WorkbenchCommands, MoveToOriginRefusesADesignWithoutOccurrences) {
    host::DesignData data;
    data.name = "plate";
    data.components.emplace_back().name = "plate";
    const std::string file = path("plate.design.json");
    host::saveDesignFile(host::fromUtf8(file), data);

    const ProgramResult result = run({"move-to-origin", file});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: " + file + ": has no occurrences that could move\n");
}

TEST_F(WorkbenchCommands, ProjectToConstructionChangesEverySketch) {
    host::DesignData data = host::parseOutline("Plate\n");
    data.name = "plate";
    data.components.at(0).sketches = {{"Outline", {{true, false}, {false, false}}}};
    data.components.at(1).sketches = {{"Holes", {{true, true}}}, {"Slots", {{true, false}}}};
    const std::string file = path("plate.design.json");
    host::saveDesignFile(host::fromUtf8(file), data);

    const ProgramResult result = run({"project-to-construction", file});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Curves made construction geometry: 2\nSaved: " + file + "\n");
    const host::DesignData saved = load(file);
    EXPECT_EQ(saved.components.at(0).sketches.at(0).curves,
              (std::vector<host::SketchCurveData>{{true, true}, {false, false}}));
    EXPECT_EQ(saved.components.at(1).sketches.at(1).curves,
              (std::vector<host::SketchCurveData>{{true, true}}));
}

TEST_F(WorkbenchCommands, OpenLocalSavesWhatTheHostImportsAndWhatItConverts) {
    const std::string archive = path("Gearbox.F3D");
    const std::string inventor = path("Frame.ipt");
    writeFile(host::fromUtf8(archive), readFile(host::fromUtf8(design(kPlaced, "gearbox"))));
    writeFile(host::fromUtf8(inventor), readFile(host::fromUtf8(design("Post  at=7,0,0", "post"))));
    std::filesystem::create_directories(host::fromUtf8(out()));

    const ProgramResult result = run({"open-local", archive, inventor, "--out", out()});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(places(host::toUtf8(host::fromUtf8(out()) / "gearbox.design.json")), "1 2 3 ");
    EXPECT_EQ(places(host::toUtf8(host::fromUtf8(out()) / "post.design.json")), "7 ");
}

TEST_F(WorkbenchCommands, OpenLocalIsCancelledAtTheTimeout) {
    const std::string file = path("Frame.ipt");
    writeFile(host::fromUtf8(file), "nothing that anybody can convert");

    const ProgramResult result = run({"open-local", file, "--timeout", "2"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(test_support::firstLines(result.errors, 1),
              "the add-in says: File still uploaded, open from data panel after conversion "
              "completes\n");
}

TEST_F(WorkbenchCommands, OpenLocalSavesWhatItCouldOpenAndTellsOfTheRest) {
    const std::string archive = path("gearbox.f3d");
    writeFile(host::fromUtf8(archive), readFile(host::fromUtf8(design(kPlaced, "gearbox"))));
    std::filesystem::create_directories(host::fromUtf8(out()));

    const ProgramResult result = run({"open-local", path("missing.f3d"), archive, "--out", out()});

    EXPECT_EQ(result.status, 1);
    // The add-in hands the path over in lower case.
    const std::string end = "missing.f3d: no such file\n";
    EXPECT_EQ(test_support::firstLines(result.errors, 1), result.errors);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: opened 1 of 2 files: ", 0), 0U);
    EXPECT_EQ(result.errors.substr(result.errors.size() - end.size()), end);
    EXPECT_EQ(result.output,
              "Saved: " + host::toUtf8(host::fromUtf8(out()) / "gearbox.design.json") + "\n");
}

TEST_F(WorkbenchCommands, OpenLocalUploadsIntoTheFirstProjectOfANamedFolder) {
    const std::string inventor = path("frame.ipt");
    writeFile(host::fromUtf8(inventor), readFile(host::fromUtf8(design(kPlaced, "frame"))));
    const std::filesystem::path project = host::fromUtf8(path("projects/Workshop"));
    std::filesystem::create_directories(project);

    const ProgramResult result =
        run({"open-local", inventor, "--data", path("projects"), "--out", host::toUtf8(project)});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(readFile(project / "frame.ipt"), readFile(host::fromUtf8(inventor)));
}

TEST_F(WorkbenchCommands, OpenLocalTellsThatThereIsNoProject) {
    const std::string inventor = path("frame.ipt");
    writeFile(host::fromUtf8(inventor), "x");
    std::filesystem::create_directories(host::fromUtf8(path("projects")));

    const ProgramResult result =
        run({"open-local", inventor, "--data", path("projects"), "--out", path("projects")});

    EXPECT_EQ(result.status, 4);
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
}

TEST_F(WorkbenchCommands, OpenLocalRefusesAFolderThatIsNone) {
    const ProgramResult result = run({"open-local", path("a.f3d"), "--out", path("nowhere")});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.errors, "tarnix-workbench: --out " + path("nowhere") + ": is no folder\n");
}

}  // namespace
