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
class SketchCurveObject final : public Object<adsk::fusion::SketchCurve> {
public:
    SketchCurveObject(Edits& edits, SketchCurveData data) : edits_(&edits), data_(data) {}

    [[nodiscard]] bool isReference() const override;
    bool isReference(bool value) override;
    [[nodiscard]] bool isConstruction() const override;
    bool isConstruction(bool value) override;

    [[nodiscard]] const SketchCurveData& data() const { return data_; }
    void end() { invalidate(); }

private:
    Edits* edits_;
    SketchCurveData data_;
};

class SketchCurvesObject final : public Object<adsk::fusion::SketchCurves> {
public:
    SketchCurvesObject(Edits& edits, const std::vector<SketchCurveData>& curves);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] adsk::core::Ptr<adsk::fusion::SketchCurve> item(std::size_t index) const override;

    [[nodiscard]] std::vector<SketchCurveData> data() const;
    void end();

private:
    std::vector<adsk::core::Ptr<SketchCurveObject>> items_;
};

class SketchObject final : public Object<adsk::fusion::Sketch> {
public:
    SketchObject(Edits& edits, const SketchData& data);

    [[nodiscard]] adsk::core::Ptr<adsk::fusion::SketchCurves> sketchCurves() const override;

    [[nodiscard]] SketchData data() const { return {name_, curves_->data()}; }
    void end();

private:
    std::string name_;
    adsk::core::Ptr<SketchCurvesObject> curves_;
};

}  // namespace host
