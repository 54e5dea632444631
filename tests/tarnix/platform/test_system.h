#pragma once

#include <filesystem>
#include <memory>
#include <string>

/// What the tests of the platform need of the system themselves.
namespace tarnix::test {

/// Loads a module; null if it could not.
std::shared_ptr<void> loadModule(const std::filesystem::path& path);

/// A function that a module shows by name.
void* functionOf(const std::shared_ptr<void>& module, const char* name);

/// A path that the system takes whatever its length.
std::filesystem::path longPath(const std::filesystem::path& path);

/// The number of this process.
long processNumber();

/// Observes whether a file is read from now on.
class ReadWatch {
public:
    explicit ReadWatch(std::filesystem::path file);

    [[nodiscard]] bool wasRead() const;

private:
    std::filesystem::path file_;
};

/// For as long as what is returned lives, the file may be read and written but not deleted. Null
/// where the system could not be brought to that.
[[nodiscard]] std::shared_ptr<void> holdUndeletable(const std::filesystem::path& file);

}  // namespace tarnix::test
