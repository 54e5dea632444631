#pragma once

#include "host/base/object.h"
#include "host/design/design_data.h"
#include "host/design/edits.h"

#include <Fusion/Sketch.h>

#include <cstddef>
#include <string>
#include <vector>

namespace host {

class SketchObject;

/// One curve of a sketch.
class SketchCurveObject final : public Object<fusion::SketchCurve> {
public:
    SketchCurveObject(Edits& edits, SketchCurveData data) : edits_(&edits), data_(data) {}

    [[nodiscard]] bool isReference() const override {
        return get<"SketchEntity::isReference">(data_.reference);
    }
    bool isReference(bool value) override;
    [[nodiscard]] bool isConstruction() const override {
        return get<"isConstruction">(data_.construction);
    }
    bool isConstruction(bool value) override;

    [[nodiscard]] const SketchCurveData& state() const { return data_; }
    void dispose() { invalidate(); }

private:
    Edits* edits_;
    SketchCurveData data_;
};

class SketchCurvesObject final : public Object<fusion::SketchCurves> {
public:
    SketchCurvesObject(Edits& edits, const std::vector<SketchCurveData>& curves);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<fusion::SketchCurve> item(std::size_t index) const override;

    [[nodiscard]] std::vector<SketchCurveData> snapshot() const;
    void dispose();

private:
    std::vector<core::Ptr<SketchCurveObject>> items_;
};

class SketchObject final : public Object<fusion::Sketch> {
public:
    SketchObject(Edits& edits, const SketchData& data);

    [[nodiscard]] core::Ptr<fusion::SketchCurves> sketchCurves() const override {
        return get<"sketchCurves">(curves_);
    }

    [[nodiscard]] SketchData snapshot() const { return {name_, curves_->snapshot()}; }
    void dispose();

private:
    std::string name_;
    core::Ptr<SketchCurvesObject> curves_;
};

}  // namespace host
