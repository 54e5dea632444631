#include "host/import/cached_reading.h"

#include "host/import/content_hash.h"
#include "host/import/reader_libraries.h"
#include "host/import/reader_process.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

/// The entry of a file that refers to others.
constexpr const char* kSeveralFiles = "several files\n";

constexpr const char* kTreeOnly = "tree";

}  // namespace

CachedReading::CachedReading(ReadingCache cache, fs::path program,
                             std::vector<std::string> arguments, const ReadingLimits& limits)
    : cache_(std::move(cache)),
      program_(std::move(program)),
      arguments_(std::move(arguments)),
      limits_(limits) {}

std::shared_ptr<RememberedReader> CachedReading::open() const {
    const auto start = [program = program_, arguments = arguments_, limits = limits_] {
        return std::make_unique<ReaderProcess>(program, arguments, limits);
    };
    std::vector<fs::path> files = {arguments_.front()};
    std::string key = keyOf(files);
    if (findReading(cache_, key) == kSeveralFiles) {
        files = filesOfTree();
        key = sha256Of(keyOf(files) + kSeveralFiles);
    }
    return std::make_shared<RememberedReader>(cache_, key, files, start);
}

void CachedReading::allowKeeping(RememberedReader& reader, const std::vector<fs::path>& files,
                                 bool refersToMissing) const {
    if (files.empty()) {
        return;
    }
    if (files.size() == 1 && !refersToMissing) {
        reader.allowKeeping(keyOf(files), files);
        return;
    }
    keepReading(cache_, keyOf({files.front()}), kSeveralFiles);
    reader.allowKeeping(sha256Of(keyOf(files) + kSeveralFiles), files);
}

std::string CachedReading::keyOf(const std::vector<fs::path>& files) const {
    if (cache_.folder.empty()) {
        return {};
    }
    std::string text = sha256OfFile(program_) + "\n" + stampsOf(readerLibraries());
    for (const fs::path& file : files) {
        text += file.filename().string() + "\n" + sha256OfFile(file) + "\n";
    }
    // Time, memory and threads are left out: they decide only whether and when the reader responds.
    constexpr std::size_t kOccurrences = 2;
    constexpr std::size_t kSeconds = 4;
    constexpr std::size_t kThreads = 6;
    for (std::size_t at = kOccurrences; at < arguments_.size(); ++at) {
        text += at >= kSeconds && at <= kThreads ? "" : arguments_[at] + "\n";
    }
    return sha256Of(text);
}

/// The files that the design consists of now, as far as they are there.
std::vector<fs::path> CachedReading::filesOfTree() const {
    std::vector<std::string> arguments = arguments_;
    if (arguments.back() != kTreeOnly) {
        arguments.emplace_back(kTreeOnly);
    }
    ReaderProcess reader(program_, arguments, limits_);
    try {
        for (;;) {
            const json line = json::parse(reader.receive());
            if (line.contains("design")) {
                const auto names = line["design"].at("files").get<std::vector<std::string>>();
                return {names.begin(), names.end()};
            }
            if (line.contains("error")) {
                break;
            }
        }
    } catch (const json::exception&) {
        // The reading that follows reports what is wrong.
    }
    return {arguments_.front()};
}

}  // namespace host
