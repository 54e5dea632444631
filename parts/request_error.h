#pragma once

#include <stdexcept>
#include <string>

namespace parts {

/// A request that makes no sense: the text names what is wrong and what would be right, without
/// the option or the file that it was read from.
class RequestError : public std::invalid_argument {
public:
    explicit RequestError(const std::string& text) : std::invalid_argument(text) {}
};

/// A column that neither the list nor the design has.
class UnknownColumn : public RequestError {
public:
    explicit UnknownColumn(const std::string& name)
        : RequestError("\"" + name +
                       "\": no such column, and no component has a custom property of that name"),
          name_(name) {}

    [[nodiscard]] const std::string& name() const { return name_; }

private:
    std::string name_;
};

}  // namespace parts
