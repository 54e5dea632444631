#pragma once

namespace host::ui {

/// Counts up while it lives.
class Counting {
public:
    explicit Counting(int& counter) : counter_(counter) { ++counter_; }
    Counting(const Counting&) = delete;
    Counting& operator=(const Counting&) = delete;
    ~Counting() { --counter_; }

private:
    int& counter_;
};

}  // namespace host::ui
