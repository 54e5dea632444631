#pragma once

#include "tests/support/addin_test.h"

#include "host/session/environment.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace test_support {

/// The helpdesk buttons, pressed in a session with a support folder of its own.
///
/// The session sees no display, whatever the environment has.
class HelpdeskTest : public AddinTest {
protected:
    HelpdeskTest();
    ~HelpdeskTest() override;

    /// Presses the button of a command by what follows "QM_HD_" in its id.
    void press(const std::string& command) { session->press("QM_HD_" + command); }

    /// Where the support folder of the session is, once it is made.
    [[nodiscard]] std::filesystem::path supportFolder() const;

    /// That folder in the terms of the module.
    [[nodiscard]] std::string supportFolderText() const;

    /// Writes a file into the support folder, which has to be there.
    void put(const std::string& name, const std::string& content = "x") const;
    [[nodiscard]] bool has(const std::string& name) const;

    /// The bytes of a file of the support folder; empty if there is none.
    [[nodiscard]] std::string contentOf(const std::string& name) const;

    /// The messages so far, a line for each: title, icon and text.
    [[nodiscard]] std::string shownMessages() const;

private:
    std::optional<host::environment::Text> display_;
};

/// All files and folders below a folder with the files' content and what may be done with them, a
/// line for each; what lies in `except` is left out.
std::string treeOf(const std::filesystem::path& folder, const std::filesystem::path& except);

}  // namespace test_support
