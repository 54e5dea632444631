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

/// "Part.step" for "Part.step.gz".
fs::path unpackedName(const fs::path& file) {
    const fs::path ending = file.extension();
    return ending == ".gz" || ending == ".GZ" ? fs::path(file).replace_extension() : file;
}

fs::path newFileBeside(fs::path file) {
    if (!isDesignFile(file)) {
        file.replace_extension(host::kDesignFileEnding);
    }
    if (fs::exists(file)) {
        const std::string name = host::toUtf8(file);
        refuse(name + " exists already; --save " + name + " replaces it");
    }
    return file;
}

/// Where a design is saved for which no file is named.
fs::path defaultTarget(const std::string& file) {
    const fs::path input = host::fromUtf8(file);
    std::error_code ignored;
    if (file == "-" || fs::is_fifo(input, ignored)) {
        refuse("--save: a design that comes from " +
               (file == "-" ? std::string("the standard input") : "the pipe " + file) +
               " has no name; name its file, as in --save assembly" + host::kDesignFileEnding);
    }
    return isDesignFile(input) ? input : newFileBeside(unpackedName(input));
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
    fs::path target = host::fromUtf8(named);
    if (!target.empty() && !isDesignFile(target)) {
        refuse("--save " + named + ": the name of a design file must end in .json");
    }
    if (target.empty()) {
        target = defaultTarget(file);
    }
    return {.path = fs::absolute(target), .name = target, .before = fingerprintOf(target)};
}

}  // namespace workbench
