#pragma once

#include <stdexcept>

namespace host {

/// A session cannot do what it was asked for: the add-in, the command or the input does not exist.
/// The message is one line, fit to be shown.
class SessionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace host
