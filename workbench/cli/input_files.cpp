#include "workbench/cli/input_files.h"

#include "workbench/cli/exit_code.h"

#include "host/base/utf8_path.h"
#include "parts/ascii.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>

namespace workbench {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 7> kEndings = {".step", ".stp",  ".p21",        ".stpz",
                                                      ".igs",  ".iges", ".design.json"};
constexpr std::string_view kPacked = ".gz";

bool isPattern(const std::string& text) { return text.find_first_of("*?") != std::string::npos; }

std::string withoutPacking(const std::string& name) {
    return parts::lowerCase(name).ends_with(kPacked) ? name.substr(0, name.size() - kPacked.size())
                                                     : name;
}

/// How long the ending of a design's name is; 0 for another name.
std::size_t endingSize(const std::string& name) {
    const std::string low = parts::lowerCase(name);
    const auto* const found =
        std::ranges::find_if(kEndings, [&](std::string_view each) { return low.ends_with(each); });
    return found == kEndings.end() ? 0 : found->size();
}

/// The names in a folder, sorted.
std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code error;
    for (fs::directory_iterator each(folder.empty() ? "." : folder, error), end;
         !error && each != end; each.increment(error)) {
        entries.push_back(folder / each->path().filename());
    }
    std::ranges::sort(entries);
    return entries;
}

bool isHidden(const fs::path& path) { return host::toUtf8(path.filename()).starts_with("."); }

/// A folder that is not a link: links may lead around in a circle.
bool isOwnFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::symlink_status(path, ignored).type() == fs::file_type::directory;
}

void collectDesigns(const fs::path& folder, std::vector<fs::path>& files) {
    for (const fs::path& each : entriesOf(folder)) {
        std::error_code ignored;
        if (isHidden(each)) {
            continue;
        }
        if (isOwnFolder(each)) {
            collectDesigns(each, files);
        } else if (hasDesignEnding(host::toUtf8(each.filename())) &&
                   fs::is_regular_file(each, ignored)) {
            files.push_back(each);
        }
    }
}

/// Where the character after the one at `at` begins, in UTF-8.
std::size_t nextCharacter(const std::string& text, std::size_t at) {
    do {
        ++at;
    } while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U);
    return at;
}

using Parts = std::vector<std::string>;

/// The files below a folder that the remaining parts of a pattern match.
void collectMatches(const fs::path& folder, Parts::const_iterator part, Parts::const_iterator end,
                    std::set<fs::path>& files) {
    const bool isLast = std::next(part) == end;
    const bool isDeep = *part == "**";
    if (isDeep && !isLast) {
        collectMatches(folder, std::next(part), end, files);
    }
    if (!isPattern(*part)) {
        const fs::path next = folder / host::fromUtf8(*part);
        std::error_code ignored;
        if (isLast && fs::is_regular_file(next, ignored)) {
            files.insert(next);
        } else if (!isLast) {
            collectMatches(next, std::next(part), end, files);
        }
        return;
    }
    for (const fs::path& each : entriesOf(folder)) {
        std::error_code ignored;
        const std::string name = host::toUtf8(each.filename());
        if (!matchesPattern(name, isDeep ? "*" : *part)) {
            continue;
        }
        if (isLast && fs::is_regular_file(each, ignored)) {
            files.insert(each);
        } else if (isDeep ? isOwnFolder(each) : !isLast && fs::is_directory(each, ignored)) {
            collectMatches(each, isDeep ? part : std::next(part), end, files);
        }
    }
}

std::vector<fs::path> matchesOf(const std::string& pattern) {
    const fs::path path = host::fromUtf8(pattern);
    Parts parts;
    for (const fs::path& each : path.relative_path()) {
        parts.push_back(host::toUtf8(each));
    }
    std::set<fs::path> files;
    collectMatches(path.root_path(), parts.begin(), parts.end(), files);
    return {files.begin(), files.end()};
}

/// What an argument stands for.
std::vector<fs::path> filesOf(const std::string& argument) {
    std::error_code ignored;
    const fs::path path = host::fromUtf8(argument);
    std::vector<fs::path> files;
    if (fs::is_directory(path, ignored)) {
        collectDesigns(path, files);
        if (files.empty()) {
            throw Failure(ExitCode::BadInput,
                          argument + ": the folder holds no STEP, IGES or design file");
        }
        return files;
    }
    if (!isPattern(argument) || fs::exists(path, ignored)) {
        return {path};
    }
    files = matchesOf(argument);
    if (files.empty()) {
        throw Failure(ExitCode::BadInput, argument + ": no file matches");
    }
    return files;
}

}  // namespace

std::vector<std::string> expandInputs(const std::vector<std::string>& arguments) {
    std::vector<std::string> files;
    std::set<std::string> seen;
    for (const std::string& argument : arguments) {
        for (const fs::path& file : filesOf(argument)) {
            if (const std::string name = host::toUtf8(file); seen.insert(name).second) {
                files.push_back(name);
            }
        }
    }
    return files;
}

bool matchesPattern(const std::string& name, const std::string& pattern) {
    if (name.starts_with('.') && !pattern.starts_with('.')) {
        return false;
    }
    // After a star that has to match more the search goes on from there alone.
    std::size_t at = 0;
    std::size_t in = 0;
    std::size_t star = std::string::npos;
    std::size_t resume = 0;
    while (at < name.size()) {
        if (in < pattern.size() && pattern[in] == '*') {
            star = in++;
            resume = at;
        } else if (in < pattern.size() && (pattern[in] == '?' || pattern[in] == name[at])) {
            at = pattern[in] == '?' ? nextCharacter(name, at) : at + 1;
            ++in;
        } else if (star != std::string::npos) {
            in = star + 1;
            at = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', in) == std::string::npos;
}

bool hasDesignEnding(const std::string& name) { return endingSize(withoutPacking(name)) > 0; }

std::string stemOf(const std::string& file) {
    const std::string name = withoutPacking(host::toUtf8(host::fromUtf8(file).filename()));
    const std::size_t ending = endingSize(name);
    return ending == 0 || ending == name.size() ? host::toUtf8(host::fromUtf8(name).stem())
                                                : name.substr(0, name.size() - ending);
}

}  // namespace workbench
