#pragma once

#include <stdexcept>

namespace host {

/// A session was asked for something that cannot be: an add-in that is not there, a command or an
/// input that nobody made. The text is one line, fit to be shown.
class SessionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace host
