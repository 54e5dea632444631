#include "host/ui/dialogs/progress_dialog.h"

#include "host/ui/host_setup.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace host {
namespace {

using Dialogs = std::vector<ui::ProgressDialogObject*>;

/// Those that a module holds, the newest behind. Never destroyed: modules and the host end in
/// either order.
Dialogs& living() {
    static auto* instance = new Dialogs;
    return *instance;
}

double longestWait = HostSetup().longestWait;

ui::ProgressDialogObject* newest() {
    const auto found = std::find_if(living().rbegin(), living().rend(),
                                    [](const auto* each) { return !each->isHidden(); });
    return found == living().rend() ? nullptr : *found;
}

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

std::optional<Progress> progressDialog() {
    const ui::ProgressDialogObject* dialog = newest();
    return dialog == nullptr ? std::nullopt : std::optional(dialog->seen());
}

void cancelProgress() {
    ui::ProgressDialogObject* dialog = newest();
    if (dialog == nullptr) {
        throw MisuseError("nothing is in progress that could be cancelled");
    }
    if (!dialog->hasCancelButton()) {
        throw MisuseError("what is in progress has no button to cancel it");
    }
    dialog->cancel();
}

namespace ui {

void startWaits(double seconds) { longestWait = seconds; }

void endLongWaits() {
    for (ProgressDialogObject* each : living()) {
        if (clock::now() - each->madeAt() >= longestWait) {
            each->cancel();
        }
    }
}

ProgressDialogObject::ProgressDialogObject() { living().push_back(this); }

ProgressDialogObject::~ProgressDialogObject() { std::erase(living(), this); }

Progress ProgressDialogObject::seen() const {
    Progress seen = {message_, value_, cancelButtonShown_ ? cancelButtonText_ : "", cancelled_,
                     translucent_};
    fillIn(seen.text, 'v', value_);
    fillIn(seen.text, 'm', maximum_);
    fillIn(seen.text, 'p', percent(value_, minimum_, maximum_));
    return seen;
}

bool ProgressDialogObject::hide() {
    if (closed<"ProgressDialog::hide">(*this)) return {};
    hidden_ = true;
    return true;
}

bool ProgressDialogObject::show(const std::string& /*title*/, const std::string& message,
                                int minimumValue, int maximumValue, int /*delay*/) {
    if (closed<"ProgressDialog::show">(*this)) return {};
    message_ = message;
    minimum_ = minimumValue;
    maximum_ = maximumValue;
    value_ = minimumValue;
    hidden_ = false;
    return true;
}

}  // namespace ui
}  // namespace host
