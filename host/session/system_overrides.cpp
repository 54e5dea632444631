#include "host/session/system_overrides.h"

#include "host/base/clock.h"
#include "host/base/host_state.h"
#include "host/session/environment.h"
#include "host/ui/dialogs/messages.h"

#include <StandIn/Process.h>

#include <algorithm>
#include <utility>

namespace host::system_overrides {
namespace {

/// A part of the host's state.
struct State {
    State() = default;
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() {
        if (overrides && overrides->consoleMayHide && consoleHidings > 0) {
            environment::showConsole();
        }
    }

    std::optional<SystemOverrides> overrides;
    std::vector<int> sleeps;
    int consoleHidings = 0;
};

/// The state of a session that answers, null where everything is left to the system.
State* answering() {
    auto* state = HostState::currentPart<State>();
    return state != nullptr && state->overrides ? state : nullptr;
}

/// A member of the overrides; as it is by default where everything is left to the system.
template <class Member>
Member overriding(Member SystemOverrides::*member) {
    const State* state = answering();
    return state == nullptr ? Member() : (*state->overrides).*member;
}

StandInAnswer answerWith(const ScreenRectangle& rectangle, StandInArea* area) {
    *area = {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
    return StandInAnswer::Done;
}

adsk::core::MessageBoxIconTypes iconOf(unsigned style) {
    constexpr unsigned kError = 16;
    constexpr unsigned kInformation = 64;
    switch (style) {
        case kError:
            return adsk::core::CriticalIconType;
        case kInformation:
            return adsk::core::InformationIconType;
        default:
            return adsk::core::NoIconIconType;
    }
}

}  // namespace

void set(SystemOverrides overrides) {
    HostState::required().part<State>().overrides = std::move(overrides);
}

const std::vector<int>& sleeps() { return HostState::required().part<State>().sleeps; }

int consoleHidings() { return HostState::required().part<State>().consoleHidings; }

}  // namespace host::system_overrides

using host::SystemOverrides;
using host::system_overrides::answering;
using host::system_overrides::overriding;

StandInAnswer standin_sleep(int milliseconds) {
    auto* state = answering();
    if (state == nullptr) {
        return StandInAnswer::NotHandled;
    }
    state->sleeps.push_back(milliseconds);
    host::clock::advance(std::chrono::milliseconds(milliseconds));
    return state->overrides->sleepTakesTime ? StandInAnswer::NotHandled : StandInAnswer::Done;
}

StandInAnswer standin_messageBox(const char* text, const char* title, unsigned style) {
    if (answering() == nullptr) {
        return StandInAnswer::NotHandled;
    }
    host::Message message;
    message.text = text;
    message.title = title;
    message.icon = host::system_overrides::iconOf(style);
    host::ui::showMessage(std::move(message));
    return StandInAnswer::Done;
}

StandInAnswer standin_hideConsole() {
    auto* state = answering();
    if (state == nullptr) {
        return StandInAnswer::NotHandled;
    }
    ++state->consoleHidings;
    return state->overrides->consoleMayHide ? StandInAnswer::NotHandled : StandInAnswer::Done;
}

StandInAnswer standin_virtualScreen(StandInArea* area) {
    const auto screen = overriding(&SystemOverrides::screen);
    return screen ? host::system_overrides::answerWith(*screen, area) : StandInAnswer::NotHandled;
}

StandInAnswer standin_visitWindows(StandInWindowVisitor visit, void* context) {
    // A copy: the visitor may set other overrides.
    const auto windows = overriding(&SystemOverrides::windows);
    if (!windows) {
        return StandInAnswer::NotHandled;
    }
    for (const host::WindowShown& window : *windows) {
        StandInArea area = {};
        host::system_overrides::answerWith(window.inside, &area);
        if (visit(context, window.title.c_str(), &area) == 0) {
            break;
        }
    }
    return StandInAnswer::Done;
}

StandInAnswer standin_cpuid(unsigned leaf, unsigned* registers) {
    const auto processor = overriding(&SystemOverrides::processor);
    if (!processor) {
        return StandInAnswer::NotHandled;
    }
    const std::array<unsigned, 4> values = processor(leaf);
    std::copy(values.begin(), values.end(), registers);
    return StandInAnswer::Done;
}
