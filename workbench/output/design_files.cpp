#include "workbench/output/design_files.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <iostream>
#include <string_view>

namespace workbench {
namespace {

namespace fs = std::filesystem;

/// The first name in this folder that no file has yet.
fs::path freePath(const fs::path& folder, const std::string& name) {
    fs::path path = folder / host::fromUtf8(name + host::kDesignFileEnding);
    for (int number = 2; fs::exists(path); ++number) {
        path = folder /
               host::fromUtf8(name + " (" + std::to_string(number) + ")" + host::kDesignFileEnding);
    }
    return path;
}

bool isDesignFile(const fs::path& file) { return file.extension() == ".json"; }

fs::path newFileBeside(fs::path file) {
    file.replace_extension(host::kDesignFileEnding);
    if (fs::exists(file)) {
        const std::string name = host::toUtf8(file);
        refuse(name + " exists already; --save " + name + " replaces it");
    }
    return file;
}

/// Writes a design file, whole or not at all.
void saveDesign(const host::DesignData& design, const fs::path& file) {
    try {
        host::saveDesignFile(file, design);
    } catch (const host::DesignError& error) {
        throw Failure(ExitCode::OutputFailed, error.what());
    }
}

}  // namespace

void saveInFolder(const std::vector<host::DesignData>& designs, const fs::path& folder) {
    for (const host::DesignData& each : designs) {
        const fs::path file = freePath(folder, fileName(each.name));
        saveDesign(each, file);
        reportSaved(std::cout, file);
    }
}

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

SaveTarget saveTarget(const std::string& file, const std::string& named) {
    const fs::path input = host::fromUtf8(file);
    fs::path target = host::fromUtf8(named);
    if (!target.empty() && !isDesignFile(target)) {
        refuse("--save " + named + ": the name of a design file must end in .json");
    }
    if (target.empty()) {
        target = isDesignFile(input) ? input : newFileBeside(input);
    }
    return {.path = fs::absolute(target), .name = target, .before = fingerprintOf(target)};
}

}  // namespace workbench
