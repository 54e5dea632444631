#pragma once

#include "host/base/last_error.h"
#include "host/base/object.h"
#include "host/design/design_data.h"
#include "host/design/edits.h"

#include <Core/Enums.h>
#include <Fusion/Sketch.h>

#include <cstddef>
#include <string>
#include <vector>

namespace host {

/// One curve of a sketch, without its interface.
class SketchCurveState {
public:
    SketchCurveState(Edits& edits, SketchCurveData data) : edits_(&edits), data_(data) {}
    SketchCurveState(const SketchCurveState&) = delete;
    SketchCurveState& operator=(const SketchCurveState&) = delete;
    virtual ~SketchCurveState() = default;

    /// This curve as the API sees it.
    [[nodiscard]] virtual fusion::SketchCurve* api() = 0;

    /// Cuts it off from its document.
    virtual void dispose() = 0;

    [[nodiscard]] const SketchCurveData& state() const { return data_; }

protected:
    bool setReference(bool value);
    bool setConstruction(bool value);

private:
    Edits* edits_;
    SketchCurveData data_;
};

/// A curve of one kind.
template <class Interface>
class SketchCurveObject final : public Object<Interface>, public SketchCurveState {
public:
    using SketchCurveState::SketchCurveState;

    [[nodiscard]] fusion::SketchCurve* api() override { return this; }

    [[nodiscard]] bool isReference() const override {
        return this->template get<"SketchEntity::isReference">(state().reference);
    }
    bool isReference(bool value) override {
        if (closed<"SketchEntity::isReference">(*this)) return {};
        return setReference(value);
    }
    [[nodiscard]] bool isConstruction() const override {
        return this->template get<"SketchCurve::isConstruction">(state().construction);
    }
    bool isConstruction(bool value) override {
        if (closed<"SketchCurve::isConstruction">(*this)) return {};
        return setConstruction(value);
    }

    void dispose() override { this->invalidate(); }
};

class SketchCurvesObject final : public Object<fusion::SketchCurves> {
public:
    SketchCurvesObject(Edits& edits, const std::vector<SketchCurveData>& curves);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<fusion::SketchCurve> item(std::size_t index) const override;

    [[nodiscard]] std::vector<SketchCurveData> snapshot() const;
    void dispose();

private:
    struct Item {
        core::Ptr<fusion::SketchCurve> api;
        SketchCurveState* state;  ///< the same object
    };
    template <class Interface>
    static Item makeCurve(Edits& edits, const SketchCurveData& data);
    static Item makeItem(Edits& edits, const SketchCurveData& data);

    std::vector<Item> items_;
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
