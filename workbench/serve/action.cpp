#include "workbench/serve/action.h"

#include "workbench/serve/json.h"
#include "workbench/serve/protocol_error.h"

#include <algorithm>
#include <limits>

namespace workbench::serve {
namespace {

constexpr std::size_t kMostRows = 500;
constexpr std::size_t kMostNames = 200'000;
constexpr int kMostPixels = 100'000;

[[noreturn]] void refuseMember(const std::string& name, const std::string& expected) {
    throw ProtocolError(kBadRequest, "the member \"" + name + "\" has to be " + expected);
}

/// A text of the user's; none contains a zero byte, at which the system would cut it off.
std::string textIn(const Json& value, const std::string& name) {
    if (!value.is_string()) {
        refuseMember(name, "a string");
    }
    std::string text = value.get<std::string>();
    if (text.find('\0') != std::string::npos) {
        refuseMember(name, "a string without a zero character");
    }
    return text;
}

/// The members of one action's object.
class Members {
public:
    explicit Members(const Json& object) : object_(object) {}

    [[nodiscard]] const Json& at(const std::string& name) const {
        const auto found = object_.find(name);
        if (found == object_.end()) {
            throw ProtocolError(kBadRequest, "the member \"" + name + "\" is missing");
        }
        return *found;
    }

    [[nodiscard]] std::string text(const std::string& name) const { return textIn(at(name), name); }

    [[nodiscard]] std::int64_t number(const std::string& name, std::int64_t least,
                                      std::int64_t most) const {
        const Json& value = at(name);
        const bool fits = value.is_number_integer() &&
                          (!value.is_number_unsigned() ||
                           value.get<std::uint64_t>() <= static_cast<std::uint64_t>(most));
        if (!fits || value.get<std::int64_t>() < least || value.get<std::int64_t>() > most) {
            refuseMember(name, "a whole number from " + std::to_string(least) + " to " +
                                   std::to_string(most));
        }
        return value.get<std::int64_t>();
    }

    [[nodiscard]] int integer(const std::string& name, int least = 0,
                              int most = std::numeric_limits<int>::max()) const {
        return static_cast<int>(number(name, least, most));
    }

    [[nodiscard]] std::vector<std::string> texts(const std::string& name) const {
        const Json& value = at(name);
        if (!value.is_array() || value.size() > kMostNames) {
            refuseMember(name, "an array of strings");
        }
        std::vector<std::string> all;
        for (const Json& each : value) {
            all.push_back(textIn(each, name));
        }
        return all;
    }

    [[nodiscard]] bool has(const std::string& name) const {
        const auto found = object_.find(name);
        return found != object_.end() && !found->is_null();
    }

    [[nodiscard]] bool flag(const std::string& name) const {
        if (!has(name)) {
            return false;
        }
        if (!at(name).is_boolean()) {
            refuseMember(name, "true or false");
        }
        return at(name).get<bool>();
    }

    [[nodiscard]] InputName input() const {
        if (at("input").is_string()) {
            return text("input");
        }
        if (!at("input").is_number_integer()) {
            refuseMember("input", "the key or the id of an input");
        }
        return static_cast<std::uint32_t>(
            number("input", 0, std::numeric_limits<std::uint32_t>::max()));
    }

    [[nodiscard]] ItemName item() const {
        if (at("item").is_string()) {
            return text("item");
        }
        if (!at("item").is_number_integer()) {
            refuseMember("item", "the name or the number of an item");
        }
        return static_cast<std::size_t>(integer("item"));
    }

private:
    const Json& object_;
};

void readNothing(Action& /*action*/, const Members& /*members*/) {}

void readInput(Action& action, const Members& members) { action.input = members.input(); }

void readTyped(Action& action, const Members& members) {
    action.input = members.input();
    action.text = members.text("text");
}

void readChoice(Action& action, const Members& members) {
    action.input = members.input();
    action.item = members.item();
}

void readRow(Action& action, const Members& members) {
    action.input = members.input();
    action.row = members.integer("row");
}

void readView(Action& action, const Members& members) {
    action.input = members.input();
    action.from = static_cast<std::size_t>(members.integer("from"));
    action.count =
        static_cast<std::size_t>(members.integer("count", 0, static_cast<int>(kMostRows)));
}

void readSize(Action& action, const Members& members) {
    action.width = members.integer("width", 1, kMostPixels);
    action.height = members.integer("height", 1, kMostPixels);
}

void readAnswer(Action& action, const Members& members) {
    action.id = members.integer("id");
    action.text = members.text("answer");
}

void readFiles(Action& action, const Members& members) {
    action.id = members.integer("id");
    if (!members.at("files").is_null()) {
        action.files = members.texts("files");
    }
    action.replace = members.flag("replace");
}

void readFile(Action& action, const Members& members) {
    if (members.has("file")) {
        action.file = members.text("file");
    }
    action.replace = members.flag("replace");
    action.discard = members.flag("discard");
}

/// How the members of a kind are read.
struct Reading {
    const char* name;
    ActionKind kind;
    void (*read)(Action& action, const Members& members);
};

constexpr Reading kReadings[] = {
    {"press", ActionKind::Press, [](Action& a, const Members& m) { a.text = m.text("command"); }},
    {"click", ActionKind::Click, readInput},
    {"type", ActionKind::Type, readTyped},
    {"paste", ActionKind::Paste, readTyped},
    {"choose", ActionKind::Choose, readChoice},
    {"activateTab", ActionKind::ActivateTab, readInput},
    {"selectRow", ActionKind::SelectRow, readRow},
    {"pick", ActionKind::Pick, [](Action& a, const Members& m) { a.text = m.text("path"); }},
    {"selectInModel", ActionKind::SelectInModel,
     [](Action& a, const Members& m) { a.paths = m.texts("paths"); }},
    {"clear", ActionKind::Clear, readInput},
    {"ok", ActionKind::Ok, readNothing},
    {"cancel", ActionKind::Cancel, readNothing},
    {"resize", ActionKind::Resize, readSize},
    {"workspace", ActionKind::Workspace,
     [](Action& a, const Members& m) { a.text = m.text("id"); }},
    {"closePalette", ActionKind::ClosePalette,
     [](Action& a, const Members& m) { a.text = m.text("id"); }},
    {"markingMenu", ActionKind::MarkingMenu, readNothing},
    {"answerMessage", ActionKind::AnswerMessage, readAnswer},
    {"answerFile", ActionKind::AnswerFile, readFiles},
    {"cancelProgress", ActionKind::CancelProgress, readNothing},
    {"view", ActionKind::View, readView},
    {"open", ActionKind::Open, readFile},
    {"save", ActionKind::Save, readFile},
    {"reloadAddin", ActionKind::ReloadAddin, readNothing},
};

const Reading& readingOf(const std::string& name) {
    const auto* const found =
        std::ranges::find_if(kReadings, [&name](const Reading& each) { return name == each.name; });
    if (found != std::end(kReadings)) {
        return *found;
    }
    std::string known;
    for (const Reading& each : kReadings) {
        known += (known.empty() ? "" : ", ") + std::string(each.name);
    }
    throw ProtocolError(kBadRequest, "no such action; there are " + known);
}

/// An action has members and lists in them. What is nested deeper is none, and is not read on.
bool isShallow(int depth, Json::parse_event_t /*event*/, Json& /*value*/) {
    constexpr int kDeepest = 8;
    if (depth > kDeepest) {
        throw ProtocolError(kBadRequest, "the body is nested too deeply");
    }
    return true;
}

}  // namespace

Action parseAction(std::string_view body) {
    const Json object = Json::parse(body, isShallow, /*allow_exceptions=*/false);
    if (!object.is_object()) {
        throw ProtocolError(kBadRequest, object.is_discarded()
                                             ? "the body is not valid JSON"
                                             : "the body has to be a JSON object");
    }
    const Members members(object);
    const Reading& reading = readingOf(members.text("action"));
    Action action;
    action.kind = reading.kind;
    action.page = members.integer("page");
    reading.read(action, members);
    return action;
}

}  // namespace workbench::serve
