#pragma once

#include <filesystem>
#include <string>

namespace host {

/// An add-in on disk: the folder, the manifest and the module share one name.
struct AddinFiles {
    std::filesystem::path folder;
    std::string name;

    [[nodiscard]] std::filesystem::path module() const;
    [[nodiscard]] std::filesystem::path manifest() const;

    /// The icon folder or image that a module names, such as "./Resources/Copy", from the add-in's
    /// folder on. It is found as Windows finds it, whatever the case of its letters; an
    /// `ImportError` where there is none.
    [[nodiscard]] std::filesystem::path resource(const std::string& resourceName) const;
};

/// The add-in of a folder; throws a `SessionError` that names what is missing.
AddinFiles findAddin(const std::filesystem::path& folder);

/// Brings a copy of the add-in up to date in `parent`, in a folder of the add-in's name, and
/// returns the copy.
///
/// The module and the manifest are copied where they differ, the other files where they are missing
/// or newer than their copy. What only the copy holds (settings, exports) is left alone.
AddinFiles copyAddin(const AddinFiles& installed, const std::filesystem::path& parent);

}  // namespace host
