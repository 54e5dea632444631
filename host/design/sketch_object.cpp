#include "host/design/sketch_object.h"

#include "host/base/last_error.h"

namespace host {

bool SketchCurveObject::isReference(bool value) {
    if (closed<"SketchEntity::isReference">(*this)) return {};
    if (value && !data_.reference) {
        return fail(core::BadApiCallError, "a drawn curve cannot be made a projected one");
    }
    data_.reference = value;
    ++edits_->all;
    return true;
}

bool SketchCurveObject::isConstruction(bool value) {
    if (closed<"isConstruction">(*this)) return {};
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
    if (closed<"count">(*this)) return {};
    return items_.size();
}

core::Ptr<fusion::SketchCurve> SketchCurvesObject::item(std::size_t index) const {
    if (closed<"item">(*this) || index >= items_.size()) return {};
    return items_[index];
}

std::vector<SketchCurveData> SketchCurvesObject::snapshot() const {
    std::vector<SketchCurveData> all;
    all.reserve(items_.size());
    for (const core::Ptr<SketchCurveObject>& each : items_) {
        all.push_back(each->state());
    }
    return all;
}

void SketchCurvesObject::dispose() {
    for (const core::Ptr<SketchCurveObject>& each : items_) {
        each->dispose();
    }
    items_.clear();
    invalidate();
}

SketchObject::SketchObject(Edits& edits, const SketchData& data)
    : name_(data.name), curves_(make<SketchCurvesObject>(edits, data.curves)) {}

void SketchObject::dispose() {
    curves_->dispose();
    invalidate();
}

}  // namespace host
