#include "host/import/read_design.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/import/read_tree.h"
#include "host/import/step_source.h"

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

/// What a copy is refused for is said of the file that it was made of.
[[noreturn]] void refuseAs(const ReadableFile& readable, const std::string& line) {
    const std::string path = toUtf8(readable.path);
    throw DesignError(line.starts_with(path) ? readable.shown + line.substr(path.size()) : line);
}

DesignData readAll(const ReadableFile& readable, const ReadingLimits& limits,
                   const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    if (!looksLikeDesignFile(readable.path)) {
        return importStepFrom(readable, limits, progress, warnings);
    }
    const auto readSource = [&](const SourceFile& source) {
        return importStepFrom(makeReadable(fromUtf8(source.path), limits), limits, progress,
                              warnings);
    };
    try {
        return loadDesignFile(readable.path, readSource, limits);
    } catch (const DesignError& error) {
        refuseAs(readable, error.what());
    }
}

}  // namespace

DesignData readDesign(const std::filesystem::path& file, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    return readAll(makeReadable(file, limits), limits, progress, warnings);
}

DesignData readTree(const std::filesystem::path& file, const ReadingLimits& limits,
                    const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    const ReadableFile readable = makeReadable(file, limits);
    return looksLikeDesignFile(readable.path)
               ? readAll(readable, limits, progress, warnings)
               : importTreeFrom(readable, limits, progress, warnings);
}

}  // namespace host
