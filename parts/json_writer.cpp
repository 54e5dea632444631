#include "parts/json_writer.h"

#include "parts/json_text.h"

#include "host/base/base64.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <utility>

namespace parts {
namespace {

constexpr int kVersion = 1;

Json toJson(const Cell& cell) {
    if (const auto* const text = std::get_if<std::string>(&cell)) {
        return *text;
    }
    if (const auto* const number = std::get_if<Number>(&cell)) {
        return number->decimals == kWhole ? Json(static_cast<std::int64_t>(number->value))
                                          : Json(number->value);
    }
    if (const auto* const extents = std::get_if<Extents>(&cell)) {
        return extents->values;
    }
    const auto* const picture = std::get_if<Picture>(&cell);
    return picture == nullptr ? Json() : Json(picture->shape);
}

Json toJson(const ListColumn& column) {
    Json node = {{"key", column.key}, {"caption", column.caption}};
    if (column.unit != nullptr) {
        node["unit"] = column.unit->name;
    }
    return node;
}

Json toJson(const Conflict& conflict) {
    return {{"what", conflict.what},
            {"item", conflict.item},
            {"values", conflict.values},
            {"components", conflict.components}};
}

Json toJson(const PossibleDuplicate& duplicate) {
    return {{"shape", duplicate.shape}, {"items", duplicate.items}};
}

Json toJson(const ListWarning& warning) {
    return {{"code", warning.code}, {"text", warning.text}, {"component", warning.component}};
}

template <class Values>
Json listOf(const Values& values) {
    Json list = Json::array();
    for (const auto& value : values) {
        list.push_back(toJson(value));
    }
    return list;
}

const char* nameOf(RowKind kind) {
    switch (kind) {
        case RowKind::Assembly:
            return "assembly";
        case RowKind::OwnBodies:
            return "own-bodies";
        case RowKind::Part:
            break;
    }
    return "part";
}

template <class Optional>
Json orNull(const Optional& value) {
    return value ? Json(*value) : Json();
}

/// Writes a list out, row for row: the whole of it as JSON would take many times its memory.
class JsonWriter {
public:
    JsonWriter(const PartsList& list, JsonLayout layout, std::ostream& stream)
        : list_(list), lineEnd_(layout == JsonLayout::Indented ? "\n" : ""), stream_(stream) {
        for (std::size_t row = 0; row < list.rows.size(); ++row) {
            if (list.rows[row].parent) {
                children_[*list.rows[row].parent].push_back(list.rows[row].item);
            }
        }
    }

    void write() {
        stream_ << "{" << lineEnd_;
        writeHead();
        writeRows();
        write("totals", totals());
        write("conflicts", listOf(list_.conflicts));
        write("possibleDuplicates", listOf(list_.duplicates));
        writePictures();
        stream_ << "\"warnings\":" << dumped(listOf(list_.warnings)) << lineEnd_ << "}\n";
    }

private:
    void write(const char* name, const Json& value) {
        stream_ << "\"" << name << "\":" << dumped(value) << "," << lineEnd_;
    }

    void writeHead() {
        write("schema", "tarnix-parts");
        write("version", kVersion);
        write("design", list_.design);
        write("source", source());
        write("view", viewName(list_.request.view));
        write("mergeBy", mergingText(list_.request.merging));
        write("multiply", list_.request.multiply);
        write("units", units());
        write("columns", listOf(list_.columns));
    }

    [[nodiscard]] Json source() const {
        Json node = {{"file", list_.source.file}};
        if (!list_.source.hash.empty()) {
            node["hash"] = list_.source.hash;
        }
        return node;
    }

    [[nodiscard]] Json units() const {
        const Units& units = list_.request.units;
        return {{"length", units.length->name},
                {"area", units.area->name},
                {"volume", units.volume->name},
                {"mass", units.mass->name},
                {"density", units.density->name}};
    }

    void writeRows() {
        stream_ << "\"rows\":[";
        for (std::size_t row = 0; row < list_.rows.size(); ++row) {
            stream_ << (row == 0 ? "" : ",") << lineEnd_ << dumped(rowJson(row));
        }
        stream_ << lineEnd_ << "]," << lineEnd_;
    }

    [[nodiscard]] Json rowJson(std::size_t index) const {
        const PartsRow& row = list_.rows[index];
        const auto children = children_.find(index);
        return {{"item", row.item},
                {"kind", nameOf(row.kind)},
                {"level", row.level},
                {"path", row.path},
                {"parent", row.parent ? Json(list_.rows[*row.parent].item) : Json()},
                {"children", children == children_.end() ? Json::array() : Json(children->second)},
                {"quantity", row.quantity},
                {"quantityPerParent", row.perParent == 0 ? Json() : Json(row.perParent)},
                {"components", members(row)},
                {"usedIn", uses(row)},
                {"massKg", orNull(row.mass)},
                {"totalMassKg", orNull(row.totalMass)},
                {"shape", orNull(row.shape)},
                {"assumed", row.isAssumed},
                {"unmeasured", row.isUnmeasured},
                {"cells", cells(row)}};
    }

    [[nodiscard]] Json cells(const PartsRow& row) const {
        Json node = Json::object();
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
            node[list_.columns[cell].key] = toJson(row.cells[cell]);
        }
        return node;
    }

    template <class Counted>
    [[nodiscard]] Json counted(const Counted& each) const {
        return {{"name", list_.componentNames[each.component]},
                {"partNumber", list_.componentNumbers[each.component]},
                {"quantity", each.quantity}};
    }

    [[nodiscard]] Json members(const PartsRow& row) const {
        Json node = Json::array();
        for (const Member& member : row.members) {
            node.push_back(counted(member));
        }
        return node;
    }

    [[nodiscard]] Json uses(const PartsRow& row) const {
        Json node = Json::array();
        for (const Use& use : row.usedIn) {
            node.push_back(counted(use));
        }
        return node;
    }

    [[nodiscard]] Json totals() const {
        return {{"rows", list_.rows.size()},
                {"quantity", list_.totals.quantity},
                {"massKg", orNull(list_.totals.massKg)},
                {"assumed", list_.totals.isAssumed},
                {"unmeasured", list_.totals.isUnmeasured}};
    }

    /// Each once, by the number of its shape.
    void writePictures() {
        std::map<int, const Picture*> pictures;
        for (const PartsRow& row : list_.rows) {
            for (const Cell& cell : row.cells) {
                if (const auto* const picture = std::get_if<Picture>(&cell)) {
                    pictures.emplace(picture->shape, picture);
                }
            }
        }
        Json node = Json::object();
        for (const auto& [shape, picture] : pictures) {
            node[std::to_string(shape)] = host::toBase64(*picture->png);
        }
        write("pictures", node);
    }

    const PartsList& list_;
    const char* lineEnd_;
    std::ostream& stream_;
    std::map<std::size_t, std::vector<std::string>> children_;
};

}  // namespace

void writeJson(const PartsList& list, JsonLayout layout, std::ostream& stream) {
    JsonWriter(list, layout, stream).write();
}

}  // namespace parts
