#pragma once

#include "tests/support/addin_test.h"
#include "tests/support/temporary_folder.h"

#include "host/cloud/storage_pace.h"

#include <filesystem>
#include <string>
#include <vector>

/// A test of "Open local file", with a project of the user's in a local folder.
class OpenLocalFileTest : public test_support::AddinTest {
protected:
    using Texts = std::vector<std::string>;

    void SetUp() override;
    void TearDown() override;

    /// A design file, under whatever name.
    std::string design(const std::string& name) const;

    /// A file with that content.
    std::string file(const std::string& name, const std::string& content) const;

    /// The full name that a file of the test has.
    [[nodiscard]] std::string pathOf(const std::string& name) const;

    /// Presses the command and picks these files in its dialog.
    void pick(const Texts& files) const;

    /// Presses the command and closes its dialog.
    void pickNothing() const;

    /// The names of the documents that the host has opened besides the one at the start.
    static Texts opened();

    /// The names of the files in the project.
    static Texts uploaded();

    /// The texts of the messages that were shown.
    [[nodiscard]] Texts messages() const;

    static host::StoragePace& storage() { return host::storagePace(); }

    test_support::TemporaryFolder folder;
};
