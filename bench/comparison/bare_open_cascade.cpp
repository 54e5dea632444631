#include "bench/comparison/bare_open_cascade.h"

#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <STEPControl_Reader.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

#include <stdexcept>

namespace bench {

TopoDS_Shape bareRead(const std::filesystem::path& file) {
    STEPControl_Reader reader;
    if (reader.ReadFile(file.c_str()) != IFSelect_RetDone) {
        throw std::runtime_error(file.string() + ": Open CASCADE cannot read it");
    }
    reader.TransferRoots();
    return reader.OneShape();
}

double bareMeasure(const TopoDS_Shape& whole) {
    TopTools_IndexedMapOfShape solids;
    for (TopExp_Explorer each(whole, TopAbs_SOLID); each.More(); each.Next()) {
        solids.Add(each.Current().Located(TopLoc_Location()));
    }
    double sum = 0;
    for (int number = 1; number <= solids.Extent(); ++number) {
        GProp_GProps surface;
        BRepGProp::SurfaceProperties(solids(number), surface);
        GProp_GProps volume;
        BRepGProp::VolumeProperties(solids(number), volume);
        sum += volume.Mass();
    }
    return sum;
}

}  // namespace bench
