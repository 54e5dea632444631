#pragma once

#include <mutex>
#include <stdexcept>
#include <string>

namespace host {

/// What became of a reader that did not answer; a clause such as "the reader crashed (...)".
class ReaderFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The lines to and from a reader; see reader/protocol.h for what they say.
class ReaderConnection {
public:
    virtual ~ReaderConnection() = default;

    /// Starts the time that is limited again.
    virtual void startClock() = 0;

    /// Sends a line; a failure shows with the next `receive`, where it does not throw at once.
    virtual void send(const std::string& line) = 0;

    /// Waits for the next line; throws `ReaderFailure`.
    virtual std::string receive() = 0;

    /// Held from a request to its answer: several threads may ask one reader.
    std::mutex asking;
};

}  // namespace host
