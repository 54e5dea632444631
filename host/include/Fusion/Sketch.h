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

/// A curve of a sketch: one of the classes below, or of no class of its own where a file does not
/// say which.
class SketchCurve : public SketchEntity {
public:
    static const char* classType();  ///< "adsk::fusion::SketchCurve"

    /// Whether it is construction geometry, which bounds no profile.
    [[nodiscard]] virtual bool isConstruction() const = 0;
    /// Also possible for a projected curve.
    virtual bool isConstruction(bool value) = 0;
};

/// A straight line.
class SketchLine : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchLine"
};

/// An arc of a circle.
class SketchArc : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchArc"
};

/// A full circle.
class SketchCircle : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchCircle"
};

/// A full ellipse.
class SketchEllipse : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchEllipse"
};

/// An arc of an ellipse.
class SketchEllipticalArc : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchEllipticalArc"
};

/// A conic curve: an arc of an ellipse, a parabola or a hyperbola.
class SketchConicCurve : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchConicCurve"
};

/// A spline through points.
class SketchFittedSpline : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchFittedSpline"
};

/// A spline whose shape is fixed, as of projected or imported geometry.
class SketchFixedSpline : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchFixedSpline"
};

/// A spline given by its control points.
class SketchControlPointSpline : public SketchCurve {
public:
    static const char* classType();  ///< "adsk::fusion::SketchControlPointSpline"
};

/// All curves of a sketch, in order of creation.
class SketchCurves : public core::CollectionOf<SketchCurve> {
public:
    static const char* classType();  ///< "adsk::fusion::SketchCurves"
};

}  // namespace adsk::fusion
