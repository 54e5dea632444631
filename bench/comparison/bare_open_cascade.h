#pragma once

#include <TopoDS_Shape.hxx>

#include <filesystem>

/// What Open CASCADE itself does with a STEP file, as its own examples have it: the measure of what
/// the workbench adds.
namespace bench {

/// Reads and transfers in this process, nothing else. Throws `std::runtime_error` that names a file
/// which cannot be read.
TopoDS_Shape bareRead(const std::filesystem::path& file);

/// Works out surface and volume of each solid, once however often it is placed. Returns the sum of
/// the volumes.
double bareMeasure(const TopoDS_Shape& whole);

}  // namespace bench
