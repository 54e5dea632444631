#include "workbench/serve/palette_pages.h"

#include "workbench/serve/served_files.h"

#include <string_view>

namespace workbench::serve {
namespace {

/// Where the built add-in looks for the pages of site/.
constexpr std::string_view kSite = TARNIX_SITE "/";

}  // namespace

std::string localPage(const std::string& address) {
    if (!address.starts_with(kSite)) {
        return "";
    }
    const std::string path = address.substr(kSite.size());
    return siteFiles().contains(path.substr(0, path.find_first_of("?#"))) ? "/site/" + path : "";
}

const std::string* pageContent(const std::string& path) {
    const auto found = siteFiles().find(path);
    return found == siteFiles().end() ? nullptr : &found->second;
}

}  // namespace workbench::serve
