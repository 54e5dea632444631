#include "tests/tarnix/bom/tabs/bom_tabs_test.h"

namespace tarnix {
namespace {

using namespace adsk::core;

/// More than any row has.
constexpr int kColumns = 16;

std::string items(const Ptr<DropDownCommandInput>& dropDown) {
    std::string all;
    for (std::size_t index = 0; index < dropDown->listItems()->count(); ++index) {
        const Ptr<ListItem> item = dropDown->listItems()->item(index);
        all += (index == 0 ? "" : "/") + std::string(item->isSelected() ? "*" : "") + item->name();
    }
    return all;
}

std::string head(const char* kind, const Ptr<CommandInput>& input) {
    return std::string(kind) + " " + input->id() + " \"" + input->name() + "\"";
}

std::string shownAfter(const std::string& text) { return text.empty() ? "" : " " + text; }

std::string describeButton(const Ptr<BoolValueCommandInput>& button) {
    return head(button->isCheckBox() ? "check box" : "button", button) +
           shownAfter(button->resourceFolder()) + (button->value() ? " on" : " off");
}

/// What the user reads in a cell.
std::string shown(const Ptr<CommandInput>& input) {
    if (const Ptr<StringValueCommandInput> line = input) {
        return line->value();
    }
    if (const Ptr<ImageCommandInput> image = input) {
        return image->imageFile();
    }
    if (const Ptr<DropDownCommandInput> dropDown = input) {
        return items(dropDown);
    }
    return input ? input->name() : "nothing";
}

}  // namespace

std::string describe(const Ptr<CommandInput>& input) {
    std::string all;
    if (const Ptr<BoolValueCommandInput> button = input) {
        all = describeButton(button);
    } else if (const Ptr<StringValueCommandInput> line = input) {
        all = head("text", line) + shownAfter(line->value()) +
              (line->isReadOnly() ? "  read-only" : "");
    } else if (const Ptr<TextBoxCommandInput> box = input) {
        all = head("text box", box) + shownAfter(box->formattedText()) +
              (box->isReadOnly() ? "  read-only" : "");
    } else if (const Ptr<DropDownCommandInput> dropDown = input) {
        all = head("choice", dropDown) + shownAfter(items(dropDown));
    } else if (const Ptr<ImageCommandInput> image = input) {
        all = head("image", image) + shownAfter(image->imageFile());
    } else if (input) {
        all = head("other", input);
    }
    return all + (input && !input->isVisible() ? "  hidden" : "");
}

std::string BomTabsTest::row(const char* table, int index) const {
    std::string all;
    for (int place = 0; place < kColumns; ++place) {
        const Ptr<CommandInput> cell = session->table(table)->getInputAtPosition(index, place);
        if (cell) {
            all += (all.empty() ? "" : "\n") + std::to_string(place) + " " + describe(cell);
        }
    }
    return all;
}

std::string BomTabsTest::ids(const char* table, int index) const {
    std::string all;
    for (int place = 0; place < kColumns; ++place) {
        const Ptr<CommandInput> cell = session->table(table)->getInputAtPosition(index, place);
        all += cell ? " " + cell->id() : "";
    }
    return all;
}

std::string BomTabsTest::column(const char* table, int index) const {
    std::string all;
    for (int place = 1; place < rowCount(table); ++place) {
        all += (place == 1 ? "" : "\n") +
               shown(session->table(table)->getInputAtPosition(place, index));
    }
    return all;
}

std::string BomTabsTest::input(const char* id) const { return describe(session->input(id)); }

int BomTabsTest::rowCount(const char* table) const { return session->table(table)->rowCount(); }

std::string BomTabsTest::ratio(const char* table) const {
    return session->table(table)->columnRatio();
}

std::string BomTabsTest::tabs() const {
    const Ptr<CommandInputs> inputs = session->dialog()->commandInputs();
    std::string all;
    for (std::size_t index = 0; index < inputs->count(); ++index) {
        all += (index == 0 ? "" : "\n") + inputs->item(index)->id() + " \"" +
               inputs->item(index)->name() + "\"";
    }
    return all;
}

}  // namespace tarnix
