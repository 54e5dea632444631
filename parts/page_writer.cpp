#include "parts/page_writer.h"

#include "parts/json_text.h"
#include "parts/json_writer.h"
#include "parts/places.h"

#include "host/base/base64.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>

namespace parts {
namespace {

constexpr int kPageVersion = 1;
constexpr std::string_view kPartsMark = "@PARTS@";
constexpr std::string_view kModelMark = "@MODEL@";
constexpr std::string_view kHashMark = "sha256:";

/// The name without its folders, those of either system.
std::string fileName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

Json fileJson(const ListSource& source) {
    const bool isMarked = source.hash.starts_with(kHashMark);
    return {{"name", fileName(source.file)},
            {"sha256", isMarked ? source.hash.substr(kHashMark.size()) : source.hash}};
}

std::string listJson(const PartsList& list) {
    std::ostringstream text;
    writeJson(list, JsonLayout::Line, text);
    return text.str();
}

std::string viewJson(const PartsList& list, const host::DesignData& design, PathTable& paths) {
    return "{\"list\":" + listJson(list) +
           ",\"occurrences\":" + dumped(Json(placesOf(list, design, paths))) + "}";
}

std::string dataOf(const host::DesignData& design, const std::vector<PartsList>& lists) {
    PathTable paths;
    std::string views;
    for (const PartsList& list : lists) {
        views += (views.empty() ? "" : ",") + viewJson(list, design, paths);
    }
    const Json file = fileJson(lists.empty() ? ListSource{} : lists.front().source);
    return "{\"schema\":\"tarnix-page\",\"version\":" + std::to_string(kPageVersion) +
           ",\"file\":" + dumped(file) + ",\"paths\":" + dumped(Json(paths.paths())) +
           ",\"views\":[" + views + "]}";
}

/// JSON in which no tag begins: within a script element one could end it.
std::string withoutTags(const std::string& json) {
    std::string text;
    text.reserve(json.size());
    for (const char each : json) {
        if (each == '<') {
            text += "\\u003c";
        } else {
            text += each;
        }
    }
    return text;
}

std::size_t find(std::string_view pageTemplate, std::string_view mark) {
    const std::size_t at = pageTemplate.find(mark);
    if (at == std::string_view::npos) {
        throw std::logic_error("the page's template has no " + std::string(mark));
    }
    return at;
}

}  // namespace

void writePage(std::string_view pageTemplate, const host::DesignData& design,
               const std::vector<PartsList>& lists, std::string_view model, std::ostream& stream) {
    const std::size_t list = find(pageTemplate, kPartsMark);
    const std::size_t rest = list + kPartsMark.size();
    const std::size_t end = rest + find(pageTemplate.substr(rest), kModelMark);
    stream << pageTemplate.substr(0, list) << withoutTags(dataOf(design, lists))
           << pageTemplate.substr(rest, end - rest) << host::toBase64(model)
           << pageTemplate.substr(end + kModelMark.size());
}

}  // namespace parts
