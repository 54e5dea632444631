#include "host/import/reader/measure.h"

#include "host/import/reader/lengths.h"

#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepGProp.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>

#include <cmath>

namespace step {
Size sizeOf(const TopoDS_Shape& shape) {
    Size size;
    GProp_GProps surface;
    BRepGProp::SurfaceProperties(shape, surface);
    size.area = surface.Mass() / std::pow(kMillimetresPerCentimetre, 2);
    for (TopExp_Explorer solids(shape, TopAbs_SOLID); solids.More(); solids.Next()) {
        GProp_GProps inside;
        BRepGProp::VolumeProperties(solids.Current(), inside);
        // A solid that the file turned inside out has a negative volume.
        size.volume += std::abs(inside.Mass()) / std::pow(kMillimetresPerCentimetre, 3);
    }
    return size;
}

std::optional<Bounds> boundsOf(const TopoDS_Shape& shape, const gp_Trsf& placement) {
    BRepBuilderAPI_Transform placed(shape, placement);
    Bnd_Box box;
    BRepBndLib::AddOptimal(placed.Shape(), box, /*useTriangulation=*/false,
                           /*useShapeTolerance=*/false);
    if (box.IsVoid() || box.IsOpen()) {
        return std::nullopt;
    }
    box.SetGap(0);  // what Open CASCADE adds for the safety of other algorithms
    Bounds bounds;
    box.Get(bounds.min[0], bounds.min[1], bounds.min[2], bounds.max[0], bounds.max[1],
            bounds.max[2]);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        bounds.min[axis] /= kMillimetresPerCentimetre;
        bounds.max[axis] /= kMillimetresPerCentimetre;
    }
    return bounds;
}

}  // namespace step
