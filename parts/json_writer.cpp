#include "parts/json_writer.h"

#include "parts/json_text.h"

#include "host/base/base64.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace parts {
namespace {

constexpr int kVersion = 1;

void write(const Number& number, JsonText& text) {
    if (number.decimals == kWhole) {
        text.whole(static_cast<std::int64_t>(number.value));
    } else {
        text.number(number.value);
    }
}

void write(const Extents& extents, JsonText& text) {
    text.begin('[');
    for (const double value : extents.values) {
        text.number(value);
    }
    text.end(']');
}

void write(const std::string& string, JsonText& text) { text.string(string); }

/// The pictures come once, after all rows.
void write(const Picture& picture, JsonText& text) { text.whole(picture.shape); }

void write(std::monostate /*empty*/, JsonText& text) { text.null(); }

void write(const std::optional<double>& number, JsonText& text) {
    if (number) {
        text.number(*number);
    } else {
        text.null();
    }
}

Json toJson(const ListColumn& column) {
    Json node = {{"key", column.key}, {"caption", column.caption}};
    if (column.unit != nullptr) {
        node["unit"] = column.unit->name;
    }
    if (column.column.decimals) {
        node["decimals"] = *column.column.decimals;
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
            text_.clear();
            writeRow(row);
            stream_ << (row == 0 ? "" : ",") << lineEnd_ << text_.text();
        }
        stream_ << lineEnd_ << "]," << lineEnd_;
    }

    void writeRow(std::size_t index) {
        const PartsRow& row = list_.rows[index];
        text_.begin('{');
        writePlace(index);
        writeQuantities(row);
        writeMeasures(row);
        text_.name("cells");
        text_.begin('{');
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
            text_.name(list_.columns[cell].key);
            std::visit([this](const auto& value) { parts::write(value, text_); }, row.cells[cell]);
        }
        text_.end('}');
        text_.end('}');
    }

    void writePlace(std::size_t index) {
        const PartsRow& row = list_.rows[index];
        writeString("item", row.item);
        writeString("kind", nameOf(row.kind));
        writeWhole("level", row.level);
        writeString("path", row.path);
        text_.name("parent");
        row.parent ? text_.string(list_.rows[*row.parent].item) : text_.null();
        text_.name("children");
        text_.begin('[');
        if (const auto children = children_.find(index); children != children_.end()) {
            for (const std::string& item : children->second) {
                text_.string(item);
            }
        }
        text_.end(']');
    }

    void writeQuantities(const PartsRow& row) {
        writeWhole("quantity", row.quantity);
        text_.name("quantityPerParent");
        row.perParent == 0 ? text_.null() : text_.whole(row.perParent);
        writeCounted("components", row.members);
        writeCounted("usedIn", row.usedIn);
    }

    void writeMeasures(const PartsRow& row) {
        text_.name("massKg");
        parts::write(row.mass, text_);
        text_.name("totalMassKg");
        parts::write(row.totalMass, text_);
        text_.name("shape");
        row.shape ? text_.whole(*row.shape) : text_.null();
        text_.name("assumed");
        text_.flag(row.isAssumed);
        text_.name("unmeasured");
        text_.flag(row.isUnmeasured);
    }

    template <class Counted>
    void writeCounted(const char* name, const std::vector<Counted>& all) {
        text_.name(name);
        text_.begin('[');
        for (const Counted& each : all) {
            text_.begin('{');
            writeString("name", list_.componentNames[each.component]);
            writeString("partNumber", list_.componentNumbers[each.component]);
            writeWhole("quantity", each.quantity);
            text_.end('}');
        }
        text_.end(']');
    }

    void writeString(const char* name, std::string_view value) {
        text_.name(name);
        text_.string(value);
    }

    void writeWhole(const char* name, std::int64_t value) {
        text_.name(name);
        text_.whole(value);
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
    JsonText text_;  ///< of one row
    std::map<std::size_t, std::vector<std::string>> children_;
};

}  // namespace

void writeJson(const PartsList& list, JsonLayout layout, std::ostream& stream) {
    JsonWriter(list, layout, stream).write();
}

}  // namespace parts
