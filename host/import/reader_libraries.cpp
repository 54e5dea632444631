#include "host/import/reader_libraries.h"

#include <cstdlib>
#include <sstream>
#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> split(const std::string& text) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, ':');) {
        parts.push_back(part);
    }
    return parts;
}

/// In the order of the system's loader.
std::vector<fs::path> folders() {
    std::vector<fs::path> folders;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing here changes the environment in a thread
    if (const char* const given = std::getenv("LD_LIBRARY_PATH"); given != nullptr) {
        for (const std::string& folder : split(given)) {
            folders.emplace_back(folder.empty() ? "." : folder);
        }
    }
    folders.emplace_back(READER_LIBRARY_FOLDER);
    return folders;
}

}  // namespace

std::vector<fs::path> readerLibraries() {
    const std::vector<fs::path> places = folders();
    std::vector<fs::path> found;
    for (const std::string& name : split(READER_LIBRARIES)) {
        for (const fs::path& folder : places) {
            std::error_code ignored;
            if (fs::is_regular_file(folder / name, ignored)) {
                found.push_back(folder / name);
                break;
            }
        }
    }
    return found;
}

std::string stampsOf(const std::vector<fs::path>& files) {
    std::ostringstream stamps;
    for (const fs::path& file : files) {
        std::error_code ignored;
        stamps << fs::weakly_canonical(file, ignored).string() << " "
               << fs::file_size(file, ignored) << " "
               << fs::last_write_time(file, ignored).time_since_epoch().count() << "\n";
    }
    return stamps.str();
}

}  // namespace host
