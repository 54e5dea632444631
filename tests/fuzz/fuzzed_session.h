#pragma once

#include "tests/fuzz/choices.h"

#include "host/design/design_data.h"
#include "host/session/session.h"

#include <cstdint>
#include <span>
#include <string>

/// Runs of the dialogs that are made of bytes. Each looks at what came of it and returns what it
/// found wrong, empty for nothing; a crash or a sanitizer's report ends the program.
namespace fuzz {

using Bytes = std::span<const std::uint8_t>;

/// One host and one loaded add-in for all runs: a fuzzer has thousands of them, and counts what a
/// module covers as long as it stays loaded. A run begins with settings and a design of its own,
/// and leaves no dialog open; what the add-in keeps from one dialog to the next stays, as it does
/// for a person.
class FuzzedSession {
public:
    explicit FuzzedSession(host::CodeChanges reported = host::CodeChanges::All);

    /// A design and a user who does in its dialog whatever the screen offers, until the bytes are
    /// used up.
    std::string useDialog(Bytes bytes);

    /// A settings file with these bytes: the dialogs that read it open, show their tabs, and save.
    std::string useSettings(Bytes bytes);

private:
    void begin(const std::string& settings, host::DesignData design);
    std::string end();

    std::string step(Choices& choices);
    std::string accept();
    std::string saveColumnsTwice();

    host::Session session_;
};

}  // namespace fuzz
