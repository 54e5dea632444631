#include "host/import/readable_file.h"

#include "host/base/utf8_path.h"
#include "host/import/step_import.h"

namespace host {

ReadableFile makeReadable(const std::filesystem::path& file, const ReadingLimits& /*limits*/) {
    if (file == "-") {
        throw ImportError(
            "standard input: cannot be read on Windows; the path of a file is needed");
    }
    return {.path = file,
            .shown = toUtf8(file),
            .again = file,
            .folder = file.parent_path(),
            .copy = nullptr};
}

}  // namespace host
