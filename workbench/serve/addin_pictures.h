#pragma once

#include "host/session/addin_copy.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

/// The icons and images of the add-in, as addresses of the server.
namespace workbench::serve {

/// What a file name becomes in an address: all but letters, digits and "/._-" as "%" and two
/// hexadecimal digits.
std::string encoded(const std::string& path);

/// The file that a relative path names in a folder; none where the path leads out of it, or to no
/// file. Links count as what they lead to.
std::optional<std::filesystem::path> fileInside(const std::filesystem::path& folder,
                                                const std::string& path);

class AddinPictures {
public:
    /// `load` says how often the add-in was loaded. It is a part of the addresses: a page does not
    /// take the pictures of the one before for those of this one.
    AddinPictures(host::AddinFiles addin, int load) : addin_(std::move(addin)), load_(load) {}

    /// The address of an icon folder, which ends in "/", or of an image, as a module names it; an
    /// empty string where the add-in has none.
    const std::string& addressOf(const std::string& name);

private:
    [[nodiscard]] std::string find(const std::string& name) const;

    host::AddinFiles addin_;
    int load_;
    std::map<std::string, std::string> known_;
};

/// The file that an address below "/resources/N/" names; none for what is no picture of the add-in.
std::optional<std::filesystem::path> pictureFile(const std::filesystem::path& addinFolder,
                                                 const std::string& path);

}  // namespace workbench::serve
