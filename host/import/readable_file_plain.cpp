#include "host/import/readable_file.h"

#include "host/base/utf8_path.h"
#include "host/import/step_import.h"

#include <string>
#include <system_error>

namespace host {
namespace {

/// Windows says of such a file that it is not there.
void refuseLongPath(const std::filesystem::path& file) {
    constexpr std::size_t kLongest = 259;
    std::error_code ignored;
    const std::size_t length = std::filesystem::absolute(file, ignored).native().size();
    if (length > kLongest) {
        throw ImportError(toUtf8(file) + ": its whole path has " + std::to_string(length) +
                          " characters, but Windows opens at most " + std::to_string(kLongest) +
                          "; move it to a shorter path");
    }
}

}  // namespace

ReadableFile makeReadable(const std::filesystem::path& file, const ReadingLimits& /*limits*/) {
    if (file == "-") {
        throw ImportError(
            "standard input: cannot be read on Windows; the path of a file is needed");
    }
    refuseLongPath(file);
    return {.path = file,
            .shown = toUtf8(file),
            .again = file,
            .folder = file.parent_path(),
            .copy = nullptr};
}

}  // namespace host
