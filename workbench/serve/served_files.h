#pragma once

#include <map>
#include <string>

/// Files that are part of the program, by their paths.
namespace workbench::serve {

using ServedFiles = std::map<std::string, std::string>;

/// The page: "host.html", "host.js" and "host.css", as web/dist has them.
const ServedFiles& pageFiles();

/// The pages of site/, by their paths in it.
const ServedFiles& siteFiles();

}  // namespace workbench::serve
