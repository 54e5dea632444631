#include "tests/workbench/placed_design.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <future>
#include <string>
#include <vector>

using test_support::kPlaced;
using test_support::places;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

using OpenLocal = test_support::Workbench;

TEST_F(OpenLocal, SavesWhatTheHostImportsAndWhatItConverts) {
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

TEST_F(OpenLocal, AFileThatIsGivenTwiceIsRefused) {
    const std::string file = path("gearbox.f3d");
    writeFile(host::fromUtf8(file), readFile(host::fromUtf8(design(kPlaced, "gearbox"))));

    const ProgramResult result =
        run({"open-local", file, path("sub/../gearbox.f3d"), "--out", out()});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: " + file + " is given twice; name each file once\n");
    EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(out())));
}

TEST_F(OpenLocal, FilesThatShareANameAreRefusedBeforeAnyIsRead) {
    std::filesystem::create_directory(host::fromUtf8(path("x")));
    const std::string one = path("x/As.stp");
    const std::string other = path("as.step");
    for (const std::string& file : {one, other}) {
        writeFile(host::fromUtf8(file), "nothing that can be read");
    }

    const ProgramResult result = run({"open-local", one, other, "--out", out()});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "tarnix-workbench: " + one + " and " + other +
                                 " share a name, under which their designs are saved; open them "
                                 "by two runs, with an --out of its own each\n");
    EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(out())));
}

TEST_F(OpenLocal, SeveralAtOnceSaveAllTheirDesigns) {
    std::vector<std::future<ProgramResult>> runs;
    for (const char* name : {"a", "b", "c"}) {
        const std::string file = path(std::string(name) + ".ipt");
        writeFile(host::fromUtf8(file), readFile(host::fromUtf8(design(kPlaced, name))));
        const std::vector<std::string> command = {"open-local", file,          "--out",
                                                  out(),        "--data-home", path("home")};
        runs.push_back(std::async(std::launch::async, [command] { return run(command); }));
    }

    for (auto& each : runs) {
        const ProgramResult result = each.get();
        EXPECT_EQ(result.status, 0) << result.errors;
    }
    for (const char* name : {"a", "b", "c"}) {
        EXPECT_EQ(places(out() + "/" + name + ".design.json"), "1 2 3 ");
    }
}

TEST_F(OpenLocal, IsCancelledAtTheTimeout) {
    const std::string file = path("Frame.ipt");
    writeFile(host::fromUtf8(file), "nothing that can be converted");

    const ProgramResult result = run({"open-local", file, "--timeout", "2"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(test_support::firstLines(result.errors, 1),
              "the add-in says: File still uploaded, open from data panel after conversion "
              "completes\n");
}

TEST_F(OpenLocal, SavesWhatItCouldOpenAndReportsTheRest) {
    const std::string archive = path("gearbox.f3d");
    writeFile(host::fromUtf8(archive), readFile(host::fromUtf8(design(kPlaced, "gearbox"))));
    std::filesystem::create_directories(host::fromUtf8(out()));

    const ProgramResult result = run({"open-local", path("missing.f3d"), archive, "--out", out()});

    EXPECT_EQ(result.status, 1);
    // The add-in passes the path in lower case.
    const std::string end = "missing.f3d: no such file\n";
    EXPECT_EQ(test_support::firstLines(result.errors, 1), result.errors);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: opened 1 of 2 files: ", 0), 0U);
    EXPECT_EQ(result.errors.substr(result.errors.size() - end.size()), end);
    EXPECT_EQ(result.output,
              "Saved: " + host::toUtf8(host::fromUtf8(out()) / "gearbox.design.json") + "\n");
}

TEST_F(OpenLocal, UploadsIntoTheFirstProjectOfANamedFolder) {
    const std::string inventor = path("frame.ipt");
    writeFile(host::fromUtf8(inventor), readFile(host::fromUtf8(design(kPlaced, "frame"))));
    const std::filesystem::path project = host::fromUtf8(path("projects/Workshop"));
    std::filesystem::create_directories(project);

    const ProgramResult result =
        run({"open-local", inventor, "--data", path("projects"), "--out", host::toUtf8(project)});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(readFile(project / "frame.ipt"), readFile(host::fromUtf8(inventor)));
}

TEST_F(OpenLocal, ReportsThatThereIsNoProject) {
    const std::string inventor = path("frame.ipt");
    writeFile(host::fromUtf8(inventor), "x");
    std::filesystem::create_directories(host::fromUtf8(path("projects")));

    const ProgramResult result =
        run({"open-local", inventor, "--data", path("projects"), "--out", path("projects")});

    EXPECT_EQ(result.status, 4);
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
}

TEST_F(OpenLocal, GivesEachFileThatFailsALineOfItsOwn) {
    const std::string archive = path("Gearbox.f3d");
    writeFile(host::fromUtf8(archive), readFile(host::fromUtf8(design(kPlaced, "gearbox"))));
    writeFile(host::fromUtf8(path("Broken.f3d")), "no archive");

    const ProgramResult result = run({"open-local", path("Missing.f3d"), archive,
                                      path("Broken.f3d"), "--out", path("new/designs")});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(test_support::firstLines(result.errors, 1),
              "failed: " + path("Missing.f3d") + ": no such file\n");
    const std::string rest =
        result.errors.substr(test_support::firstLines(result.errors, 1).size());
    EXPECT_EQ(rest.rfind("failed: " + path("Broken.f3d") + ": ", 0), 0U) << rest;
    EXPECT_EQ(rest.substr(rest.find('\n') + 1), "tarnix-workbench: opened 1 of 3 files\n");
    EXPECT_EQ(result.output,
              "Saved: " +
                  host::toUtf8(host::fromUtf8(path("new/designs")) / "gearbox.design.json") + "\n");
}

TEST_F(OpenLocal, RefusesAFolderThatIsAFile) {
    writeFile(host::fromUtf8(path("file")), "");

    const ProgramResult result = run({"open-local", path("a.f3d"), "--out", path("file")});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: --out " + path("file") + ": ", 0), 0U)
        << result.errors;
}
