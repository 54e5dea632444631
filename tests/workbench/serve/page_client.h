#pragma once

#include "tests/workbench/serve/served_program.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace test_support {

using Json = nlohmann::json;

/// A page without a browser: it follows the state, and acts.
class PageClient {
public:
    /// Opens the stream, and waits for the first state.
    explicit PageClient(const ServedProgram& program);
    PageClient(const PageClient&) = delete;
    PageClient& operator=(const PageClient&) = delete;
    ~PageClient();

    /// Does an action, and waits for the change that follows it; returns the answer.
    Json act(Json action);

    /// The status of an action that is refused, and why.
    std::string refusal(Json action);

    /// The state as it is known now.
    [[nodiscard]] Json state() const;

    /// Waits until the state is such; returns it. Null after half a minute, or at the end.
    Json waitFor(const std::function<bool(const Json& state)>& isSuch) const;

    /// Waits for the end of the stream.
    void waitForEnd();

    [[nodiscard]] int number() const;

    /// The bytes of all events until now.
    [[nodiscard]] std::size_t bytes() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

/// The first input of that id, in the dialog, its tabs and groups, and the toolbars and windows of
/// its tables; null for none.
Json inputOf(const Json& state, const std::string& id);

}  // namespace test_support
