#include "workbench/output/design_files.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/display_text.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <iostream>
#include <string_view>

namespace workbench {
namespace {

namespace fs = std::filesystem;

/// The name in this folder that no file has yet.
fs::path freePath(const fs::path& folder, const std::string& name) {
    fs::path path = folder / host::fromUtf8(name + host::kDesignFileEnding);
    for (int number = 2; fs::exists(path); ++number) {
        path = folder /
               host::fromUtf8(name + " (" + std::to_string(number) + ")" + host::kDesignFileEnding);
    }
    return path;
}

void save(const host::DesignData& design, const fs::path& file) {
    try {
        host::saveDesignFile(file, design);
    } catch (const host::DesignError& error) {
        throw Failure(ExitCode::OutputFailed, error.what());
    }
}

}  // namespace

std::string fileName(std::string name) {
    constexpr std::string_view kOfPaths = "/\\:*?\"<>|";
    const auto isBad = [&](char each) {
        return static_cast<unsigned char>(each) < ' ' ||
               kOfPaths.find(each) != std::string_view::npos;
    };
    std::replace_if(name.begin(), name.end(), isBad, '_');
    if (name.empty() || name.front() == '.') {
        name.replace(0, std::min<std::size_t>(name.size(), 1), "_");
    }
    return name;
}

void saveInFolder(const std::vector<host::DesignData>& designs, const fs::path& folder) {
    for (const host::DesignData& each : designs) {
        const fs::path file = freePath(folder, fileName(each.name));
        save(each, file);
        std::cout << "Saved: " << printable(host::toUtf8(file)) << "\n";
    }
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
}

}  // namespace workbench
