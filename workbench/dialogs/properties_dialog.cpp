#include "workbench/dialogs/properties_dialog.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/list_items.h"
#include "workbench/output/display_text.h"

#include <algorithm>
#include <cstddef>

namespace workbench {
namespace {

using namespace adsk::core;

std::string captionsOfButtonsOn(const Ptr<ButtonRowCommandInput>& row) {
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
        value = captionsOfButtonsOn(row);
    } else {
        return false;
    }
    return true;
}

void checkCaption(const Ptr<ButtonRowCommandInput>& row, const std::string& caption) {
    const std::vector<std::string> captions = itemNames(row->listItems());
    if (!caption.empty() && std::ranges::find(captions, caption) == captions.end()) {
        refuse("--set \"" + row->name() + "=" + caption +
               "\": no such choice; available: " + quoted(captions));
    }
}

void switchOn(host::Session& session, const Ptr<ButtonRowCommandInput>& row,
              const std::string& caption) {
    checkCaption(row, caption);
    for (std::size_t i = 0; i < row->listItems()->count(); ++i) {
        const Ptr<ListItem> item = row->listItems()->item(i);
        if (item->isSelected() && item->name() != caption) {
            session.choose(row->id(), item->name());
        }
    }
    if (!caption.empty() && captionsOfButtonsOn(row) != caption) {
        session.choose(row->id(), caption);
    }
}

PropertyLine findLine(const std::vector<PropertyLine>& lines, const std::string& name) {
    const auto found = std::ranges::find_if(
        lines, [&name](const PropertyLine& each) { return each.name == name || each.id == name; });
    if (found == lines.end()) {
        std::vector<std::string> names(lines.size());
        std::ranges::transform(lines, names.begin(), &PropertyLine::name);
        refuse("--set \"" + name + "\": no such property; available: " + quoted(names));
    }
    return *found;
}

}  // namespace

std::vector<PropertyLine> readProperties(const host::Session& session) {
    std::vector<PropertyLine> lines;
    for (const char* const id : kPropertyGroups) {
        const Ptr<GroupCommandInput> group = session.input(id);
        const Ptr<CommandInputs> children = group->children();
        for (std::size_t i = 0; i < children->count(); ++i) {
            const Ptr<CommandInput> input = children->item(i);
            PropertyLine line{.id = input->id(), .name = input->name(), .value = {}};
            if (readValue(input, line.value)) {
                lines.push_back(line);
            }
        }
    }
    return lines;
}

std::string setProperty(host::Session& session, const std::string& name, const std::string& value) {
    const PropertyLine line = findLine(readProperties(session), name);
    if (const Ptr<ButtonRowCommandInput> row = session.input(line.id)) {
        switchOn(session, row, value);
    } else {
        session.paste(line.id, value);
    }
    return line.id;
}

}  // namespace workbench
