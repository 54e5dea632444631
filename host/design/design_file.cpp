#include "host/design/design_file.h"

#include "host/base/utf8_path.h"
#include "host/design/atomic_file.h"
#include "host/design/design_json.h"
#include "host/design/json_node.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kVersion = 1;

// What a byte of text can become while it is parsed: "0," is a value of 16 bytes in a list that is
// being moved to twice its size, and a child of two members its 160 bytes of a design.
constexpr std::uintmax_t kBytesPerByte = 32;
constexpr std::uintmax_t kMegabyte = std::uintmax_t{1} << 20;

[[noreturn]] void refuse(const fs::path& path, const std::string& reason,
                         std::optional<ReadingLimit> limit = {}) {
    throw DesignError(toUtf8(path) + ": " + reason, limit);
}

std::string readAll(const fs::path& path, std::size_t megabytes) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        refuse(path, fs::exists(path, error) ? "is no file" : "is not there");
    }
    const std::uintmax_t size = fs::file_size(path, error);
    if (size > megabytes * kMegabyte / kBytesPerByte) {
        refuse(path,
               "may take more than " + std::to_string(megabytes) +
                   " megabytes of memory; open a smaller design, or increase the limit",
               ReadingLimit::Megabytes);
    }
    std::string content(static_cast<std::size_t>(size), '\0');
    std::ifstream stream(path, std::ios::binary);
    stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    content.resize(static_cast<std::size_t>(stream.gcount()));
    if (stream.bad() || content.empty()) {
        refuse(path, "cannot be read, or is empty");
    }
    return content;
}

ReadDesign parse(std::string text) {
    const JsonDocument json(std::move(text));
    const JsonNode whole(json);
    if (whole.member("format").text() != kDesignFileFormat) {
        whole.member("format").refuse("should be \"" + std::string(kDesignFileFormat) + "\"");
    }
    if (whole.member("version").number() != kVersion) {
        whole.member("version").refuse("should be " + std::to_string(kVersion) +
                                       ": the file was written by another version");
    }
    return fromJson(json);
}

void check(const DesignData& design, std::size_t occurrences) {
    checkDesign(design);
    if (countOccurrences(design) > occurrences) {
        throw DesignError("would become more than " + std::to_string(occurrences) +
                              " occurrences; open a part of the assembly, or increase the limit",
                          ReadingLimit::Occurrences);
    }
}

/// Where the source is now: at its path, or beside the design file when both were moved.
SourceFile findSource(const fs::path& path, const SourceFile& source) {
    std::error_code error;
    const fs::path stored = fromUtf8(source.path);
    const fs::path beside = fs::absolute(path, error).parent_path() / stored.filename();
    const bool moved = !fs::exists(stored, error) && fs::exists(beside, error);
    return {moved ? toUtf8(beside) : source.path, source.fingerprint};
}

using Json = nlohmann::ordered_json;

/// A line for each member of the design and of its components, and for each of their children and
/// attributes: what changes in a design changes few lines of its file.
void appendLines(const Json& json, std::size_t level, std::string& text) {
    constexpr std::size_t kLevels = 4;
    const auto onOneLine = [](const Json& value) {
        return value.dump(/*indent=*/-1, /*indent_char=*/' ', /*ensure_ascii=*/false,
                          Json::error_handler_t::replace);
    };
    if (level == kLevels || !json.is_structured() || json.empty()) {
        text += onOneLine(json);
        return;
    }
    const char* separator = json.is_object() ? "{" : "[";
    for (const auto& [key, value] : json.items()) {
        text.append(separator).append("\n").append(level + 1, ' ');
        separator = ",";
        if (json.is_object()) {
            text.append(onOneLine(key)).append(": ");
        }
        appendLines(value, level + 1, text);
    }
    text.append("\n").append(level, ' ').append(json.is_object() ? "}" : "]");
}

/// Takes the bodies over from the source.
void readBodies(const fs::path& path, ReadDesign& design, const ReadSource& readSource) {
    const SourceFile source = findSource(path, *design.data.source);
    if (!readSource) {
        refuse(path, "its bodies are in " + source.path + ", which cannot be read here");
    }
    const DesignData read = readSource(source);
    if (!read.source || read.source->fingerprint != source.fingerprint ||
        read.components.size() != design.data.components.size()) {
        refuse(path, "its source " + source.path +
                         " has changed since; put the former file in its place, or import the new "
                         "one");
    }
    for (std::size_t index = 0; index < read.components.size(); ++index) {
        if (design.hasSourceBodies[index]) {
            design.data.components[index].geometry = read.components[index].geometry;
        }
    }
    design.data.source = source;
}

}  // namespace

AtomicFile stageDesignFile(const fs::path& path, const DesignData& data) {
    try {
        checkDesign(data);
        Json json = {{"format", kDesignFileFormat}, {"version", kVersion}};
        json.update(toJson(data));
        std::string text;
        appendLines(json, 0, text);
        return {path, text + "\n"};
    } catch (const DesignError& error) {
        refuse(path, error.what());
    } catch (const std::system_error& error) {
        refuse(path, error.what());
    }
}

void saveDesignFile(const fs::path& path, const DesignData& data) {
    try {
        stageDesignFile(path, data).commit();
    } catch (const std::system_error& error) {
        refuse(path, error.what());
    }
}

DesignData loadDesignFile(const fs::path& path, const ReadSource& readSource,
                          const ReadingLimits& limits) {
    std::string text = readAll(path, limits.megabytes);
    ReadDesign design;
    try {
        design = parse(std::move(text));
        check(design.data, limits.occurrences);
    } catch (const DesignError& error) {
        refuse(path, error.what(), error.limit());
    }
    const auto& inSource = design.hasSourceBodies;
    if (std::find(inSource.begin(), inSource.end(), true) != inSource.end()) {
        readBodies(path, design, readSource);
    }
    return std::move(design.data);
}

}  // namespace host
