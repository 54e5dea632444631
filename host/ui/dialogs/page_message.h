#pragma once

#include <string>

namespace host::ui {

/// What a module and the page of a palette send to each other.
struct PageMessage {
    std::string action;
    std::string data;

    bool operator==(const PageMessage&) const = default;
};

}  // namespace host::ui
