#include "workbench/serve/addin_pictures.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <exception>
#include <string_view>

namespace workbench::serve {
namespace {

namespace fs = std::filesystem;

bool isPlain(unsigned char each) {
    return (std::isalnum(each) != 0 && each < 128) ||
           std::string_view("/._-").find(static_cast<char>(each)) != std::string_view::npos;
}

bool isPicture(const fs::path& file) {
    constexpr std::array<std::string_view, 5> kEndings = {".png", ".svg", ".jpg", ".jpeg", ".gif"};
    std::string ending = host::toUtf8(file.extension());
    std::ranges::transform(ending, ending.begin(),
                           [](unsigned char each) { return std::tolower(each); });
    return std::ranges::find(kEndings, ending) != kEndings.end();
}

}  // namespace

std::string encoded(const std::string& path) {
    constexpr const char* kDigits = "0123456789ABCDEF";
    std::string result;
    for (const char each : path) {
        const auto byte = static_cast<unsigned char>(each);
        if (isPlain(byte)) {
            result += each;
        } else {
            result += {'%', kDigits[byte / 16], kDigits[byte % 16]};
        }
    }
    return result;
}

std::optional<fs::path> fileInside(const fs::path& folder, const std::string& path) {
    std::error_code failure;
    const fs::path relative = host::fromUtf8(path);
    if (path.find('\0') != std::string::npos || relative.has_root_path() ||
        std::ranges::find(relative, "..") != relative.end()) {
        return std::nullopt;
    }
    const fs::path home = fs::canonical(folder, failure);
    const fs::path file = failure ? fs::path() : fs::canonical(home / relative, failure);
    const bool isInside =
        !failure && std::ranges::mismatch(home, file).in1 == home.end() && file != home;
    return isInside && fs::is_regular_file(file, failure) ? std::optional(file) : std::nullopt;
}

const std::string& AddinPictures::addressOf(const std::string& name) {
    const auto known = known_.find(name);
    return known != known_.end() ? known->second : known_.emplace(name, find(name)).first->second;
}

std::string AddinPictures::find(const std::string& name) const {
    if (name.empty()) {
        return "";
    }
    try {
        const fs::path file = addin_.resource(name);
        const fs::path relative = file.lexically_relative(addin_.folder).lexically_normal();
        const bool isFolder = fs::is_directory(file);
        if (relative.empty() || *relative.begin() == ".." || (!isFolder && !isPicture(file))) {
            return "";
        }
        std::string address = "/resources/" + std::to_string(load_) + "/" +
                              encoded(host::toUtf8(relative.generic_string()));
        return isFolder && !address.ends_with('/') ? address + "/" : address;
    } catch (const std::exception&) {
        return "";  // a module may name pictures that it does not have
    }
}

std::optional<fs::path> pictureFile(const fs::path& addinFolder, const std::string& path) {
    const std::optional<fs::path> file = fileInside(addinFolder, path);
    return file && isPicture(*file) ? file : std::nullopt;
}

}  // namespace workbench::serve
