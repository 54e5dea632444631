#pragma once

#include "host/import/reader/assembly.h"
#include "host/import/reader/colours.h"

#include <TopTools_IndexedMapOfShape.hxx>

#include <nlohmann/json.hpp>

#include <functional>
#include <istream>
#include <vector>

/// What the reader sends, a line of JSON each, in this order:
///
///     {"progress": {"stage": "Reading", "fraction": 0}}      any number of times
///     {"faults": "..."}                                      what may explain a crash from here on
///     {"warning": {"code": "...", "text": "...", ...}}       any number of times
///     {"error": "..."}   and it ends, or; with "limit": "occurrences" where that is exceeded
///     {"design": {...}}  and it responds to requests until its input ends:
///
///     measure SHAPE                  {"area": cm2, "volume": cm3}
///     box SHAPE C0 ... C11           {"min": [x, y, z], "max": [x, y, z]} in cm, or {} without
///                                    extent
///     invariants SHAPE               {"volume": cm3, ...}: the members of host::ShapeInvariants
///     class SHAPE                    {"class": number}, equal for equal shapes
///     mesh SHAPE DEFLECTION ANGLE TRIANGLES SECONDS
///                                    {"positionsMm": "...", ...}: the members of host::ShapeMesh,
///                                    or {} without any; and {"problem": "..."} where it is not
///                                    as asked for
///     curves CURVES DEFLECTION ANGLE TRIANGLES SECONDS
///                                    the same of curves
///     instances                      {"components": number of all components, "instances":
///                                    [{"path": [[component, use], ...], "colour": [r, g, b, a],
///                                    "body": number}, ...]}: instances with a colour of their own,
///                                    see host::InstanceColour; "body" where it is not for all
///
/// A component of the design has the number of its shape, or -1 where it has none, and of its
/// bodies; bodies without a shape were not built. One that has neither may have "curves", a number
/// of its own kind.
///
/// A response that a limit of time or memory has made what it is begins with "again": true, and is
/// not to be kept: the same request may have a better one another time.
///
/// C0 to C11 are the first three rows of a placement, translation in cm. A response that cannot be
/// computed is {"error": "..."}.
///
/// In a mesh, "detail" is the number of host::MeshDetail, a group is {"indexCount": number,
/// "colour": [r, g, b, a] or null, "body": number where there is one}, and points and indices are
/// the base64 of their bytes in memory. DEFLECTION is a part of the shape's diagonal, ANGLE is in
/// radians; meshes that are asked for in the same way one after the other are worked out on all
/// processors.
namespace step {

/// Sends one line to the process that started the program.
void sendLine(const nlohmann::json& line);

/// Sends what the reader turns to: "Reading" while Open CASCADE takes the file in, "Resolving"
/// while its products and places are found, "Building" while its shapes are built.
void sendStage(const char* stage);

/// Sends a warning; members without a value are left out.
void sendWarning(const Warning& warning);

/// The tree with the components that its roots lead to.
nlohmann::json designOf(const Assembly& assembly);

/// What is asked for when something is to be drawn.
struct DrawingSource {
    std::function<Paint()> paint;
    std::function<nlohmann::json()> instances;  ///< the response
    const std::vector<TopoDS_Shape>& curves;
};

/// The response to "instances".
nlohmann::json instancesOf(const Assembly& assembly);

/// Answers requests until there are no more.
void answerRequests(std::istream& requests, const TopTools_IndexedMapOfShape& shapes,
                    const DrawingSource& drawing);

}  // namespace step
