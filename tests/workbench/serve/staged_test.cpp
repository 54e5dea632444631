#include "tests/workbench/serve/page_client.h"
#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <httplib.h>

#include <chrono>
#include <csignal>
#include <thread>

/// The page with an add-in that waits, asks and previews when a test wants it.
namespace test_support {
namespace {

Json pressing(const std::string& command) { return {{"action", "press"}, {"command", command}}; }

Json clicking(const std::string& input) { return {{"action", "click"}, {"input", input}}; }

class StagedPages : public Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        variables.set("STAGED_HOLD", hold());
        // The leak checker has no name for what a module keeps once it is gone.
        variables.set("ASAN_OPTIONS", "detect_leaks=0");
    }

    void serve() {
        program = std::make_unique<ServedProgram>(
            std::vector<std::string>{design(kSmallDesign), "--addin", addin()});
        ASSERT_NE(program->port(), 0);
    }

    /// While this file is there, the add-in waits where it can.
    [[nodiscard]] std::filesystem::path hold() const { return folder.path() / "hold"; }
    void holdOn() const { writeFile(hold(), ""); }
    void letGo() const { std::filesystem::remove(hold()); }

    static std::string addin() {
        return host::toUtf8(host::environment::programFolder() / STAGED_FOLDER);
    }

    std::unique_ptr<ServedProgram> program;
};

TEST_F(StagedPages, NothingIsReloadedOrOpenedWhileTheAddinStarts) {
    variables.set("STAGED_WAITS_IN_RUN", "yes");
    holdOn();
    serve();
    PageClient page(*program);
    const std::string atWork = "409 the add-in is at work: wait until it has finished";

    EXPECT_EQ(page.refusal({{"action", "reloadAddin"}}), atWork);
    EXPECT_EQ(page.refusal({{"action", "open"}, {"file", nullptr}}), atWork);

    letGo();
    EXPECT_FALSE(page.waitFor([](const Json& state) { return state["addin"]["running"] == true; })
                     .is_null());
    EXPECT_EQ(page.act({{"action", "reloadAddin"}})["ok"], true);
}

TEST_F(StagedPages, PageOpensWhileTheTableOfADialogIsGone) {
    serve();
    PageClient page(*program);
    page.act(pressing("StagedDialog"));
    EXPECT_EQ(inputOf(page.state(), "list")["rowCount"], 3);
    holdOn();

    EXPECT_EQ(page.act(clicking("remove"))["waiting"], true);

    const PageClient late(*program);
    EXPECT_TRUE(late.state()["dialog"].is_object());
    EXPECT_TRUE(inputOf(late.state(), "list").is_null());
    letGo();
    EXPECT_EQ(page.act({{"action", "cancel"}})["ok"], true);
}

TEST_F(StagedPages, WaitingIsShownToAllUntilItIsOver) {
    serve();
    PageClient page(*program);
    const PageClient other(*program);
    holdOn();

    EXPECT_EQ(page.act(pressing("StagedWait"))["waiting"], true);

    EXPECT_EQ(other.waitFor([](const Json& state) {
        return state["progress"].is_object();
    })["progress"]["text"],
              "Holding");
    letGo();
    EXPECT_FALSE(
        other.waitFor([](const Json& state) { return state["progress"].is_null(); }).is_null());
}

TEST_F(StagedPages, WaitingIsCancelledByItsButton) {
    serve();
    PageClient page(*program);
    holdOn();
    page.act(pressing("StagedWait"));

    EXPECT_EQ(page.act({{"action", "cancelProgress"}})["ok"], true);

    EXPECT_FALSE(
        page.waitFor([](const Json& state) { return state["progress"].is_null(); }).is_null());
    EXPECT_EQ(page.act(pressing("StagedDialog"))["ok"], true);
}

TEST_F(StagedPages, ProgramEndsOnASignalWhileTheAddinWaits) {
    serve();
    PageClient page(*program);
    holdOn();
    page.act(pressing("StagedWait"));

    EXPECT_EQ(program->stop(), 0);
}

// The first letter is answered as waiting; the second finds the field disabled by then.
TEST_F(StagedPages, RefusalAfterTheAnswerIsInTheLog) {
    serve();
    PageClient page(*program);
    page.act(pressing("StagedDialog"));

    EXPECT_EQ(page.act({{"action", "type"}, {"input", "ask"}, {"text", "ab"}})["waiting"], true);
    const Json refused = page.act(clicking("remove"));
    EXPECT_EQ(refused["status"], 409);
    EXPECT_EQ(refused.value("waiting", false), true) << refused.dump();
    page.act(
        {{"action", "answerMessage"}, {"id", page.state()["message"]["id"]}, {"answer", "ok"}});

    const Json logged = page.waitFor([](const Json& state) {
        return state["log"].dump().find("cannot type into") != std::string::npos;
    });
    EXPECT_FALSE(logged.is_null()) << page.state()["log"].dump();
    EXPECT_EQ(inputOf(page.state(), "ask")["value"], "a");
    EXPECT_EQ(page.act({{"action", "cancel"}})["ok"], true);
}

TEST_F(StagedPages, WorkOfAnotherThreadIsShownAlthoughNobodyActs) {
    serve();
    PageClient page(*program);

    page.act(pressing("StagedLater"));

    EXPECT_FALSE(page.waitFor([](const Json& state) {
                         return state["tree"]["components"][0]["partNumber"] == "later";
                     })
                     .is_null());
}

TEST_F(StagedPages, FileToWriteIsNamedAndReplacedOnlyIfTheUserAgrees) {
    serve();
    const std::filesystem::path local = folder.path() / "data/tarnix-workbench/Projects/Local";
    writeFile(local / "list.txt", "there");
    PageClient page(*program);
    page.act(pressing("StagedSaveFile"));
    const Json dialog = page.state()["fileDialog"];
    EXPECT_EQ(dialog["kind"], "save");
    EXPECT_EQ(dialog["name"], "list.txt");
    const auto answer = [&](const std::string& file, bool replace) {
        return page.act({{"action", "answerFile"},
                         {"id", dialog["id"]},
                         {"files", {file}},
                         {"replace", replace}});
    };

    EXPECT_EQ(answer("Local", false)["status"], 409);
    EXPECT_EQ(answer("../list.txt", false)["status"], 404);
    EXPECT_EQ(answer("Local/list.txt", false)["exists"], true);
    EXPECT_EQ(answer("Local/list.txt", true)["ok"], true);

    const Json said = page.waitFor([](const Json& state) { return state["message"].is_object(); });
    EXPECT_EQ(said["message"]["text"],
              host::toUtf8(std::filesystem::canonical(local) / "list.txt"));
    EXPECT_EQ(readFile(local / "list.txt"), "there");
}

TEST_F(StagedPages, FolderIsPicked) {
    serve();
    PageClient page(*program);
    page.act(pressing("StagedPickFolder"));
    const Json dialog = page.state()["fileDialog"];
    EXPECT_EQ(dialog["kind"], "folder");
    const auto answer = [&](const std::string& file) {
        return page.act({{"action", "answerFile"}, {"id", dialog["id"]}, {"files", {file}}});
    };

    EXPECT_EQ(answer("Local/nowhere")["status"], 404);
    EXPECT_EQ(answer("Local")["ok"], true);

    const Json said = page.waitFor([](const Json& state) { return state["message"].is_object(); });
    EXPECT_TRUE(said["message"]["text"].get<std::string>().ends_with("/Projects/Local"));
}

TEST_F(StagedPages, PreviewIsNeitherSavedNorKept) {
    serve();
    PageClient page(*program);
    page.act(pressing("StagedPreview"));
    ASSERT_EQ(page.state()["tree"]["components"][0]["partNumber"], "previewed");
    const Json save = {{"action", "save"}, {"file", "Local/kept.json"}};

    EXPECT_EQ(page.refusal(save),
              "409 the dialog shows a preview of what it will do: press OK or Cancel, then save");

    EXPECT_EQ(page.act({{"action", "reloadAddin"}})["ok"], true);
    EXPECT_NE(page.state()["tree"]["components"][0]["partNumber"], "previewed");
    EXPECT_EQ(page.act(save)["ok"], true);
}

TEST_F(StagedPages, AddinIsAskedToStopHoweverOftenTheSignalComes) {
    const std::filesystem::path stopped = folder.path() / "stopped";
    variables.set("STAGED_STOPPED", stopped);
    serve();

    program->signal(SIGTERM);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));

    EXPECT_EQ(program->stop(), 0);
    EXPECT_EQ(readFile(stopped), "stopped");
}

TEST_F(StagedPages, ProgramEndsWhereItsAddressCannotBePrinted) {
    const std::filesystem::path stopped = folder.path() / "stopped";
    variables.set("STAGED_STOPPED", stopped);

    const int status = runRedirected(host::environment::programFolder() / "tarnix-workbench",
                                     {"serve", design(kSmallDesign), "--addin", addin(), "--quiet"},
                                     "/dev/full", folder.path() / "errors");

    EXPECT_EQ(status, 5) << readFile(folder.path() / "errors");
    EXPECT_FALSE(std::filesystem::exists(stopped));  // it had not been run either
}

}  // namespace
}  // namespace test_support
