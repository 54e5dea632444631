#pragma once

#include <functional>
#include <memory>

namespace workbench {

/// While it lives, Ctrl-C and a request to terminate do not end the program: the first one calls a
/// function, on a thread of its own. After three seconds, which the end may take, another one ends
/// the program at once. Only one may live at a time.
class StopSignals {
public:
    explicit StopSignals(std::function<void()> stop);
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;
    ~StopSignals();

private:
    struct Watch;
    std::unique_ptr<Watch> watch_;
};

}  // namespace workbench
