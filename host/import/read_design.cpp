#include "host/import/read_design.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"

#include <fstream>
#include <string>

namespace host {
namespace {

/// Whether a file begins like JSON text: with a brace, after spaces and a byte order mark.
bool looksLikeDesignFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    constexpr std::size_t kEnough = 4096;
    std::string start(kEnough, '\0');
    stream.read(start.data(), kEnough);
    start.resize(static_cast<std::size_t>(stream.gcount()));
    const std::string mark = "\xEF\xBB\xBF";
    const std::size_t from = start.rfind(mark, 0) == 0 ? mark.size() : 0;
    const std::size_t first = start.find_first_not_of(" \t\r\n", from);
    return first != std::string::npos && start[first] == '{';
}

}  // namespace

DesignData readDesign(const std::filesystem::path& file, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    if (!looksLikeDesignFile(file)) {
        return importStep(toUtf8(file), limits, progress, warnings);
    }
    return loadDesignFile(
        file,
        [&](const SourceFile& source) {
            return importStep(source.path, limits, progress, warnings);
        },
        limits);
}

}  // namespace host
