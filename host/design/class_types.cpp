#include <Core/Attributes.h>
#include <Core/Data.h>
#include <Core/Document.h>
#include <Core/Geometry.h>
#include <Core/Import.h>
#include <Core/Material.h>
#include <Core/Product.h>
#include <Fusion/FusionAll.h>

// One definition each, so that a class and its objects answer with the same pointer.
namespace adsk::core {

const char* Attribute::classType() { return "adsk::core::Attribute"; }
const char* Attributes::classType() { return "adsk::core::Attributes"; }
const char* BoundingBox3D::classType() { return "adsk::core::BoundingBox3D"; }
const char* Data::classType() { return "adsk::core::Data"; }
const char* DataFile::classType() { return "adsk::core::DataFile"; }
const char* DataFileFuture::classType() { return "adsk::core::DataFileFuture"; }
const char* DataFiles::classType() { return "adsk::core::DataFiles"; }
const char* DataFolder::classType() { return "adsk::core::DataFolder"; }
const char* DataFolders::classType() { return "adsk::core::DataFolders"; }
const char* DataProject::classType() { return "adsk::core::DataProject"; }
const char* Document::classType() { return "adsk::core::Document"; }
const char* Documents::classType() { return "adsk::core::Documents"; }
const char* FusionArchiveImportOptions::classType() {
    return "adsk::core::FusionArchiveImportOptions";
}
const char* IGESImportOptions::classType() { return "adsk::core::IGESImportOptions"; }
const char* ImportManager::classType() { return "adsk::core::ImportManager"; }
const char* ImportOptions::classType() { return "adsk::core::ImportOptions"; }
const char* Material::classType() { return "adsk::core::Material"; }
const char* Matrix3D::classType() { return "adsk::core::Matrix3D"; }
const char* Point3D::classType() { return "adsk::core::Point3D"; }
const char* Product::classType() { return "adsk::core::Product"; }
const char* SATImportOptions::classType() { return "adsk::core::SATImportOptions"; }
const char* SMTImportOptions::classType() { return "adsk::core::SMTImportOptions"; }
const char* STEPImportOptions::classType() { return "adsk::core::STEPImportOptions"; }

}  // namespace adsk::core

namespace adsk::fusion {

const char* Component::classType() { return "adsk::fusion::Component"; }
const char* Design::classType() { return "adsk::fusion::Design"; }
const char* FusionDocument::classType() { return "adsk::fusion::FusionDocument"; }
const char* Occurrence::classType() { return "adsk::fusion::Occurrence"; }
const char* OccurrenceList::classType() { return "adsk::fusion::OccurrenceList"; }
const char* Occurrences::classType() { return "adsk::fusion::Occurrences"; }
const char* PhysicalProperties::classType() { return "adsk::fusion::PhysicalProperties"; }
const char* Sketch::classType() { return "adsk::fusion::Sketch"; }
const char* SketchCurve::classType() { return "adsk::fusion::SketchCurve"; }
const char* SketchCurves::classType() { return "adsk::fusion::SketchCurves"; }
const char* SketchEntity::classType() { return "adsk::fusion::SketchEntity"; }

}  // namespace adsk::fusion
