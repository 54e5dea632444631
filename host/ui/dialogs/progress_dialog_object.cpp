#include "host/ui/dialogs/progress_dialog_object.h"

#include "host/base/host_state.h"

#include <algorithm>
#include <cstdint>

namespace host::ui {
namespace {

/// `text` with a number in each place of "%" and `sign`.
void fillIn(std::string& text, char sign, int number) {
    const std::string place = {'%', sign};
    const std::string digits = std::to_string(number);
    std::size_t at = text.find(place);
    while (at != std::string::npos) {
        text.replace(at, place.size(), digits);
        at = text.find(place, at + digits.size());
    }
}

int percent(int value, int minimum, int maximum) {
    constexpr std::int64_t kWhole = 100;
    const std::int64_t range = std::int64_t{maximum} - minimum;
    return range <= 0 ? 0 : static_cast<int>((std::int64_t{value} - minimum) * kWhole / range);
}

}  // namespace

ProgressDialogObject* newestProgressDialog() {
    const auto* all = HostState::currentPart<ProgressDialogs>();
    if (all == nullptr) return nullptr;
    const auto found = std::find_if(all->held.rbegin(), all->held.rend(),
                                    [](const auto* each) { return !each->isHidden(); });
    return found == all->held.rend() ? nullptr : *found;
}

void endLongWaits() {
    const auto* all = HostState::currentPart<ProgressDialogs>();
    if (all == nullptr) return;
    for (ProgressDialogObject* each : all->held) {
        if (clock::now() - each->madeAt() >= all->longestWait) {
            each->cancel();
        }
    }
}

ProgressDialogObject::ProgressDialogObject() {
    if (auto* all = HostState::currentPart<ProgressDialogs>()) {
        all->held.push_back(this);
    }
}

// A module may hold the dialog for longer than its host lives, and into the next one.
ProgressDialogObject::~ProgressDialogObject() {
    if (auto* all = HostState::currentPart<ProgressDialogs>()) {
        std::erase(all->held, this);
    }
}

Progress ProgressDialogObject::seen() const {
    Progress seen = {message_, value_, cancelButtonShown_ ? cancelButtonText_ : "", cancelled_,
                     translucent_};
    fillIn(seen.text, 'v', value_);
    fillIn(seen.text, 'm', maximum_);
    fillIn(seen.text, 'p', percent(value_, minimum_, maximum_));
    return seen;
}

bool ProgressDialogObject::hide() {
    if (closed<"hide">(*this)) return {};
    hidden_ = true;
    return true;
}

bool ProgressDialogObject::show(const std::string& /*title*/, const std::string& message,
                                int minimumValue, int maximumValue, int /*delay*/) {
    if (closed<"show">(*this)) return {};
    message_ = message;
    minimum_ = minimumValue;
    maximum_ = maximumValue;
    value_ = minimumValue;
    hidden_ = false;
    return true;
}

}  // namespace host::ui
