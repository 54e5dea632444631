#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// A folder of its own for each test, gone afterwards.
class FileTest : public testing::Test {
protected:
    FileTest();
    ~FileTest() override;

    [[nodiscard]] std::string read(const std::filesystem::path& path) const;
    void write(const std::filesystem::path& path, const std::string& content) const;

    /// The names of what is in the folder, sorted.
    [[nodiscard]] std::vector<std::string> names() const;

    std::filesystem::path folder;
};

}  // namespace host
