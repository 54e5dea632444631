#include "workbench/dialogs/properties_dialog.h"

#include "workbench/cli/exit_code.h"

#include <algorithm>
#include <cstddef>

namespace workbench {
namespace {

using namespace adsk::core;

[[noreturn]] void refuse(const std::string& line) { throw Failure(ExitCode::BadUsage, line); }

std::string buttonsOn(const Ptr<ButtonRowCommandInput>& row) {
    std::string captions;
    for (std::size_t i = 0; i < row->listItems()->count(); ++i) {
        const Ptr<ListItem> item = row->listItems()->item(i);
        if (item->isSelected()) {
            captions += (captions.empty() ? "" : ", ") + item->name();
        }
    }
    return captions;
}

/// What an input shows; false for one that shows no property.
bool readValue(const Ptr<CommandInput>& input, std::string& value) {
    if (const Ptr<StringValueCommandInput> line = input) {
        value = line->value();
    } else if (const Ptr<TextBoxCommandInput> box = input) {
        value = box->text();
    } else if (const Ptr<ButtonRowCommandInput> row = input) {
        value = buttonsOn(row);
    } else {
        return false;
    }
    return true;
}

void switchOn(host::Session& session, const Ptr<ButtonRowCommandInput>& row,
              const std::string& caption) {
    std::string captions;
    bool isThere = caption.empty();
    for (std::size_t i = 0; i < row->listItems()->count(); ++i) {
        const std::string name = row->listItems()->item(i)->name();
        captions += (captions.empty() ? "\"" : ", \"") + name + "\"";
        isThere = isThere || name == caption;
    }
    if (!isThere) {
        refuse("--set \"" + row->name() + "=" + caption + "\": there is only " + captions);
    }
    for (std::size_t i = 0; i < row->listItems()->count(); ++i) {
        const Ptr<ListItem> item = row->listItems()->item(i);
        if (item->isSelected() && item->name() != caption) {
            session.choose(row->id(), item->name());
        }
    }
    if (!caption.empty() && buttonsOn(row) != caption) {
        session.choose(row->id(), caption);
    }
}

}  // namespace

std::vector<ShownProperty> readProperties(const host::Session& session) {
    std::vector<ShownProperty> properties;
    for (const char* group : {"QEMA_properties", "QEMA_customProperties"}) {
        const Ptr<GroupCommandInput> shown = session.input(group);
        const Ptr<CommandInputs> children = shown->children();
        for (std::size_t i = 0; i < children->count(); ++i) {
            const Ptr<CommandInput> input = children->item(i);
            ShownProperty property{input->id(), input->name(), {}};
            if (readValue(input, property.value)) {
                properties.push_back(property);
            }
        }
    }
    return properties;
}

std::string setProperty(host::Session& session, const std::string& name, const std::string& value) {
    const std::vector<ShownProperty> properties = readProperties(session);
    const auto found = std::find_if(
        properties.begin(), properties.end(),
        [&name](const ShownProperty& each) { return each.name == name || each.id == name; });
    if (found == properties.end()) {
        std::string names;
        for (const ShownProperty& each : properties) {
            names += (names.empty() ? "\"" : ", \"") + each.name + "\"";
        }
        refuse("--set \"" + name + "\": there is no such property, only " + names);
    }
    if (const Ptr<ButtonRowCommandInput> row = session.input(found->id)) {
        switchOn(session, row, value);
    } else {
        session.paste(found->id, value);
    }
    return found->id;
}

}  // namespace workbench
