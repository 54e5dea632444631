#include "host/import/reader/colours.h"

#include <Quantity_Color.hxx>
#include <STEPConstruct.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepVisual_Colour.hxx>
#include <StepVisual_ContextDependentOverRidingStyledItem.hxx>
#include <StepVisual_OverRidingStyledItem.hxx>
#include <StepVisual_PresentationStyleByContext.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shape.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace step {
namespace {

std::uint8_t byteOf(double value) {
    constexpr double kFull = 255;
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 1.0) * kFull));
}

/// An instance may be coloured apart from the others of its part: see instance_colours.h.
bool isOfPart(const Handle(StepVisual_StyledItem) & style) {
    return !style.IsNull() && !style->Item().IsNull() && !isOfInstance(style);
}

/// A compound passes its colour on to the bodies in it: it is taken apart later.
void setColour(const TopoDS_Shape& shape, const host::Rgba& colour, Colours& colours) {
    if (shape.ShapeType() != TopAbs_COMPOUND) {
        colours.try_emplace(shape.TShape().get(), colour);
        return;
    }
    for (TopoDS_Iterator inside(shape); inside.More(); inside.Next()) {
        setColour(inside.Value(), colour, colours);
    }
}

void addColour(const STEPConstruct_Styles& styles, const Handle(StepVisual_StyledItem) & style,
               Colours& colours) {
    const TopoDS_Shape shape = STEPConstruct::FindShape(styles.TransientProcess(), style->Item());
    const std::optional<host::Rgba> colour = surfaceColourOf(styles, style);
    if (shape.IsNull() || !colour) {
        return;
    }
    if (shape.ShapeType() != TopAbs_COMPOUND) {
        colours.erase(shape.TShape().get());
    }
    setColour(shape, *colour, colours);
}

void addColours(const StepFile& file, Colours& colours) {
    STEPConstruct_Styles styles(file.reader.WS());
    if (!styles.LoadStyles()) {
        return;
    }
    // What overrides a style follows what it overrides.
    for (const bool overriding : {false, true}) {
        for (int number = 1; number <= styles.NbStyles(); ++number) {
            const Handle(StepVisual_StyledItem) style = styles.Style(number);
            if (isOfPart(style) &&
                style->IsKind(STANDARD_TYPE(StepVisual_OverRidingStyledItem)) == overriding) {
                addColour(styles, style, colours);
            }
        }
    }
}

}  // namespace

bool isOfInstance(const Handle(StepVisual_StyledItem) & style) {
    if (style->IsKind(STANDARD_TYPE(StepVisual_ContextDependentOverRidingStyledItem))) {
        return true;
    }
    for (int number = 1; !style->Styles().IsNull() && number <= style->NbStyles(); ++number) {
        const Handle(StepVisual_PresentationStyleAssignment) each = style->StylesValue(number);
        if (!each.IsNull() && each->IsKind(STANDARD_TYPE(StepVisual_PresentationStyleByContext))) {
            return true;
        }
    }
    return false;
}

std::optional<host::Rgba> surfaceColourOf(const STEPConstruct_Styles& styles,
                                          const Handle(StepVisual_StyledItem) & style) {
    Handle(StepVisual_Colour) surface;
    Handle(StepVisual_Colour) boundary;
    Handle(StepVisual_Colour) curve;
    Handle(StepVisual_Colour) rendering;
    double transparency = 0;
    bool isUnused = false;
    Quantity_Color colour;
    if (!styles.GetColors(style, surface, boundary, curve, rendering, transparency, isUnused)) {
        return std::nullopt;
    }
    const Handle(StepVisual_Colour)& chosen = rendering.IsNull() ? surface : rendering;
    if (chosen.IsNull() || !STEPConstruct_Styles::DecodeColor(chosen, colour)) {
        return std::nullopt;
    }
    double red = 0;
    double green = 0;
    double blue = 0;
    colour.Values(red, green, blue, Quantity_TOC_sRGB);
    return host::Rgba{.red = byteOf(red),
                      .green = byteOf(green),
                      .blue = byteOf(blue),
                      .alpha = byteOf(rendering.IsNull() ? 1 : 1 - transparency)};
}

Colours coloursOf(const Assembly& assembly) {
    Colours colours;
    for (const auto& file : assembly.files) {
        addColours(*file, colours);
    }
    return colours;
}

}  // namespace step
