#pragma once

#include <memory>
#include <string>

namespace test_support {

/// A real window with a frame around it, above all others.
class FramedWindow {
public:
    /// Shows the window, its inside being that part of the screen.
    FramedWindow(const std::string& title, int left, int top, int width, int height);
    FramedWindow(const FramedWindow&) = delete;
    FramedWindow& operator=(const FramedWindow&) = delete;
    ~FramedWindow();

    /// Brings its inside to another part of the screen.
    void move(int left, int top, int width, int height) const;

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace test_support
