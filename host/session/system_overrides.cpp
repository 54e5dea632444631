#include "host/session/system_overrides.h"

#include "host/base/clock.h"
#include "host/session/environment.h"
#include "host/ui/dialogs/messages.h"

#include <StandIn/Process.h>

#include <algorithm>
#include <utility>

namespace host::system_overrides {
namespace {

struct State {
    bool isAnswering = false;
    SystemOverrides answers;
    std::vector<int> sleeps;
    int consoleHidings = 0;
};

// Never destroyed: a module may ask while the process ends.
State& state() {
    static auto* instance = new State;
    return *instance;
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

void start(SystemOverrides answers) {
    state() = {};
    state().isAnswering = true;
    state().answers = std::move(answers);
}

void end() {
    const bool wasHidden = state().answers.consoleMayHide && state().consoleHidings > 0;
    state() = {};
    if (wasHidden) {
        environment::showConsole();
    }
}

const std::vector<int>& sleeps() { return state().sleeps; }

int consoleHidings() { return state().consoleHidings; }

}  // namespace host::system_overrides

using host::system_overrides::state;

StandInAnswer standin_sleep(int milliseconds) {
    if (!state().isAnswering) {
        return StandInAnswer::NotHandled;
    }
    state().sleeps.push_back(milliseconds);
    host::clock::advance(std::chrono::milliseconds(milliseconds));
    return state().answers.sleepTakesTime ? StandInAnswer::NotHandled : StandInAnswer::Done;
}

StandInAnswer standin_messageBox(const char* text, const char* title, unsigned style) {
    if (!state().isAnswering) {
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
    if (!state().isAnswering) {
        return StandInAnswer::NotHandled;
    }
    ++state().consoleHidings;
    return state().answers.consoleMayHide ? StandInAnswer::NotHandled : StandInAnswer::Done;
}

StandInAnswer standin_virtualScreen(StandInArea* area) {
    const auto& screen = state().answers.screen;
    return screen ? host::system_overrides::answerWith(*screen, area) : StandInAnswer::NotHandled;
}

StandInAnswer standin_windowArea(const char* title, StandInArea* area) {
    const auto& windows = state().answers.windows;
    if (!windows) {
        return StandInAnswer::NotHandled;
    }
    const auto found =
        std::find_if(windows->begin(), windows->end(),
                     [&](const host::WindowShown& window) { return window.title == title; });
    return found != windows->end() ? host::system_overrides::answerWith(found->inside, area)
                                   : StandInAnswer::Failed;
}

StandInAnswer standin_visitWindows(StandInWindowVisitor visit, void* context) {
    if (!state().answers.windows) {
        return StandInAnswer::NotHandled;
    }
    // A copy: whoever looks may start other answers.
    const std::vector<host::WindowShown> windows = *state().answers.windows;
    for (const host::WindowShown& window : windows) {
        StandInArea area = {};
        host::system_overrides::answerWith(window.inside, &area);
        if (visit(context, window.title.c_str(), &area) == 0) {
            break;
        }
    }
    return StandInAnswer::Done;
}

StandInAnswer standin_cpuid(unsigned leaf, unsigned* registers) {
    const auto& processor = state().answers.processor;
    if (!processor) {
        return StandInAnswer::NotHandled;
    }
    const std::array<unsigned, 4> values = processor(leaf);
    std::copy(values.begin(), values.end(), registers);
    return StandInAnswer::Done;
}
