#include "tarnix/platform/top_windows.h"

#include "tarnix/platform/native.h"
#include "tarnix/platform/process_function.h"

#include <StandIn/Process.h>

#include <exception>

namespace tarnix::platform {
namespace {

/// The caller's visitor, and what it threw: no exception may cross the process's C function.
struct Visit {
    const std::function<bool(const TopWindow&)>& visitor;
    std::exception_ptr thrown;
};

int visitOne(void* context, const char* title, const StandInArea* inside) {
    auto& visit = *static_cast<Visit*>(context);
    const ScreenArea area = {
        .left = inside->left, .top = inside->top, .right = inside->right, .bottom = inside->bottom};
    try {
        return visit.visitor({.title = title, .clientArea = [area] { return area; }}) ? 1 : 0;
    } catch (...) {
        visit.thrown = std::current_exception();
        return 0;
    }
}

}  // namespace

void visitTopWindows(const std::function<bool(const TopWindow&)>& visitor) {
    using Question = decltype(&standin_visitWindows);
    const auto ask = reinterpret_cast<Question>(processFunction("standin_visitWindows"));
    Visit visit = {.visitor = visitor, .thrown = nullptr};
    if (ask == nullptr || ask(&visitOne, &visit) == StandInAnswer::NotHandled) {
        native::visitTopWindows(visitor);
    } else if (visit.thrown) {
        std::rethrow_exception(visit.thrown);
    }
}

}  // namespace tarnix::platform
