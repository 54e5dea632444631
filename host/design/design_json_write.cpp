#include "host/design/design_json.h"
#include "host/design/geometry.h"
#include "host/design/sketch_curve_kinds.h"

#include <cstddef>

namespace host {
namespace {

using Json = nlohmann::ordered_json;

Json attributesToJson(const std::vector<AttributeData>& attributes) {
    Json all = Json::array();
    for (const AttributeData& each : attributes) {
        all.push_back({{"group", each.group}, {"name", each.name}, {"value", each.value}});
    }
    return all;
}

Json occurrenceToJson(const OccurrenceData& occurrence) {
    if (occurrence.absent) {
        return {{"absent", true}};
    }
    Json json = {{"component", occurrence.component}, {"instance", occurrence.instance}};
    if (occurrence.transform != Transform()) {
        json["transform"] = occurrence.transform.cells;
    }
    if (occurrence.grounded) {
        json["grounded"] = true;
    }
    return json;
}

Json sketchToJson(const SketchData& sketch) {
    Json curves = Json::array();
    for (const SketchCurveData& each : sketch.curves) {
        curves.push_back({{"reference", each.reference}, {"construction", each.construction}});
        if (each.kind != SketchCurveKind::Unknown) {
            curves.back()["kind"] = kSketchCurveKinds.at(static_cast<std::size_t>(each.kind));
        }
    }
    return {{"name", sketch.name}, {"curves", curves}};
}

Json geometryToJson(Geometry& geometry, bool hasSource) {
    if (hasSource && dynamic_cast<FixedGeometry*>(&geometry) == nullptr) {
        return {{"source", true}};
    }
    Json json = {{"area", geometry.area()}, {"volume", geometry.volume()}};
    if (const std::optional<Box> box = geometry.box({})) {
        json["min"] = box->min;
        json["max"] = box->max;
    }
    if (const std::size_t bodies = geometry.bodies(); bodies != 1) {
        json["bodies"] = bodies;
    }
    return json;
}

Json materialToJson(const MaterialData& material) {
    Json json = {{"name", material.name}, {"density", material.density}};
    if (material.nameAssumed) json["nameAssumed"] = true;
    if (material.densityAssumed) json["densityAssumed"] = true;
    return json;
}

Json componentToJson(const ComponentData& component, bool hasSource) {
    Json json = {{"name", component.name}, {"partNumber", component.partNumber}};
    if (component.hasExplicitPartNumber) json["numberIsOwn"] = true;
    if (!component.description.empty()) json["description"] = component.description;
    if (!component.document.empty()) json["document"] = component.document;
    if (component.material) {
        json["material"] = materialToJson(*component.material);
    }
    if (!component.attributes.empty()) {
        json["attributes"] = attributesToJson(component.attributes);
    }
    for (const OccurrenceData& child : component.children) {
        json["children"].push_back(occurrenceToJson(child));
    }
    if (component.geometry) {
        json["geometry"] = geometryToJson(*component.geometry, hasSource);
    }
    for (const SketchData& sketch : component.sketches) {
        json["sketches"].push_back(sketchToJson(sketch));
    }
    return json;
}

}  // namespace

Json toJson(const DesignData& data) {
    Json json = {{"name", data.name}, {"unit", data.unit}};
    if (data.source) {
        json["source"] = {{"path", data.source->path}, {"fingerprint", data.source->fingerprint}};
    }
    if (!data.attributes.empty()) {
        json["attributes"] = attributesToJson(data.attributes);
    }
    json["components"] = Json::array();
    for (const ComponentData& component : data.components) {
        json["components"].push_back(componentToJson(component, data.source.has_value()));
    }
    return json;
}

}  // namespace host
