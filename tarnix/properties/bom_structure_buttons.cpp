#include "tarnix/properties/bom_structure_buttons.h"

#include <cstddef>
#include <iterator>
#include <vector>

namespace tarnix {

using namespace adsk::core;

namespace {

std::vector<std::string> captionsThatAreOn(const Ptr<ListItems>& buttons) {
    std::vector<std::string> captions;
    const std::size_t count = buttons->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<ListItem> button = buttons->item(i);
        if (button->isSelected()) {
            captions.push_back(captionOf(button, i));
        }
    }
    return captions;
}

/// Switches `before` off, if it is among `captions`, and returns the last of the others.
std::string switchOff(const Ptr<ListItems>& buttons, const std::vector<std::string>& captions,
                      const std::string& before) {
    std::string choice;
    auto next = captions.begin();
    const std::size_t count = buttons->count();
    for (std::size_t i = 0; i < count && next != captions.end(); ++i) {
        const Ptr<ListItem> button = buttons->item(i);
        if (captionOf(button, i) != *next) {
            continue;
        }
        if (*next == before) {
            button->isSelected(false);
        } else {
            choice = *next;
        }
        ++next;
    }
    return choice;
}

}  // namespace

std::string captionOf(const Ptr<ListItem>& button, std::size_t place) {
    const std::string name = button->name();
    return name.empty() && place < std::size(kStructureButtons) ? kStructureButtons[place].caption
                                                                : name;
}

void loadBomStructure(const Ptr<ButtonRowCommandInput>& row, const ComponentProperties& properties,
                      std::string& selected) {
    const Ptr<ListItems> buttons = row->listItems();
    bool isAnyOn = false;
    const std::size_t count = buttons->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<ListItem> button = buttons->item(i);
        const std::string caption = captionOf(button, i);
        const bool isOn = findProperty(properties, caption) == "1";
        button->isSelected(isOn);
        if (isOn) {
            selected = caption;
            isAnyOn = true;
        }
    }
    if (!isAnyOn) {
        selected.clear();
    }
}

void keepOneBomStructure(const Ptr<ButtonRowCommandInput>& row, std::string& selected) {
    const Ptr<ListItems> buttons = row->listItems();
    const std::vector<std::string> captions = captionsThatAreOn(buttons);
    if (captions.size() == 1) {
        selected = captions.front();
    } else if (captions.size() == 2) {
        selected = switchOff(buttons, captions, selected);
    }
}

}  // namespace tarnix
