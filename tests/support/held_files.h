#pragma once

#include <filesystem>
#include <memory>

/// Files that the system does not let the process change for a while: for as long as what is
/// returned here lives.
namespace test_support {

/// The file cannot be deleted, but appended to. Null where the file system or the user's rights do
/// not allow that.
[[nodiscard]] std::shared_ptr<void> holdUndeletable(const std::filesystem::path& file);

/// The file can be read but not written, by the superuser either.
[[nodiscard]] std::shared_ptr<void> holdUnwritable(const std::filesystem::path& file);

}  // namespace test_support
