#include "host/ui/inputs/selection_input.h"

#include "host/base/last_error.h"
#include "host/ui/commands/command.h"
#include "host/ui/inputs/selection_filters.h"
#include "host/ui/user_interface.h"

#include <algorithm>
#include <limits>

namespace host::ui {

std::size_t SelectionCommandInputObject::selectionCount() const {
    if (closed<"SelectionCommandInput::selectionCount">(*this)) return {};
    return picks_.count();
}

core::Ptr<core::Selection> SelectionCommandInputObject::selection(std::size_t index) const {
    if (closed<"SelectionCommandInput::selection">(*this)) return {};
    return picks_.at(index);
}

bool SelectionCommandInputObject::addSelection(const core::Ptr<core::Base>& selection) {
    constexpr const char* kOperation = "SelectionCommandInput::addSelection";
    if (closed<"SelectionCommandInput::addSelection">(*this)) return {};
    if (!command()->isShown()) {
        return misuse(kOperation, "nothing can be selected while the command is being created");
    }
    if (!selection || !accepts(selection)) {
        return fail(core::OperationFailed, std::string(kOperation) + ": the filters refuse it");
    }
    if (!picks_.holds(selection)) {
        if (isFull()) {
            return fail(core::OperationFailed, std::string(kOperation) + ": the limit is reached");
        }
        take(selection);
        changedByCode();
    }
    return true;
}

bool SelectionCommandInputObject::clearSelection() {
    if (closed<"SelectionCommandInput::clearSelection">(*this)) return {};
    if (picks_.count() > 0) {
        dropAll();
        changedByCode();
    }
    return true;
}

bool SelectionCommandInputObject::addSelectionFilter(const std::string& filter) {
    if (closed<"SelectionCommandInput::addSelectionFilter">(*this)) return {};
    if (!isSelectionFilter(filter)) {
        return misuse("SelectionCommandInput::addSelectionFilter",
                      "there is no filter \"" + filter + "\"");
    }
    filters_.push_back(filter);
    return true;
}

bool SelectionCommandInputObject::clearSelectionFilter() {
    if (closed<"SelectionCommandInput::clearSelectionFilter">(*this)) return {};
    filters_.clear();
    return true;
}

bool SelectionCommandInputObject::setSelectionLimits(std::size_t minimum, std::size_t maximum) {
    if (closed<"SelectionCommandInput::setSelectionLimits">(*this)) return {};
    if (maximum != 0 && maximum < minimum) {
        return misuse("SelectionCommandInput::setSelectionLimits",
                      "the maximum lies below the minimum");
    }
    minimum_ = minimum;
    maximum_ = maximum;
    return true;
}

bool SelectionCommandInputObject::hasFocus() const {
    if (closed<"SelectionCommandInput::hasFocus">(*this)) return {};
    return focused();
}

bool SelectionCommandInputObject::hasFocus(bool value) {
    if (closed<"SelectionCommandInput::hasFocus">(*this)) return {};
    focus(value);
    return true;
}

bool SelectionCommandInputObject::isEnabled() const {
    if (closed<"CommandInput::isEnabled">(*this)) return {};
    return focused();
}

bool SelectionCommandInputObject::isEnabled(bool value) {
    if (closed<"CommandInput::isEnabled">(*this)) return {};
    focus(value);
    return true;
}

bool SelectionCommandInputObject::focused() const { return command()->focus() == this; }

void SelectionCommandInputObject::focus(bool value) {
    if (value) {
        command()->focus(this);
    } else if (focused()) {
        command()->focus(nullptr);
    }
}

void SelectionCommandInputObject::retire() {
    picks_.clear();
    CommandInputObject::retire();
}

// An input that is not shown cannot keep what nobody could see selected.
void SelectionCommandInputObject::visibilityChanged() {
    if (!visible) {
        dropAll();
    }
}

bool SelectionCommandInputObject::accepts(const core::Ptr<core::Base>& entity) const {
    return filters_.empty() ||
           std::any_of(filters_.begin(), filters_.end(), [&](const std::string& each) {
               return passesFilter(entity, each, command()->ui());
           });
}

std::size_t SelectionCommandInputObject::maximum() const {
    return maximum_ == 0 ? std::numeric_limits<std::size_t>::max() : maximum_;
}

SelectionList& SelectionCommandInputObject::activeSelections() const {
    return command()->ui().selections().list;
}

void SelectionCommandInputObject::take(const core::Ptr<core::Base>& entity) {
    picks_.add(entity);
    activeSelections().add(entity);
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
