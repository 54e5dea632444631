#include "tarnix/platform/hosted/ask.h"
#include "tarnix/platform/native.h"
#include "tarnix/platform/sleep.h"

namespace tarnix::platform {
namespace {

ScreenArea fromProcess(const StandInArea& area) {
    return {area.left, area.top, area.right, area.bottom};
}

/// What is looked for among the windows of the process, and where the first one is.
struct Search {
    const std::string& title;
    ScreenArea inside;
};

int look(void* context, const char* title, const StandInArea* inside) {
    auto& search = *static_cast<Search*>(context);
    if (!native::isSameTitle(title, search.title)) {
        return 1;
    }
    search.inside = fromProcess(*inside);
    return 0;
}

}  // namespace

void sleep(int milliseconds) {
    using Question = decltype(&standin_sleep);
    if (askProcess<Question>("standin_sleep", milliseconds) == StandInAnswer::NotHandled) {
        native::sleep(milliseconds);
    }
}

void showMessageBox(const std::string& text, const std::string& title, MessageStyle style) {
    using Question = decltype(&standin_messageBox);
    const StandInAnswer answer = askProcess<Question>("standin_messageBox", text.c_str(),
                                                      title.c_str(), static_cast<unsigned>(style));
    if (answer == StandInAnswer::NotHandled) {
        native::showMessageBox(text, title, style);
    }
}

WindowHandle hideConsole() {
    using Question = decltype(&standin_hideConsole);
    const StandInAnswer answer = askProcess<Question>("standin_hideConsole");
    return answer == StandInAnswer::NotHandled ? native::hideConsole() : 0;
}

ScreenArea virtualScreen() {
    using Question = decltype(&standin_virtualScreen);
    StandInArea area = {};
    switch (askProcess<Question>("standin_virtualScreen", &area)) {
        case StandInAnswer::NotHandled:
            return native::virtualScreen();
        case StandInAnswer::Done:
            return fromProcess(area);
        default:
            return {};
    }
}

WindowOnScreen findWindow(const std::string& title) {
    using Question = decltype(&standin_visitWindows);
    Search search = {.title = title, .inside = {}};
    const StandInAnswer answer = askProcess<Question>("standin_visitWindows", &look, &search);
    return answer == StandInAnswer::NotHandled ? native::findWindow(title)
                                               : WindowOnScreen{.inside = search.inside};
}

ProcessorRegisters processorInformation(std::uint32_t leaf) {
    using Question = decltype(&standin_cpuid);
    ProcessorRegisters registers = {};
    switch (askProcess<Question>("standin_cpuid", leaf, registers.data())) {
        case StandInAnswer::NotHandled:
            return native::processorInformation(leaf);
        case StandInAnswer::Done:
            return registers;
        default:
            return {};
    }
}

}  // namespace tarnix::platform
