#include "host/design/outline.h"

#include "host/design/design_check.h"
#include "host/design/expansion.h"
#include "host/design/geometry.h"
#include "host/design/naming.h"
#include "host/design/outline_line.h"

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

namespace host {
namespace {

/// What the lines so far declare of one component.
struct Declared {
    std::size_t line = 0;  ///< the first one of it
    std::size_t childrenLine = 0;
    std::map<std::string, std::string> keys;
    std::vector<AttributeData> attributes;
    std::vector<OccurrenceData> children;
};

/// A line whose children are still being read.
struct Open {
    std::size_t component = 0;
    std::size_t line = 0;
    std::vector<OccurrenceData> children;
};

bool same(const OccurrenceData& left, const OccurrenceData& right) {
    return std::tie(left.component, left.transform, left.grounded, left.absent) ==
           std::tie(right.component, right.transform, right.grounded, right.absent);
}

bool same(const std::vector<OccurrenceData>& left, const std::vector<OccurrenceData>& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const auto& one, const auto& other) { return same(one, other); });
}

class Reader {
public:
    DesignData read(const std::string& text) {
        componentOf("");
        for (const OutlineLine& line : readOutlineLines(text)) {
            readLine(line);
        }
        closeTo(0);
        return design();
    }

private:
    void readLine(const OutlineLine& line) {
        if (open_.empty()) {
            base_ = line.indent;
            open_.push_back({0, 0, {}});
        }
        if (line.indent < base_ || (line.indent - base_) % 2 != 0) {
            refuseLine(line.number,
                       "the indent should be that of the first line and two spaces more "
                       "for each level");
        }
        const std::size_t level = (line.indent - base_) / 2 + 1;
        if (level > open_.size()) {
            refuseLine(line.number, "nothing is at the level above");
        }
        closeTo(level);
        const std::size_t component = line.absent ? 0 : componentOf(line.label);
        open_.back().children.push_back({.component = component,
                                         .transform = line.transform,
                                         .grounded = line.grounded,
                                         .absent = line.absent});
        if (line.absent) {
            return;
        }
        declare(declared_[component], line);
        open_.push_back({component, line.number, {}});
    }

    std::size_t componentOf(const std::string& label) {
        const auto [found, isNew] = indices_.emplace(label, declared_.size());
        if (isNew) {
            declared_.emplace_back();
            labels_.push_back(label);
        }
        return found->second;
    }

    static void declare(Declared& declared, const OutlineLine& line) {
        declared.line = declared.line == 0 ? line.number : declared.line;
        for (const auto& [key, value] : line.keys) {
            if (declared.keys.emplace(key, value).first->second != value) {
                refuseLine(line.number, key + "= differs from what an earlier line gives for \"" +
                                            line.label + "\"");
            }
        }
        if (!declared.attributes.empty() && !line.attributes.empty() &&
            declared.attributes != line.attributes) {
            refuseLine(line.number,
                       "the attributes differ from those that an earlier line gives for \"" +
                           line.label + "\"");
        }
        if (declared.attributes.empty()) {
            declared.attributes = line.attributes;
        }
    }

    /// Closes what is deeper than `level`.
    void closeTo(std::size_t level) {
        while (open_.size() > level) {
            close();
        }
    }

    void close() {
        const Open done = std::move(open_.back());
        open_.pop_back();
        Declared& declared = declared_[done.component];
        if (done.children.empty()) {
            return;
        }
        if (!declared.children.empty() && !same(declared.children, done.children)) {
            refuseLine(done.line, "what is in \"" + labels_[done.component] +
                                      "\" differs from what is in it at line " +
                                      std::to_string(declared.childrenLine));
        }
        declared.children = done.children;
        declared.childrenLine = done.line;
    }

    DesignData design() const {
        DesignData data;
        data.name = "Design";
        for (std::size_t index = 0; index < declared_.size(); ++index) {
            data.components.push_back(component(index));
        }
        if (const std::optional<std::size_t> cycle = expand(data).cycle) {
            refuseLine(declared_[*cycle].line, "\"" + labels_[*cycle] + "\" contains itself");
        }
        numberInstances(data);
        return data;
    }

    ComponentData component(std::size_t index) const {
        const Declared& declared = declared_[index];
        const auto value = [&](const char* key, const std::string& otherwise) {
            const auto found = declared.keys.find(key);
            return found == declared.keys.end() ? otherwise : found->second;
        };
        ComponentData data;
        data.name = value("name", index == 0 ? "Design" : labels_[index]);
        data.partNumber = value("number", data.name);
        data.description = value("description", "");
        data.document = value("document", "");
        data.material = material(value("material", "Steel:0.00785"), declared.line);
        data.geometry = geometry(value("box", ""), value("measures", ""), declared.line);
        data.attributes = declared.attributes;
        data.children = declared.children;
        return data;
    }

    static std::optional<MaterialData> material(const std::string& text, std::size_t line) {
        if (text == "none") {
            return std::nullopt;
        }
        const std::size_t colon = text.rfind(':');
        if (colon == std::string::npos) {
            refuseLine(line, "a material is written material=Name:density or material=none");
        }
        return MaterialData{.name = text.substr(0, colon),
                            .density = readNumbers(text.substr(colon + 1), ':', 1, line)[0]};
    }

    static std::shared_ptr<Geometry> geometry(const std::string& box, const std::string& measures,
                                              std::size_t line) {
        std::optional<Box> lengths;
        if (!box.empty()) {
            const std::vector<double> all = readNumbers(box, 'x', 3, line);
            lengths = Box{.min = {0, 0, 0}, .max = {all[0], all[1], all[2]}};
        }
        if (!measures.empty()) {
            const std::vector<double> both = readNumbers(measures, ':', 2, line);
            return fixedGeometry(both[0], both[1], lengths);
        }
        return lengths ? boxGeometry(lengths->max[0], lengths->max[1], lengths->max[2]) : nullptr;
    }

    std::size_t base_ = 0;
    std::vector<Open> open_;
    std::vector<Declared> declared_;
    std::vector<std::string> labels_;
    std::map<std::string, std::size_t> indices_;
};

}  // namespace

DesignData parseOutline(const std::string& text) {
    DesignData data = Reader().read(text);
    try {
        checkDesign(data);
    } catch (const DesignError& error) {
        throw std::invalid_argument(error.what());
    }
    return data;
}

}  // namespace host
