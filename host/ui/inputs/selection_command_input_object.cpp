#include "host/ui/inputs/selection_command_input_object.h"

#include "host/base/last_error.h"
#include "host/ui/commands/command_object.h"
#include "host/ui/inputs/selection_filters.h"
#include "host/ui/user_interface_object.h"

#include <algorithm>
#include <limits>

namespace host::ui {

std::size_t SelectionCommandInputObject::selectionCount() const {
    if (closed<"selectionCount">(*this)) return {};
    return picks_.count();
}

core::Ptr<core::Selection> SelectionCommandInputObject::selection(std::size_t index) const {
    if (closed<"selection">(*this)) return {};
    return picks_.at(index);
}

bool SelectionCommandInputObject::addSelection(const core::Ptr<core::Base>& selection) {
    constexpr const char* kOperation = "SelectionCommandInput::addSelection";
    if (closed<"addSelection">(*this)) return {};
    if (!command()->state().shown) {
        return misuse(kOperation, "nothing can be selected while the command is being created");
    }
    if (!selection || !accepts(selection)) {
        return fail(core::OperationFailed, std::string(kOperation) + ": the filters exclude it");
    }
    if (!picks_.holds(selection)) {
        if (isFull()) {
            return fail(core::OperationFailed,
                        std::string(kOperation) + ": the maximum is reached");
        }
        take(selection);
        changedByCode();
    }
    return true;
}

bool SelectionCommandInputObject::clearSelection() {
    if (closed<"clearSelection">(*this)) return {};
    if (picks_.count() > 0) {
        dropAll();
        changedByCode();
    }
    return true;
}

bool SelectionCommandInputObject::addSelectionFilter(const std::string& filter) {
    if (closed<"addSelectionFilter">(*this)) return {};
    if (!isSelectionFilter(filter)) {
        return misuse("SelectionCommandInput::addSelectionFilter",
                      "unknown filter \"" + filter + "\"");
    }
    state_.filters.push_back(filter);
    return true;
}

bool SelectionCommandInputObject::clearSelectionFilter() {
    if (closed<"clearSelectionFilter">(*this)) return {};
    state_.filters.clear();
    return true;
}

bool SelectionCommandInputObject::setSelectionLimits(std::size_t minimum, std::size_t maximum) {
    if (closed<"setSelectionLimits">(*this)) return {};
    if (maximum != 0 && maximum < minimum) {
        return misuse("SelectionCommandInput::setSelectionLimits",
                      "the maximum is less than the minimum");
    }
    state_.minimum = minimum;
    state_.maximum = maximum;
    return true;
}

bool SelectionCommandInputObject::hasFocus() const {
    if (closed<"hasFocus">(*this)) return {};
    return isFocused();
}

bool SelectionCommandInputObject::hasFocus(bool value) {
    if (closed<"hasFocus">(*this)) return {};
    if (value && !visible) {
        return fail(core::OperationFailed, "SelectionCommandInput::hasFocus: the input is hidden");
    }
    changeFocus(value);
    return true;
}

bool SelectionCommandInputObject::isEnabled() const {
    if (closed<"CommandInput::isEnabled">(*this)) return {};
    return isFocused();
}

bool SelectionCommandInputObject::isEnabled(bool value) {
    if (closed<"CommandInput::isEnabled">(*this)) return {};
    changeFocus(value);
    return true;
}

bool SelectionCommandInputObject::isFocused() const { return command()->focus() == this; }

void SelectionCommandInputObject::changeFocus(bool value) {
    if (value) {
        command()->focus(this);
    } else if (isFocused()) {
        command()->focus(nullptr);
    }
}

void SelectionCommandInputObject::dispose() {
    picks_.clear();
    CommandInputObject::dispose();
}

// An input that is not shown must not keep a selection that the user cannot see or change.
void SelectionCommandInputObject::visibilityChanged() {
    if (!visible) {
        dropAll();
    }
}

bool SelectionCommandInputObject::accepts(const core::Ptr<core::Base>& entity) const {
    return state_.filters.empty() ||
           std::any_of(state_.filters.begin(), state_.filters.end(), [&](const std::string& each) {
               return passesFilter(entity, each, command()->ui());
           });
}

std::size_t SelectionCommandInputObject::maximum() const {
    return state_.maximum == 0 ? std::numeric_limits<std::size_t>::max() : state_.maximum;
}

SelectionList& SelectionCommandInputObject::activeSelections() const {
    return command()->ui().state().selections->list;
}

void SelectionCommandInputObject::take(const core::Ptr<core::Base>& entity, const Place& place) {
    picks_.add(entity, place);
    activeSelections().add(entity, place);
}

void SelectionCommandInputObject::drop(const core::Ptr<core::Base>& entity) {
    picks_.remove(entity);
    activeSelections().remove(entity);
}

void SelectionCommandInputObject::dropAll() {
    for (const core::Ptr<core::Base>& each : picks_.entities()) {
        activeSelections().remove(each);
    }
    picks_.clear();
}

}  // namespace host::ui
