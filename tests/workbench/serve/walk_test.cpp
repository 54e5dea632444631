#include "tests/support/addin_test.h"
#include "tests/workbench/serve/page_client.h"
#include "tests/workbench/workbench_fixture.h"

#include "host/session/dialog_view.h"
#include "host/session/session.h"

#include <random>
#include <stdexcept>

/// A user who acts at random on the page, and the same actions through a session: what the design,
/// the settings and the export are then does not depend on the way.
namespace test_support {
namespace {

constexpr const char* kAssembly = R"(
    Gearbox
      Housing  box=10x8x6 material=Iron:0.0072
      Shaft assembly
        Shaft  box=2x2x12 material=Steel:0.00785
        Key  box=1x1x3 material=Steel:0.00785
        Key
      Bolt  box=1x1x4 material=Steel:0.00785
      Bolt
    Cover  box=10x8x1 material=Iron:0.0072
    Bolt)";

/// What the page's user may do with one input that shows.
void addActionsOn(Json& actions, const Json& input) {
    if (!input.value("visible", false) || !input.value("enabled", false)) return;
    const std::string kind = input["kind"];
    const Json key = input["key"];
    if (kind == "DropDown" || kind == "ButtonRow" || kind == "RadioButtonGroup") {
        const std::size_t count = input["items"].size();
        for (std::size_t item = 0; item < std::min<std::size_t>(count, 4); ++item) {
            actions.push_back({{"action", "choose"}, {"input", key}, {"item", item}});
        }
    } else if ((kind == "StringValue" || kind == "TextBox") && !input.value("readOnly", false)) {
        for (const char* const text : {"P-7", "", "12.5", "\xC5\xA1roub \"a\""}) {
            actions.push_back({{"action", "paste"}, {"input", key}, {"text", text}});
        }
        actions.push_back({{"action", "type"}, {"input", key}, {"text", "ab"}});
    } else if (kind != "Table" && kind != "Image") {
        actions.push_back({{"action", "click"}, {"input", key}});
    }
}

/// Whether a cell is in a column that has a width.
bool isShown(const Json& table, const Json& cell) {
    const Json& columns = table["shownColumns"];
    return std::ranges::find(columns, cell["column"]) != columns.end();
}

void addActionsIn(Json& actions, const Json& inputs) {
    for (const Json& each : inputs) {
        const std::string kind = each["kind"];
        if (kind == "Tab") {
            actions.push_back({{"action", "activateTab"}, {"input", each["key"]}});
            if (each.value("active", false)) addActionsIn(actions, each["inputs"]);
        } else if (kind == "Group") {
            addActionsIn(actions, each["inputs"]);
        } else if (kind == "Table") {
            addActionsIn(actions, each["toolbar"]);
            for (const Json& row : each["window"]["order"]) {
                for (const Json& cell : each["window"]["rows"][to_string(row)]["cells"]) {
                    if (isShown(each, cell)) addActionsOn(actions, cell);
                }
                actions.push_back({{"action", "selectRow"}, {"input", each["key"]}, {"row", row}});
            }
        } else {
            addActionsOn(actions, each);
        }
    }
}

/// The next action of a user who sees this state.
Json nextAction(const Json& state, std::mt19937& random) {
    const auto pick = [&random](const Json& list) { return list[random() % list.size()]; };
    const Json commands = {"QM_TX_BOM", "QEMA_EditPropertiesCmd", "QM_TX_moveComponentToOrigin",
                           "QM_TX_BOM"};
    const Json paths = {
        "",       "Gearbox:1", "Gearbox:1+Housing:1", "Gearbox:1+Shaft assembly:1+Key:2",
        "Bolt:3", "Cover:1"};
    if (state["dialog"].is_null() || random() % 40 == 0) {
        return {{"action", "press"}, {"command", pick(commands)}};
    }
    if (random() % 15 == 0) return {{"action", "ok"}};
    if (random() % 10 == 0) return {{"action", "pick"}, {"path", pick(paths)}};
    Json actions = Json::array({{{"action", "cancel"}}});
    addActionsIn(actions, state["dialog"]["inputs"]);
    return pick(actions);
}

void actOnInput(const Json& action) {
    const std::string name = action["action"];
    const auto input = host::inputOfKey(action["input"].get<std::uint32_t>());
    if (name == "click") {
        host::click(input);
    } else if (name == "paste") {
        host::pasteText(input, action["text"]);
    } else if (name == "type") {
        host::typeText(input, action["text"]);
    } else if (name == "choose") {
        host::chooseItem(input, action["item"].get<std::size_t>());
    } else if (name == "activateTab") {
        host::activateTab(input);
    } else {
        host::selectRow(input, action["row"].get<int>());
    }
}

/// The same action through a session; returns why it was refused.
std::string actDirectly(host::Session& session, const Json& action) {
    const std::string name = action["action"];
    try {
        if (name == "press") {
            session.press(action["command"]);
        } else if (name == "pick") {
            session.pick(action["path"]);
        } else if (name == "ok") {
            session.ok();
        } else if (name == "cancel") {
            session.cancel();
        } else {
            actOnInput(action);
        }
        return "";
    } catch (const std::runtime_error& refusal) {
        return refusal.what();
    }
}

/// What a walk leaves.
struct Traces {
    std::string design;
    std::string settings;
    std::string exported;

    bool operator==(const Traces&) const = default;
};

Traces tracesIn(const std::filesystem::path& design, const std::filesystem::path& addin) {
    const auto bytesOf = [](const std::filesystem::path& file) {
        return std::filesystem::exists(file) ? readFile(file) : "none";
    };
    return {.design = bytesOf(design),
            .settings = bytesOf(addin / "Tarnix_configuration.xml"),
            .exported = bytesOf(addin / "TarnixBOM.csv")};
}

class Walk : public Workbench, public testing::WithParamInterface<unsigned> {
protected:
    /// Walks on a page, and notes each action and why it was refused.
    Traces walkOnPage(const std::string& file) {
        ServedProgram program({file});
        PageClient page(program);
        std::mt19937 random(GetParam());
        constexpr int kActions = 200;
        for (int i = 0; i < kActions; ++i) {
            Json action = nextAction(page.state(), random);
            const Json answer = page.act(action);
            steps.push_back({{"action", action}, {"refusal", answer.value("error", "")}});
        }
        EXPECT_EQ(page.act({{"action", "save"}, {"file", "Local/walked.json"}})["ok"], true);
        EXPECT_EQ(program.stop(), 0);
        return tracesIn(folder.path() / "data/tarnix-workbench/Projects/Local/walked.json",
                        addinCopy());
    }

    Traces walkDirectly(const std::string& file) {
        host::Session session(addinOptions());
        session.open(host::fromUtf8(file));
        session.run();
        for (const Json& each : steps) {
            EXPECT_EQ(actDirectly(session, each["action"]), each["refusal"]) << each.dump();
        }
        const std::filesystem::path saved = folder.path() / "walked.json";
        session.save(saved);
        return tracesIn(saved, session.addin().folder);
    }

    Json steps = Json::array();
};

TEST_P(Walk, LeavesTheSameOnThePageAndThroughTheSession) {
    const std::string file = design(kAssembly);

    const Traces onPage = walkOnPage(file);
    const Traces directly = walkDirectly(file);

    EXPECT_EQ(onPage.design, directly.design);
    EXPECT_EQ(onPage.settings, directly.settings);
    EXPECT_EQ(onPage.exported, directly.exported);
    EXPECT_NE(onPage.design, readFile(host::fromUtf8(file)));
    const auto refused =
        std::ranges::count_if(steps, [](const Json& each) { return each["refusal"] != ""; });
    EXPECT_LT(refused, 100);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Walk, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace test_support
