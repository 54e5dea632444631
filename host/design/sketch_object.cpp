#include "host/design/sketch_object.h"

namespace host {

bool SketchCurveState::setReference(bool value) {
    if (value && !data_.reference) {
        return fail(core::BadApiCallError, "a drawn curve cannot be made a projected one");
    }
    edits_->history.remember([this, old = data_] { data_ = old; });
    data_.reference = value;
    ++edits_->all;
    return true;
}

bool SketchCurveState::setConstruction(bool value) {
    edits_->history.remember([this, old = data_] { data_ = old; });
    data_.construction = value;
    ++edits_->all;
    return true;
}

template <class Interface>
SketchCurvesObject::Item SketchCurvesObject::makeCurve(Edits& edits, const SketchCurveData& data) {
    const auto curve = make<SketchCurveObject<Interface>>(edits, data);
    return {.api = curve, .state = curve.get()};
}

SketchCurvesObject::Item SketchCurvesObject::makeItem(Edits& edits, const SketchCurveData& data) {
    switch (data.kind) {
        case SketchCurveKind::Line:
            return makeCurve<fusion::SketchLine>(edits, data);
        case SketchCurveKind::Arc:
            return makeCurve<fusion::SketchArc>(edits, data);
        case SketchCurveKind::Circle:
            return makeCurve<fusion::SketchCircle>(edits, data);
        case SketchCurveKind::Ellipse:
            return makeCurve<fusion::SketchEllipse>(edits, data);
        case SketchCurveKind::EllipticalArc:
            return makeCurve<fusion::SketchEllipticalArc>(edits, data);
        case SketchCurveKind::ConicCurve:
            return makeCurve<fusion::SketchConicCurve>(edits, data);
        case SketchCurveKind::FittedSpline:
            return makeCurve<fusion::SketchFittedSpline>(edits, data);
        case SketchCurveKind::FixedSpline:
            return makeCurve<fusion::SketchFixedSpline>(edits, data);
        case SketchCurveKind::ControlPointSpline:
            return makeCurve<fusion::SketchControlPointSpline>(edits, data);
        case SketchCurveKind::Unknown:
            break;
    }
    return makeCurve<fusion::SketchCurve>(edits, data);
}

SketchCurvesObject::SketchCurvesObject(Edits& edits, const std::vector<SketchCurveData>& curves) {
    items_.reserve(curves.size());
    for (const SketchCurveData& curve : curves) {
        items_.push_back(makeItem(edits, curve));
    }
}

std::size_t SketchCurvesObject::count() const {
    if (closed<"count">(*this)) return {};
    return items_.size();
}

core::Ptr<fusion::SketchCurve> SketchCurvesObject::item(std::size_t index) const {
    if (closed<"item">(*this) || index >= items_.size()) return {};
    return items_[index].api;
}

std::vector<SketchCurveData> SketchCurvesObject::snapshot() const {
    std::vector<SketchCurveData> all;
    all.reserve(items_.size());
    for (const Item& each : items_) {
        all.push_back(each.state->state());
    }
    return all;
}

void SketchCurvesObject::dispose() {
    for (const Item& each : items_) {
        each.state->dispose();
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
