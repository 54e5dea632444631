#pragma once

#include <Core/Collection.h>

namespace adsk::fusion {

class SketchCurves;

/// A sketch: flat curves that bodies are made from.
class Sketch : public core::Base {
public:
    static const char* classType();  ///< "adsk::fusion::Sketch"

    /// The curves of the sketch; never null.
    [[nodiscard]] virtual core::Ptr<SketchCurves> sketchCurves() const = 0;
};

/// Something drawn in a sketch.
class SketchEntity : public core::Base {
public:
    static const char* classType();  ///< "adsk::fusion::SketchEntity"

    /// Whether it is projected from other geometry and follows it.
    [[nodiscard]] virtual bool isReference() const = 0;

    /// With false it no longer follows. False is returned for true on an entity that was drawn.
    virtual bool isReference(bool value) = 0;
};

/// A curve of a sketch.
class SketchCurve : public SketchEntity {
public:
    static const char* classType();  ///< "adsk::fusion::SketchCurve"

    /// Whether it is construction geometry, which bounds no profile.
    [[nodiscard]] virtual bool isConstruction() const = 0;
    /// Also possible for a projected curve.
    virtual bool isConstruction(bool value) = 0;
};

/// All curves of a sketch, in order of creation.
class SketchCurves : public core::CollectionOf<SketchCurve> {
public:
    static const char* classType();  ///< "adsk::fusion::SketchCurves"
};

}  // namespace adsk::fusion
