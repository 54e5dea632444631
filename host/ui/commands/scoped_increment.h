#pragma once

namespace host::ui {

/// Counts up while it lives.
class ScopedIncrement {
public:
    explicit ScopedIncrement(int& counter) : counter_(counter) { ++counter_; }
    ScopedIncrement(const ScopedIncrement&) = delete;
    ScopedIncrement& operator=(const ScopedIncrement&) = delete;
    ~ScopedIncrement() { --counter_; }

private:
    int& counter_;
};

}  // namespace host::ui
