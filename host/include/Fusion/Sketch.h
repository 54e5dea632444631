#pragma once

#include <Core/Collection.h>

namespace adsk::fusion {

class SketchCurves;

/// A sketch: flat curves that bodies are made from.
class Sketch : public core::Base {
public:
    static const char* classType();

    [[nodiscard]] virtual core::Ptr<SketchCurves> sketchCurves() const = 0;
};

/// Something drawn in a sketch.
class SketchEntity : public core::Base {
public:
    static const char* classType();

    /// Whether it is projected from elsewhere and follows what it was projected from.
    [[nodiscard]] virtual bool isReference() const = 0;

    /// Cuts it loose: only false can be set.
    virtual bool isReference(bool value) = 0;
};

/// A curve of a sketch.
class SketchCurve : public SketchEntity {
public:
    static const char* classType();

    /// Whether it only helps to draw, and bounds no profile.
    [[nodiscard]] virtual bool isConstruction() const = 0;
    virtual bool isConstruction(bool value) = 0;
};

/// All curves of a sketch.
class SketchCurves : public core::CollectionOf<SketchCurve> {
public:
    static const char* classType();
};

}  // namespace adsk::fusion
