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
#include <utility>

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

bool isHidden(const fs::path& path) { return host::toUtf8(path.filename()).starts_with("."); }

/// Where the character after the one at `at` begins, in UTF-8.
std::size_t nextCharacter(const std::string& text, std::size_t at) {
    do {
        ++at;
    } while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U);
    return at;
}

using Parts = std::vector<std::string>;

/// What is there no more, or never was a folder, is no failure.
bool isMissing(const std::error_code& error) {
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

/// Looks for files, and notes the folders that it cannot look into.
class Search {
public:
    explicit Search(std::vector<std::string>& unreadable) : unreadable_(unreadable) {}

    /// All designs in a folder and below.
    void collectDesigns(const fs::path& folder, std::vector<fs::path>& files) {
        for (const fs::path& each : entriesOf(folder)) {
            if (isHidden(each)) {
                continue;
            }
            if (isOwnFolder(each)) {
                collectDesigns(each, files);
            } else if (hasDesignEnding(host::toUtf8(each.filename())) && isFile(each)) {
                files.push_back(each);
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

private:
    /// The files below a folder that the remaining parts of a pattern match.
    void collectMatches(const fs::path& folder, Parts::const_iterator part,
                        Parts::const_iterator end, std::set<fs::path>& files) {
        const bool isLast = std::next(part) == end;
        const bool isDeep = *part == "**";
        if (isDeep && !isLast) {
            collectMatches(folder, std::next(part), end, files);
        }
        if (!isPattern(*part)) {
            const fs::path next = folder / host::fromUtf8(*part);
            if (isLast && isFile(next)) {
                files.insert(next);
            } else if (!isLast) {
                collectMatches(next, std::next(part), end, files);
            }
            return;
        }
        for (const fs::path& each : entriesOf(folder)) {
            if (!matchesPattern(host::toUtf8(each.filename()), isDeep ? "*" : *part)) {
                continue;
            }
            if (isLast && isFile(each)) {
                files.insert(each);
            } else if (isDeep ? isOwnFolder(each)
                              : !isLast && statusOf(each).type() == fs::file_type::directory) {
                collectMatches(each, isDeep ? part : std::next(part), end, files);
            }
        }
    }

    /// The names in a folder, sorted.
    std::vector<fs::path> entriesOf(const fs::path& folder) {
        std::vector<fs::path> entries;
        std::error_code error;
        for (fs::directory_iterator each(folder.empty() ? "." : folder, error), end;
             !error && each != end; each.increment(error)) {
            entries.push_back(folder / each->path().filename());
        }
        note(folder, error);
        std::ranges::sort(entries);
        return entries;
    }

    fs::file_status statusOf(const fs::path& path) {
        std::error_code error;
        const fs::file_status status = fs::status(path, error);
        note(path.parent_path(), error);
        return status;
    }

    bool isFile(const fs::path& path) { return statusOf(path).type() == fs::file_type::regular; }

    /// A folder that is not a link: links may lead around in a circle.
    bool isOwnFolder(const fs::path& path) {
        std::error_code error;
        const fs::file_status status = fs::symlink_status(path, error);
        note(path.parent_path(), error);
        return status.type() == fs::file_type::directory;
    }

    /// A folder whose names may be read and whose files may not is noted once.
    void note(const fs::path& folder, const std::error_code& error) {
        const fs::path path = folder.empty() ? "." : folder;
        if (error && !isMissing(error) && noted_.insert(path).second) {
            unreadable_.push_back(host::toUtf8(path) + ": cannot be read (" + error.message() +
                                  "); a folder that you may read is needed");
        }
    }

    std::vector<std::string>& unreadable_;
    std::set<fs::path> noted_;
};

/// What an argument stands for.
std::vector<fs::path> filesOf(const std::string& argument, std::vector<std::string>& unreadable) {
    std::error_code ignored;
    const fs::path path = host::fromUtf8(argument);
    const std::size_t before = unreadable.size();
    std::vector<fs::path> files;
    if (fs::is_directory(path, ignored)) {
        Search(unreadable).collectDesigns(path, files);
        if (files.empty() && unreadable.size() == before) {
            throw Failure(ExitCode::BadInput,
                          argument + ": the folder holds no STEP, IGES or design file");
        }
        return files;
    }
    if (!isPattern(argument) || fs::exists(path, ignored)) {
        return {path};
    }
    files = Search(unreadable).matchesOf(argument);
    if (files.empty() && unreadable.size() == before) {
        throw Failure(ExitCode::BadInput, argument + ": no file matches");
    }
    return files;
}

}  // namespace

std::filesystem::path settled(const std::string& name) {
    std::error_code error;
    const fs::path path = fs::weakly_canonical(host::fromUtf8(name), error);
    return error ? fs::absolute(host::fromUtf8(name), error).lexically_normal() : path;
}

std::vector<std::string> expandInputs(const std::vector<std::string>& arguments,
                                      std::vector<std::string>& unreadable) {
    std::vector<std::string> files;
    std::set<fs::path> seen;
    for (const std::string& argument : arguments) {
        for (const fs::path& file : filesOf(argument, unreadable)) {
            if (std::string name = host::toUtf8(file); seen.insert(settled(name)).second) {
                files.push_back(std::move(name));
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
