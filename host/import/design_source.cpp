#include "host/import/design_source.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/import/step_source.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <string>

namespace host {
namespace {

[[noreturn]] void refuseAs(const ReadableFile& readable, const DesignError& error) {
    const std::string path = toUtf8(readable.path);
    const std::string line = error.what();
    throw DesignError(line.starts_with(path) ? readable.shown + line.substr(path.size()) : line,
                      error.limit());
}

}  // namespace

bool looksLikeDesignFile(const ReadableFile& readable) {
    std::ifstream stream(readable.path, std::ios::binary);
    constexpr std::size_t kEnough = 4096;
    std::string start(kEnough, '\0');
    stream.read(start.data(), kEnough);
    start.resize(static_cast<std::size_t>(stream.gcount()));
    const std::string mark = "\xEF\xBB\xBF";
    const std::size_t from = start.rfind(mark, 0) == 0 ? mark.size() : 0;
    const std::size_t first = start.find_first_not_of(" \t\r\n", from);
    return first != std::string::npos && start[first] == '{';
}

bool holdsDesignFile(const std::filesystem::path& file) {
    using nlohmann::json;
    std::ifstream stream(file, std::ios::binary);
    const auto isNearTop = [](int depth, json::parse_event_t /*event*/, json& /*value*/) {
        return depth <= 1;
    };
    const json read = json::parse(stream, isNearTop, /*allow_exceptions=*/false);
    const auto format = read.find("format");
    return format != read.end() && *format == kDesignFileFormat;
}

DesignData readDesignFrom(const ReadableFile& readable, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings) {
    if (!looksLikeDesignFile(readable)) {
        return importStepFrom(readable, limits, cache, progress, warnings);
    }
    const auto readSource = [&](const SourceFile& source) {
        return importStepFrom(makeReadable(fromUtf8(source.path), limits), limits, cache, progress,
                              warnings);
    };
    try {
        return loadDesignFile(readable.path, readSource, limits);
    } catch (const DesignError& error) {
        refuseAs(readable, error);
    }
}

}  // namespace host
