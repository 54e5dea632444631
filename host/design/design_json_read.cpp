#include "host/design/design_json.h"
#include "host/design/geometry.h"
#include "host/design/json_node.h"
#include "host/design/sketch_curve_kinds.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace host {
namespace {

std::vector<AttributeData> readAttributes(const JsonNode& node) {
    std::vector<AttributeData> all;
    all.reserve(node.size());
    node.forEach([&](const JsonNode& each) {
        all.push_back(
            {each.member("group").text(), each.member("name").text(), each.member("value").text()});
    });
    return all;
}

template <std::size_t N>
std::array<double, N> readNumbers(const JsonNode& node) {
    if (node.size() != N) {
        node.refuse("should be a list of " + std::to_string(N) + " numbers");
    }
    std::array<double, N> numbers = {};
    std::size_t next = 0;
    node.forEach([&](const JsonNode& each) { numbers[next++] = each.number(); });
    return numbers;
}

OccurrenceData readOccurrence(const JsonNode& node) {
    OccurrenceData occurrence;
    occurrence.absent = node.flagOr("absent", false);
    if (occurrence.absent) {
        return occurrence;
    }
    occurrence.component = node.member("component").whole(std::numeric_limits<int>::max());
    occurrence.instance =
        static_cast<int>(node.member("instance").whole(std::numeric_limits<int>::max()));
    occurrence.grounded = node.flagOr("grounded", false);
    node.ifMember("transform", [&](const JsonNode& cells) {
        occurrence.transform.cells = readNumbers<16>(cells);
    });
    return occurrence;
}

SketchCurveKind readCurveKind(const JsonNode& node) {
    const std::string kind = node.textOr("kind", "");
    const auto* const found = std::find(kSketchCurveKinds.begin(), kSketchCurveKinds.end(), kind);
    if (found == kSketchCurveKinds.end()) {
        node.member("kind").refuse("is no kind of curve, such as \"line\" or \"circle\"");
    }
    return static_cast<SketchCurveKind>(found - kSketchCurveKinds.begin());
}

SketchData readSketch(const JsonNode& node) {
    SketchData sketch;
    sketch.name = node.member("name").text();
    node.member("curves").forEach([&](const JsonNode& each) {
        sketch.curves.push_back({.reference = each.member("reference").flag(),
                                 .construction = each.member("construction").flag(),
                                 .kind = readCurveKind(each)});
    });
    return sketch;
}

double readSize(const JsonNode& node) {
    const double size = node.number();
    if (!std::isfinite(size) || size < 0) {
        node.refuse("should be a number of 0 or more");
    }
    return size;
}

std::shared_ptr<Geometry> readGeometry(const JsonNode& node) {
    std::optional<Box> box;
    node.ifMember("min", [&](const JsonNode& min) {
        box = Box{.min = readNumbers<3>(min), .max = readNumbers<3>(node.member("max"))};
    });
    std::size_t bodies = 1;
    node.ifMember("bodies", [&](const JsonNode& count) {
        bodies = count.whole(std::numeric_limits<int>::max());
    });
    return fixedGeometry(readSize(node.member("area")), readSize(node.member("volume")), box,
                         bodies);
}

MaterialData readMaterial(const JsonNode& node) {
    return {.name = node.member("name").text(),
            .density = readSize(node.member("density")),
            .nameAssumed = node.flagOr("nameAssumed", false),
            .densityAssumed = node.flagOr("densityAssumed", false)};
}

ComponentData readComponent(const JsonNode& node) {
    ComponentData component;
    component.name = node.member("name").text();
    component.partNumber = node.member("partNumber").text();
    component.hasExplicitPartNumber = node.flagOr("numberIsOwn", false);
    component.description = node.textOr("description", "");
    component.document = node.textOr("document", "");
    node.ifMember("material",
                  [&](const JsonNode& found) { component.material = readMaterial(found); });
    node.ifMember("attributes",
                  [&](const JsonNode& found) { component.attributes = readAttributes(found); });
    node.ifMember("children", [&](const JsonNode& found) {
        component.children.reserve(found.size());
        found.forEach(
            [&](const JsonNode& each) { component.children.push_back(readOccurrence(each)); });
    });
    node.ifMember("sketches", [&](const JsonNode& found) {
        found.forEach(
            [&](const JsonNode& each) { component.sketches.push_back(readSketch(each)); });
    });
    return component;
}

void readComponents(const JsonNode& node, ReadDesign& design) {
    design.data.components.reserve(node.size());
    node.forEach([&](const JsonNode& each) {
        ComponentData component = readComponent(each);
        bool inSource = false;
        each.ifMember("geometry", [&](const JsonNode& found) {
            inSource = found.flagOr("source", false);
            if (inSource && !design.data.source) {
                found.refuse("the design names no source for it");
            }
            component.geometry = inSource ? nullptr : readGeometry(found);
        });
        design.data.components.push_back(std::move(component));
        design.hasSourceBodies.push_back(inSource);
    });
}

}  // namespace

ReadDesign fromJson(const JsonDocument& json) {
    const JsonNode whole(json);
    ReadDesign design;
    design.data.name = whole.member("name").text();
    design.data.unit = whole.textOr("unit", "");
    whole.ifMember("source", [&](const JsonNode& found) {
        design.data.source = SourceFile{.path = found.member("path").text(),
                                        .fingerprint = found.member("fingerprint").text()};
    });
    whole.ifMember("attributes",
                   [&](const JsonNode& found) { design.data.attributes = readAttributes(found); });
    readComponents(whole.member("components"), design);
    return design;
}

}  // namespace host
