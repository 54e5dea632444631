#include "parts/row_remarks.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

namespace parts {
namespace {

constexpr std::size_t kMostValues = 5;  // JSON has them all

using TextsOfItems = std::map<std::string, std::vector<std::string>>;

TextsOfItems textsOfItems(const PartsList& list) {
    TextsOfItems texts;
    for (const Conflict& conflict : list.conflicts) {
        const bool hasValues = !conflict.values.empty();
        texts[conflict.item].push_back(
            "different " + conflict.what + ": " +
            shortList(hasValues ? conflict.values : conflict.components));
    }
    for (const PossibleDuplicate& duplicate : list.duplicates) {
        for (const std::string& item : duplicate.items) {
            std::vector<std::string> others = duplicate.items;
            std::erase(others, item);
            texts[item].push_back("same shape as " + shortList(others));
        }
    }
    return texts;
}

}  // namespace

std::string shortList(const std::vector<std::string>& values) {
    std::string text;
    for (std::size_t index = 0; index < std::min(values.size(), kMostValues); ++index) {
        text += (index == 0 ? "" : ", ") + values[index];
    }
    const std::size_t others = values.size() - std::min(values.size(), kMostValues);
    return text + (others == 0 ? "" : " and " + std::to_string(others) + " more");
}

std::string doubtAbout(const PartsList& list, const PartsRow& row) {
    if (row.isUnmeasured) {
        return "unmeasured";
    }
    return row.isAssumed && restsOnMaterials(list.request) ? "material assumed" : "";
}

std::vector<std::string> rowRemarks(const PartsList& list) {
    const TextsOfItems texts = textsOfItems(list);
    std::vector<std::string> remarks;
    for (const PartsRow& row : list.rows) {
        std::string remark = doubtAbout(list, row);
        const auto found = texts.find(list.componentKeys[row.component]);
        // The bodies of an assembly's own are not what its number is for.
        if (found != texts.end() && row.kind != RowKind::OwnBodies) {
            for (const std::string& text : found->second) {
                remark += (remark.empty() ? "" : "; ") + text;
            }
        }
        remarks.push_back(std::move(remark));
    }
    return remarks;
}

}  // namespace parts
