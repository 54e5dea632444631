#include "host/design/sketch_object.h"

#include "host/base/last_error.h"

using adsk::core::Ptr;
using adsk::fusion::SketchCurve;
using adsk::fusion::SketchCurves;

namespace host {

bool SketchCurveObject::isReference() const {
    if (closed<"SketchEntity::isReference">(*this)) return {};
    return data_.reference;
}

bool SketchCurveObject::isReference(bool value) {
    if (closed<"SketchEntity::isReference">(*this)) return {};
    if (value && !data_.reference) {
        return fail(adsk::core::BadApiCallError, "a drawn curve cannot be made a projected one");
    }
    data_.reference = value;
    ++edits_->all;
    return true;
}

bool SketchCurveObject::isConstruction() const {
    if (closed<"SketchCurve::isConstruction">(*this)) return {};
    return data_.construction;
}

bool SketchCurveObject::isConstruction(bool value) {
    if (closed<"SketchCurve::isConstruction">(*this)) return {};
    data_.construction = value;
    ++edits_->all;
    return true;
}

SketchCurvesObject::SketchCurvesObject(Edits& edits, const std::vector<SketchCurveData>& curves) {
    items_.reserve(curves.size());
    for (const SketchCurveData& curve : curves) {
        items_.push_back(make<SketchCurveObject>(edits, curve));
    }
}

std::size_t SketchCurvesObject::count() const {
    if (closed<"SketchCurves::count">(*this)) return {};
    return items_.size();
}

Ptr<SketchCurve> SketchCurvesObject::item(std::size_t index) const {
    if (closed<"SketchCurves::item">(*this) || index >= items_.size()) return {};
    return items_[index];
}

std::vector<SketchCurveData> SketchCurvesObject::data() const {
    std::vector<SketchCurveData> all;
    all.reserve(items_.size());
    for (const Ptr<SketchCurveObject>& each : items_) {
        all.push_back(each->data());
    }
    return all;
}

void SketchCurvesObject::end() {
    for (const Ptr<SketchCurveObject>& each : items_) {
        each->end();
    }
    items_.clear();
    invalidate();
}

SketchObject::SketchObject(Edits& edits, const SketchData& data)
    : name_(data.name), curves_(make<SketchCurvesObject>(edits, data.curves)) {}

Ptr<SketchCurves> SketchObject::sketchCurves() const {
    if (closed<"Sketch::sketchCurves">(*this)) return {};
    return curves_;
}

void SketchObject::end() {
    curves_->end();
    invalidate();
}

}  // namespace host
