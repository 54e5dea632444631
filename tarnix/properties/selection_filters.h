#pragma once

/// The host's selection filters by name, in the order of its documentation: what a selection input
/// can be made to accept.
namespace tarnix::selection_filter {

inline constexpr const char* kBodies = "Bodies";
inline constexpr const char* kSolidBodies = "SolidBodies";
inline constexpr const char* kSurfaceBodies = "SurfaceBodies";
inline constexpr const char* kMeshBodies = "MeshBodies";
inline constexpr const char* kFaces = "Faces";
inline constexpr const char* kSolidFaces = "SolidFaces";
inline constexpr const char* kSurfaceFaces = "SurfaceFaces";
inline constexpr const char* kPlanarFaces = "PlanarFaces";
inline constexpr const char* kCylindricalFaces = "CylindricalFaces";
inline constexpr const char* kConicalFaces = "ConicalFaces";
inline constexpr const char* kSphericalFaces = "SphericalFaces";
inline constexpr const char* kToroidalFaces = "ToroidalFaces";
inline constexpr const char* kSplineFaces = "SplineFaces";
inline constexpr const char* kEdges = "Edges";
inline constexpr const char* kLinearEdges = "LinearEdges";
inline constexpr const char* kCircularEdges = "CircularEdges";
inline constexpr const char* kEllipticalEdges = "EllipticalEdges";
inline constexpr const char* kTangentEdges = "TangentEdges";
inline constexpr const char* kNonTangentEdges = "NonTangentEdges";
inline constexpr const char* kVertices = "Vertices";
inline constexpr const char* kRootComponents = "RootComponents";
inline constexpr const char* kOccurrences = "Occurrences";
inline constexpr const char* kSketches = "Sketches";
inline constexpr const char* kSketchConstraints = "SketchConstraints";
inline constexpr const char* kProfiles = "Profiles";
inline constexpr const char* kTexts = "Texts";
inline constexpr const char* kSketchCurves = "SketchCurves";
inline constexpr const char* kSketchLines = "SketchLines";
inline constexpr const char* kSketchCircles = "SketchCircles";
inline constexpr const char* kSketchPoints = "SketchPoints";
inline constexpr const char* kConstructionPoints = "ConstructionPoints";
inline constexpr const char* kConstructionLines = "ConstructionLines";
inline constexpr const char* kConstructionPlanes = "ConstructionPlanes";
inline constexpr const char* kFeatures = "Features";
inline constexpr const char* kCanvases = "Canvases";
inline constexpr const char* kDecals = "Decals";
inline constexpr const char* kJointOrigins = "JointOrigins";
inline constexpr const char* kJoints = "Joints";

}  // namespace tarnix::selection_filter
