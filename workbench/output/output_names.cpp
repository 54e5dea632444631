#include "workbench/output/output_names.h"

#include "workbench/cli/exit_code.h"
#include "workbench/cli/input_files.h"
#include "workbench/cli/nearest_word.h"

#include "host/base/utf8_path.h"
#include "host/import/design_source.h"
#include "host/import/file_check.h"

#include <cstddef>
#include <exception>
#include <fstream>
#include <map>
#include <set>
#include <string_view>
#include <system_error>

namespace workbench {
namespace {

namespace fs = std::filesystem;

std::string folderOf(const std::string& file) {
    const fs::path folder = host::fromUtf8(file).parent_path();
    return folder.empty() ? "." : host::toUtf8(folder);
}

std::string replacement(const std::string& word, const std::string& pattern,
                        const std::string& file) {
    if (word == "stem") {
        return file == "-" ? "stdin" : stemOf(file);
    }
    if (word == "name") {
        return host::toUtf8(host::fromUtf8(file).filename());
    }
    if (word == "dir") {
        return folderOf(file);
    }
    const std::string nearest = nearestWord(word, {"stem", "name", "dir"});
    refuse(pattern + ": no such word {" + word + "}" +
           (nearest.empty() ? "; there are {stem}, {name} and {dir}"
                            : "; did you mean {" + nearest + "}?"));
}

/// A device or a folder is there already and cannot be replaced by a list.
void refuseWhatIsNoFile(const std::string& name, const fs::path& path) {
    std::error_code ignored;
    if (fs::exists(path, ignored) && !fs::is_regular_file(path, ignored)) {
        refuse("--output " + name + ": it exists and is not a file");
    }
}

/// The first bytes of a file.
std::string firstBytes(const fs::path& file, std::size_t size) {
    std::ifstream stream(file, std::ios::binary);
    std::string start(size, '\0');
    stream.read(start.data(), static_cast<std::streamsize>(size));
    start.resize(static_cast<std::size_t>(stream.gcount()));
    return start;
}

/// A list is never packed.
bool isPackedDesign(const fs::path& file) {
    return hasDesignEnding(host::toUtf8(file)) && firstBytes(file, 2) == "\x1F\x8B";
}

/// The reader takes any file for IGES whose first line has an S in column 73, as a list may have:
/// under the name of a list the number of that line has to follow.
bool isStepOrIges(const fs::path& file) {
    try {
        host::checkStepFile(file, host::toUtf8(file));
    } catch (const std::exception&) {
        return false;
    }
    constexpr std::size_t kLine = 80;
    constexpr std::size_t kNumber = 73;
    const std::string line = firstBytes(file, kLine);
    const bool isNumbered = line.size() == kLine && line.back() == '1' &&
                            line.find_first_not_of(" 01", kNumber) == std::string::npos;
    return hasDesignEnding(host::toUtf8(file)) || isNumbered ||
           line.find("ISO-10303-21") != std::string::npos;
}

}  // namespace

void refuseToReplaceDesign(const std::string& name) {
    std::error_code ignored;
    const fs::path file = host::fromUtf8(name);
    if (fs::is_regular_file(file, ignored) &&
        (isPackedDesign(file) || isStepOrIges(file) || host::holdsDesignFile(file))) {
        refuse("--output " + name + ": is a design; the output needs a file of its own");
    }
}

std::string outputName(const std::string& pattern, const std::string& file) {
    std::string name;
    std::size_t from = 0;
    for (std::size_t open = 0; (open = pattern.find('{', from)) != std::string::npos;) {
        const std::size_t close = pattern.find('}', open);
        if (close == std::string::npos) {
            break;
        }
        name += pattern.substr(from, open - from) +
                replacement(pattern.substr(open + 1, close - open - 1), pattern, file);
        from = close + 1;
    }
    return name + pattern.substr(from);
}

bool hasPlaceholder(const std::string& pattern) {
    const std::size_t open = pattern.find('{');
    return open != std::string::npos && pattern.find('}', open) != std::string::npos;
}

void checkOutputNames(const std::vector<std::string>& names,
                      const std::vector<std::string>& sources,
                      const std::vector<std::string>& designs) {
    std::set<fs::path> read;
    for (const std::string& design : designs) {
        read.insert(settled(design));
    }
    std::map<fs::path, std::size_t> written;
    for (std::size_t index = 0; index < names.size(); ++index) {
        const fs::path path = settled(names[index]);
        refuseWhatIsNoFile(names[index], path);
        if (read.contains(path)) {
            refuse(names[index] + ": is one of the designs; the output needs a file of its own");
        }
        refuseToReplaceDesign(names[index]);
        const auto [first, isNew] = written.try_emplace(path, index);
        if (!isNew) {
            refuse(names[index] + ": would be written twice, for " + sources[first->second] +
                   " and for " + sources[index] + "; name them differently, as in " +
                   "{dir}/{stem}.csv");
        }
    }
}

}  // namespace workbench
