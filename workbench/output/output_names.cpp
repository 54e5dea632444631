#include "workbench/output/output_names.h"

#include "workbench/cli/exit_code.h"
#include "workbench/cli/input_files.h"
#include "workbench/cli/nearest_word.h"

#include "host/base/utf8_path.h"

#include <cstddef>
#include <map>
#include <set>
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

/// One spelling for a file, whether it is there or not.
fs::path settled(const std::string& name) {
    std::error_code error;
    const fs::path path = fs::weakly_canonical(host::fromUtf8(name), error);
    return error ? fs::absolute(host::fromUtf8(name), error).lexically_normal() : path;
}

/// A device or a folder is there already and cannot be replaced by a list.
void refuseWhatIsNoFile(const std::string& name, const fs::path& path) {
    std::error_code ignored;
    if (fs::exists(path, ignored) && !fs::is_regular_file(path, ignored)) {
        refuse("--output " + name + ": it exists and is not a file");
    }
}

}  // namespace

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
        const auto [first, isNew] = written.try_emplace(path, index);
        if (!isNew) {
            refuse(names[index] + ": would be written twice, for " + sources[first->second] +
                   " and for " + sources[index] + "; name them differently, as in " +
                   "{dir}/{stem}.csv");
        }
    }
}

}  // namespace workbench
