#include "tests/workbench/serve/page_client.h"
#include "tests/workbench/serve/raw_connection.h"
#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <httplib.h>

namespace test_support {
namespace {

constexpr const char* kBom = "QM_TX_BOM";

Json press(const std::string& command) { return {{"action", "press"}, {"command", command}}; }

Json onInput(const std::string& action, const Json& input) {
    return {{"action", action}, {"input", input["key"]}};
}

/// The captions of the open dialog's tabs, the active one in brackets.
std::string tabsOf(const Json& state) {
    std::string tabs;
    for (const Json& each : state["dialog"]["inputs"]) {
        const std::string caption = each["caption"];
        tabs += each.value("active", false) ? "[" + caption + "] " : caption + " ";
    }
    return tabs;
}

/// The table of the dialog's first tab.
Json tableOf(const Json& state) {
    for (const Json& each : state["dialog"]["inputs"][0]["inputs"]) {
        if (each["kind"] == "Table") return each;
    }
    return nullptr;
}

/// Changes the design: its first part is grounded afterwards.
void ground(PageClient& page) {
    page.act(press("QM_TX_moveComponentToOrigin"));
    page.act({{"action", "pick"}, {"path", "Frame:1"}});
    page.act({{"action", "click"}, {"input", "ground"}});
    page.act({{"action", "ok"}});
}

bool isGrounded(const Json& state) {
    return state["tree"]["components"][0]["children"][0][2] == true;
}

/// The program with a small design, and its pages.
class ServedPages : public Workbench {
protected:
    void serve(const std::string& outline = kSmallDesign) {
        program = std::make_unique<ServedProgram>(std::vector<std::string>{design(outline)});
        ASSERT_NE(program->port(), 0);
    }

    /// An installed add-in of the test's own, which it can damage.
    void serveOwnAddin() {
        addin = folder.path() / "installed" / "Tarnix";
        std::filesystem::create_directories(addin.parent_path());
        std::filesystem::copy(host::environment::programFolder().parent_path() / "Tarnix", addin,
                              std::filesystem::copy_options::recursive);
        program = std::make_unique<ServedProgram>(
            std::vector<std::string>{design(kSmallDesign), "--addin", host::toUtf8(addin)});
        ASSERT_NE(program->port(), 0);
    }

    std::filesystem::path addin;
    std::unique_ptr<ServedProgram> program;
};

TEST_F(ServedPages, PageBeginsWithTheWholeState) {
    serve();
    const PageClient page(*program);

    const Json state = page.state();

    EXPECT_EQ(state["document"]["name"], "sample");
    EXPECT_EQ(state["document"]["changed"], false);
    EXPECT_EQ(state["addin"]["running"], true);
    EXPECT_EQ(state["dialog"], nullptr);
    EXPECT_EQ(state["tree"]["components"][0]["name"], "sample");
    EXPECT_EQ(state["tree"]["components"][0]["children"],
              Json::parse("[[1, 1, false], [2, 1, false], [2, 2, false]]"));
    EXPECT_EQ(state["tree"]["components"][2]["name"], "Bolt");
    EXPECT_EQ(state["selection"], Json::array());
}

TEST_F(ServedPages, ButtonOpensTheDialogForAllPages) {
    serve();
    PageClient one(*program);
    const PageClient other(*program);

    const Json answer = one.act(press(kBom));

    EXPECT_EQ(answer["ok"], true);
    const Json seen = other.waitFor([](const Json& state) { return state["dialog"].is_object(); });
    EXPECT_EQ(seen["dialog"], one.state()["dialog"]);
    EXPECT_EQ(tabsOf(seen), "[Data of Model] Structure BOM Configuration ");
}

TEST_F(ServedPages, WhatTheScreenDoesNotOfferIsRefusedWithTheReason) {
    serve();
    PageClient page(*program);

    EXPECT_EQ(page.refusal({{"action", "ok"}}), "409 cannot press OK: no dialog is open");
    EXPECT_EQ(page.refusal({{"action", "click"}, {"input", 3}}), "409 no dialog is open");
    EXPECT_EQ(page.refusal({{"action", "workspace"}, {"id", "Nowhere"}}),
              "409 cannot show the workspace Nowhere: no workspace has this id");
    page.act(press(kBom));
    EXPECT_EQ(page.refusal({{"action", "click"}, {"input", 1'000'000}}),
              "409 the dialog has no input with the key 1000000");
}

TEST_F(ServedPages, RowsAreSentForTheWindowOfThePage) {
    std::string outline;
    for (int part = 1; part <= 300; ++part) {
        outline += "Part" + std::to_string(part) + "  box=1x1x1\n";
    }
    serve(outline);
    PageClient page(*program);
    const PageClient other(*program);

    page.act(press(kBom));
    const Json table = tableOf(page.state());
    ASSERT_TRUE(table.is_object());
    EXPECT_EQ(table["shownCount"], 301);
    EXPECT_EQ(table["window"]["order"].size(), 60U);
    Json view = onInput("view", table);
    view["from"] = 250;
    view["count"] = 20;
    page.act(view);

    const Json window = tableOf(page.state())["window"];
    EXPECT_EQ(window["from"], 250);
    EXPECT_EQ(window["order"][0], 250);
    EXPECT_EQ(window["order"].size(), 20U);
    EXPECT_EQ(window["rows"].size(), 21U);  // with the headings
    EXPECT_EQ(window["first"], 0);
    const Json others =
        other.waitFor([](const Json& state) { return state["dialog"].is_object(); });
    EXPECT_EQ(tableOf(others)["window"]["from"], 0);
}

TEST_F(ServedPages, PageThatIsClosedInADialogCanBeOpenedAgain) {
    serve();
    {
        PageClient page(*program);
        page.act(press(kBom));
    }

    PageClient again(*program);

    EXPECT_EQ(again.state()["dialog"]["command"], kBom);
    EXPECT_EQ(again.act({{"action", "cancel"}})["ok"], true);
    EXPECT_EQ(again.state()["dialog"], nullptr);
}

TEST_F(ServedPages, ProgramEndsOnASignalWithADialogOpen) {
    serve();
    PageClient page(*program);
    page.act(press(kBom));

    EXPECT_EQ(program->stop(), 0);
    page.waitForEnd();
}

TEST_F(ServedPages, FileDialogWaitsForItsAnswerAndRefusesAllElse) {
    serve();
    PageClient page(*program);

    EXPECT_EQ(page.act(press("QEMA_OpenLocalCmd_QAT"))["waiting"], true);

    const Json dialog = page.state()["fileDialog"];
    ASSERT_TRUE(dialog.is_object());
    EXPECT_EQ(page.refusal(press(kBom)), "409 a file dialog is open: answer it first");
    EXPECT_EQ(
        page.refusal(
                {{"action", "answerFile"}, {"id", dialog["id"]}, {"files", {"../settings.xml"}}})
            .substr(0, 3),
        "404");
    EXPECT_EQ(page.act({{"action", "answerFile"}, {"id", dialog["id"]}, {"files", nullptr}})["ok"],
              true);
    EXPECT_FALSE(
        page.waitFor([](const Json& state) { return state["fileDialog"].is_null(); }).is_null());
}

TEST_F(ServedPages, ProgramEndsOnASignalWhileAFileDialogWaits) {
    serve();
    PageClient page(*program);
    page.act(press("QEMA_OpenLocalCmd_QAT"));

    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ServedPages, WaitingOfTheAddinIsShownAndEndsWithTheProgram) {
    serve();
    writeFile(folder.path() / "data/tarnix-workbench/Projects/Local/frame.ipt", "nothing");
    PageClient page(*program);
    page.act(press("QEMA_OpenLocalCmd_QAT"));

    page.act({{"action", "answerFile"},
              {"id", page.state()["fileDialog"]["id"]},
              {"files", {"Local/frame.ipt"}}});

    const Json waiting = page.waitFor([](const Json& state) {
        return state["progress"].is_object() &&
               state["progress"]["text"].get<std::string>().starts_with("Converting");
    });
    ASSERT_FALSE(waiting.is_null());
    EXPECT_EQ(waiting["progress"]["cancelled"], false);
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ServedPages, SavingAsksBeforeItReplaces) {
    serve();
    PageClient page(*program);
    const Json save = {{"action", "save"}, {"file", "Local/kept.design.json"}};

    EXPECT_EQ(page.act(save)["ok"], true);
    const Json again = page.act(save);

    EXPECT_EQ(again["status"], 409);
    EXPECT_EQ(again["exists"], true);
    EXPECT_EQ(again["error"], "\"Local/kept.design.json\" exists already");
    Json replacing = save;
    replacing["replace"] = true;
    EXPECT_EQ(page.act(replacing)["ok"], true);
    EXPECT_EQ(page.state()["document"]["file"], "Local/kept.design.json");
    EXPECT_EQ(page.refusal({{"action", "save"}, {"file", "Local/kept.txt"}}),
              "409 \"Local/kept.txt\": the name of a design file must end in .json");
    EXPECT_EQ(page.refusal({{"action", "save"}, {"file", "../kept.json"}}).substr(0, 3), "404");
}

TEST_F(ServedPages, FileThatCannotBeReadLeavesTheDesign) {
    serve();
    writeFile(folder.path() / "data/tarnix-workbench/Projects/Local/broken.step", "nothing");
    PageClient page(*program);

    const std::string refusal = page.refusal({{"action", "open"}, {"file", "Local/broken.step"}});

    EXPECT_EQ(refusal.substr(0, 4), "409 ");
    EXPECT_NE(refusal.find("broken.step"), std::string::npos) << refusal;
    EXPECT_EQ(page.state()["document"]["name"], "sample");
    EXPECT_EQ(page.state()["busy"], nullptr);
    EXPECT_EQ(page.act({{"action", "open"}, {"file", nullptr}})["ok"], true);
}

TEST_F(ServedPages, AddinIsLoadedAgainAndTheDesignStays) {
    serve();
    PageClient page(*program);
    page.act(press(kBom));

    EXPECT_EQ(page.act({{"action", "reloadAddin"}})["ok"], true);

    EXPECT_EQ(page.state()["dialog"], nullptr);
    EXPECT_EQ(page.state()["document"]["name"], "sample");
    EXPECT_EQ(page.act(press(kBom))["ok"], true);
    EXPECT_EQ(page.state()["dialog"]["command"], kBom);
}

TEST_F(ServedPages, AddinThatIsGoneIsNotLoadedAgainAndTheOldOneStays) {
    serveOwnAddin();
    PageClient page(*program);
    page.act(press(kBom));
    std::filesystem::remove(addin / "Tarnix.manifest");

    const std::string refusal = page.refusal({{"action", "reloadAddin"}});

    EXPECT_EQ(refusal.substr(0, 4), "409 ");
    EXPECT_NE(refusal.find("Tarnix.manifest"), std::string::npos) << refusal;
    EXPECT_EQ(page.state()["addin"]["running"], true);
    EXPECT_EQ(page.state()["dialog"]["command"], kBom);
}

TEST_F(ServedPages, ReloadThatFailsKeepsTheDesignForSavingAndTheNextReload) {
    // The leak checker has no name for the add-in's one intended leak once the module is gone.
    variables.set("ASAN_OPTIONS", "detect_leaks=0");
    serveOwnAddin();
    PageClient page(*program);
    ground(page);
    page.act(press(kBom));
    const Json table = tableOf(page.state());
    const std::string module = readFile(addin / "Tarnix.dll");
    writeFile(addin / "Tarnix.dll", "half of it");

    EXPECT_EQ(page.refusal({{"action", "reloadAddin"}}).substr(0, 4), "409 ");

    const PageClient late(*program);
    EXPECT_EQ(late.state()["addin"]["running"], false);
    EXPECT_EQ(late.state()["dialog"], nullptr);
    EXPECT_EQ(late.state()["document"]["changed"], true);
    EXPECT_TRUE(isGrounded(late.state()));
    const std::string unloaded = "409 the add-in is not loaded: reload it, or save the design";
    Json view = onInput("view", table);
    view["from"] = 0;
    view["count"] = 10;
    EXPECT_EQ(page.refusal(view), unloaded);
    EXPECT_EQ(page.refusal(press(kBom)), unloaded);
    EXPECT_EQ(page.refusal({{"action", "open"}, {"file", nullptr}}), unloaded);
    EXPECT_EQ(page.act({{"action", "save"}, {"file", "Local/kept.json"}})["ok"], true);
    EXPECT_EQ(page.state()["document"]["file"], "Local/kept.json");
    EXPECT_EQ(page.state()["document"]["changed"], false);

    writeFile(addin / "Tarnix.dll", module);
    EXPECT_EQ(page.act({{"action", "reloadAddin"}})["ok"], true);

    EXPECT_EQ(page.state()["addin"]["running"], true);
    EXPECT_EQ(page.state()["document"]["file"], "Local/kept.json");
    EXPECT_TRUE(isGrounded(page.state()));
    page.act(press(kBom));
    EXPECT_EQ(page.state()["dialog"]["command"], kBom);
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ServedPages, OpeningAsksBeforeItDiscardsChanges) {
    serve();
    PageClient page(*program);
    ground(page);
    EXPECT_EQ(page.state()["document"]["changed"], true);
    Json open = {{"action", "open"}, {"file", nullptr}};

    const Json refused = page.act(open);

    EXPECT_EQ(refused["status"], 409);
    EXPECT_EQ(refused["changed"], true);
    EXPECT_EQ(refused["error"], "\"sample\" has changes that are not saved");
    EXPECT_TRUE(isGrounded(page.state()));
    open["discard"] = true;
    EXPECT_EQ(page.act(open)["ok"], true);
    EXPECT_FALSE(isGrounded(page.state()));
    EXPECT_EQ(page.state()["document"]["changed"], false);
}

TEST_F(ServedPages, ReloadKeepsThatTheDesignIsChanged) {
    serve();
    PageClient page(*program);
    ground(page);

    EXPECT_EQ(page.act({{"action", "reloadAddin"}})["ok"], true);

    EXPECT_EQ(page.state()["document"]["changed"], true);
    EXPECT_TRUE(isGrounded(page.state()));
}

TEST_F(ServedPages, PicturesHaveOtherAddressesAfterAReload) {
    serve();
    PageClient page(*program);
    const auto icon = [](const Json& state) {
        const std::string all = state["workspaces"].dump();
        const std::size_t at = all.find("/resources/");
        return all.substr(at, all.find('"', at) - at);
    };
    const std::string before = icon(page.state());
    page.act({{"action", "reloadAddin"}});

    const std::string after = icon(page.state());

    EXPECT_EQ(before.substr(0, 13), "/resources/1/");
    EXPECT_EQ(after, "/resources/2/" + before.substr(13));
    httplib::Client client("127.0.0.1", program->port());
    const auto picture = client.Get(after + "16x16.png", {{"Cookie", program->secrets().cookie}});
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->status, 200);
}

TEST_F(ServedPages, DocumentsNumberChangesWhereAnotherIsOpenedAlone) {
    serve();
    PageClient page(*program);
    const auto number = [&page] { return page.state()["model"]["document"].get<int>(); };
    const int first = number();

    page.act({{"action", "save"}, {"file", "Local/kept.json"}});
    page.act({{"action", "reloadAddin"}});
    EXPECT_EQ(number(), first);
    page.act({{"action", "open"}, {"file", "Local/kept.json"}});
    EXPECT_NE(number(), first);
}

TEST_F(ServedPages, DocumentThatTheAddinOpensHasNoFileUntilItIsSaved) {
    serve();
    const std::filesystem::path source = host::fromUtf8(design("Cover  box=1x1x1", "other"));
    const std::filesystem::path local = folder.path() / "data/tarnix-workbench/Projects/Local";
    std::filesystem::copy_file(source, local / "other.json");
    PageClient page(*program);
    ground(page);
    page.act(press("QEMA_OpenLocalCmd_QAT"));

    page.act({{"action", "answerFile"},
              {"id", page.state()["fileDialog"]["id"]},
              {"files", {"Local/other.json"}}});

    const Json opened = page.waitFor(
        [](const Json& state) { return state["tree"]["components"][0]["name"] != "sample"; });
    ASSERT_FALSE(opened.is_null()) << page.state()["log"].dump();
    EXPECT_EQ(opened["document"]["file"], "");
    EXPECT_EQ(opened["document"]["saveAs"], "");
    EXPECT_EQ(page.refusal({{"action", "save"}}),
              "409 the design has no file yet; name one to save it in");
    const Json refused = page.act({{"action", "open"}, {"file", nullptr}});
    EXPECT_EQ(refused.value("changed", false), true) << refused.dump();
}

TEST_F(ServedPages, DataFolderBehindALinkNamesItsFiles) {
    const std::filesystem::path real = folder.path() / "real";
    std::filesystem::create_directories(real / "Local");
    std::filesystem::create_directory_symlink(real, folder.path() / "linked");
    std::filesystem::rename(host::fromUtf8(design(kSmallDesign)), real / "Local/sample.json");
    program = std::make_unique<ServedProgram>(
        std::vector<std::string>{path("linked/Local/sample.json"), "--data", path("linked")});
    ASSERT_NE(program->port(), 0);
    PageClient page(*program);

    EXPECT_EQ(page.state()["document"]["file"], "Local/sample.json");
    EXPECT_EQ(page.state()["document"]["data"], host::toUtf8(std::filesystem::canonical(real)));
    EXPECT_EQ(page.act({{"action", "open"}, {"file", "Local/sample.json"}})["ok"], true);
    EXPECT_EQ(page.state()["document"]["saveAs"], "Local/sample.json");
}

TEST_F(ServedPages, DataHomeHasTheProjects) {
    program = std::make_unique<ServedProgram>(
        std::vector<std::string>{design(kSmallDesign), "--data-home", path("own home")});
    ASSERT_NE(program->port(), 0);
    const PageClient page(*program);

    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "own home/Projects/Local"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "data/tarnix-workbench"));
}

TEST_F(ServedPages, ClientThatReadsNothingDoesNotDisturbOthers) {
    serve();
    RawConnection silent(program->port());
    const ServedProgram::Secrets secrets = program->secrets();
    silent.send("GET /events?key=" + secrets.key + " HTTP/1.1\r\nHost: 127.0.0.1:" +
                std::to_string(program->port()) + "\r\nCookie: " + secrets.cookie + "\r\n\r\n");
    PageClient page(*program);

    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(page.act(press(kBom))["ok"], true);
        ASSERT_EQ(page.act({{"action", "cancel"}})["ok"], true);
    }

    EXPECT_EQ(page.state()["dialog"], nullptr);
}

TEST_F(ServedPages, MoreThanSixteenAreRefused) {
    serve();
    std::vector<std::unique_ptr<PageClient>> pages;
    for (int i = 0; i < 16; ++i) {
        pages.push_back(std::make_unique<PageClient>(*program));
    }
    httplib::Client client("127.0.0.1", program->port());

    const ServedProgram::Secrets secrets = program->secrets();
    const auto response = client.Get("/events?key=" + secrets.key, {{"Cookie", secrets.cookie}});

    ASSERT_TRUE(response);
    EXPECT_EQ(response->status, 503);
}

}  // namespace
}  // namespace test_support
