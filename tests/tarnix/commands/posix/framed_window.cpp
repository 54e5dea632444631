#include "tests/tarnix/commands/framed_window.h"

#include "tests/support/posix/x_window.h"

#include <array>
#include <cstdint>

namespace test_support {
namespace {

constexpr int kFrame = 7;

}  // namespace

struct FramedWindow::State {
    XWindow window;
};

FramedWindow::FramedWindow(const std::string& title, int left, int top, int width, int height)
    : state_(new State{{title, left - kFrame, top - kFrame, width, height, kFrame}}) {}

FramedWindow::~FramedWindow() = default;

void FramedWindow::move(int left, int top, int width, int height) const {
    const std::array<std::uint32_t, 4> values = {
        static_cast<std::uint32_t>(left - kFrame), static_cast<std::uint32_t>(top - kFrame),
        static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)};
    ::xcb_configure_window(state_->window.connection(), state_->window.id(),
                           XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                               XCB_CONFIG_WINDOW_HEIGHT,
                           values.data());
    state_->window.finish();
}

}  // namespace test_support
