#include "host/design/design_file.h"

#include "host/base/utf8_path.h"
#include "host/design/atomic_file.h"
#include "host/design/design_json.h"
#include "host/design/json_node.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFormat = "standin-host-design";
constexpr std::size_t kVersion = 1;

// What a byte of text can become while it is parsed: "0," is a number of 16 bytes in a list that is
// being moved to twice its size, "[]," a list beside it.
constexpr std::uintmax_t kBytesPerByte = 32;
constexpr std::uintmax_t kMegabyte = std::uintmax_t{1} << 20;

// Lists in lists are the one thing that takes more: a hundred bytes for each bracket.
constexpr std::size_t kDeepestNesting = 100;

[[noreturn]] void refuse(const fs::path& path, const std::string& reason,
                         std::optional<ReadingLimit> limit = {}) {
    throw DesignError(toUtf8(path) + ": " + reason, limit);
}

/// The prefix that a library puts before its message is of no use to the user.
std::string withoutOrigin(const std::string& text) {
    const std::size_t end = text.find("] ");
    return text.starts_with('[') && end != std::string::npos ? text.substr(end + 2) : text;
}

std::string readAll(const fs::path& path, std::size_t megabytes) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        refuse(path, fs::exists(path, error) ? "is no file" : "is not there");
    }
    if (fs::file_size(path, error) > megabytes * kMegabyte / kBytesPerByte) {
        refuse(path,
               "may take more than " + std::to_string(megabytes) +
                   " megabytes of memory; open a smaller design, or increase the limit",
               ReadingLimit::Megabytes);
    }
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    if (!stream || (content.str().empty() && content.fail())) {
        refuse(path, "cannot be read, or is empty");
    }
    return std::move(content).str();
}

/// The deepest nesting of brackets; those in strings do not count.
std::size_t nestingOf(const std::string& text) {
    std::size_t open = 0;
    std::size_t most = 0;
    bool quoted = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '"') {
            quoted = !quoted;
        } else if (quoted) {
            at += c == '\\' ? 1 : 0;
        } else if (c == '[' || c == '{') {
            most = std::max(most, ++open);
        } else if ((c == ']' || c == '}') && open > 0) {
            --open;
        }
    }
    return most;
}

ReadDesign parse(const std::string& text, std::size_t occurrences) {
    if (nestingOf(text) > kDeepestNesting) {
        throw DesignError("is not a design file: brackets are nested too deep");
    }
    const nlohmann::json json = nlohmann::json::parse(text);
    const JsonNode whole(json);
    if (whole.member("format").text() != kFormat) {
        whole.member("format").refuse("should be \"" + std::string(kFormat) + "\"");
    }
    if (whole.member("version").number() != kVersion) {
        whole.member("version").refuse("should be " + std::to_string(kVersion) +
                                       ": the file was written by another version");
    }
    ReadDesign design = fromJson(json);
    checkDesign(design.data);
    if (countOccurrences(design.data) > occurrences) {
        throw DesignError("would become more than " + std::to_string(occurrences) +
                              " occurrences; open a part of the assembly, or increase the limit",
                          ReadingLimit::Occurrences);
    }
    return design;
}

/// Where the source is now: at its path, or beside the design file when both were moved.
SourceFile findSource(const fs::path& path, const SourceFile& source) {
    std::error_code error;
    const fs::path stored = fromUtf8(source.path);
    const fs::path beside = fs::absolute(path, error).parent_path() / stored.filename();
    const bool moved = !fs::exists(stored, error) && fs::exists(beside, error);
    return {moved ? toUtf8(beside) : source.path, source.fingerprint};
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
        nlohmann::ordered_json json = {{"format", kFormat}, {"version", kVersion}};
        json.update(toJson(data));
        // One line for each component would be best to compare; an indent of one comes near.
        return {path, json.dump(/*indent=*/1, /*indent_char=*/' ', /*ensure_ascii=*/false,
                                nlohmann::json::error_handler_t::replace) +
                          "\n"};
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
    const std::string text = readAll(path, limits.megabytes);
    ReadDesign design;
    try {
        design = parse(text, limits.occurrences);
    } catch (const nlohmann::json::exception& error) {
        refuse(path, "is no design file: " + withoutOrigin(error.what()));
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
