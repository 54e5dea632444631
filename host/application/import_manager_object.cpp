#include "host/application/import_manager_object.h"

#include "host/application/application_object.h"
#include "host/base/documented_points.h"
#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/design/document.h"
#include "host/import/found_file.h"
#include "host/import/step_import.h"

#include <exception>
#include <utility>
#include <vector>

namespace host {
namespace {

/// A STEP or IGES file.
DesignData readShapes(const std::string& path) {
    // The API has no place for warnings; the code that drives the host may ask for them.
    return importStep(path, ReadingLimits(), ImportProgress(),
                      ApplicationObject::current()->importWarnings);
}

DesignData readArchive(const std::string& path) {
    return loadDesignFile(fromUtf8(path),
                          [](const SourceFile& source) { return readShapes(source.path); });
}

/// The path that the options name where they are of this format, else null.
template <class Interface>
const std::string* fileOf(const core::Ptr<core::ImportOptions>& options) {
    const auto* own = dynamic_cast<const ImportOptionsObject<Interface>*>(options.get());
    return own == nullptr ? nullptr : &own->state().filename;
}

DesignData readAs(const core::Ptr<core::ImportOptions>& options) {
    if (const std::string* file = fileOf<core::STEPImportOptions>(options)) {
        return readShapes(toUtf8(foundFile(*file)));
    }
    if (const std::string* file = fileOf<core::FusionArchiveImportOptions>(options)) {
        return readArchive(toUtf8(foundFile(*file)));
    }
    if (const std::string* file = fileOf<core::IGESImportOptions>(options)) {
        return readShapes(toUtf8(foundFile(*file)));
    }
    throw ImportError("this host has no translator for the format of " +
                      std::string(options->objectType()));
}

}  // namespace

core::Ptr<core::Document> ImportManagerObject::importToNewDocument(
    const core::Ptr<core::ImportOptions>& importOptions) {
    if (closed<"importToNewDocument">(*this)) return {};
    const core::Ptr<ApplicationObject> application = ApplicationObject::current();
    if (!importOptions || !application) {
        misuse("ImportManager::importToNewDocument", "needs options that name a file");
        return {};
    }
    try {
        DesignData design = readAs(importOptions);
        if (documentedPoints().unnamedImports) {
            design.name = emptyDesign().name;
        }
        return application->openInHost(std::move(design));
    } catch (const std::exception& error) {
        fail(core::OperationFailed, error.what());
        return {};
    }
}

}  // namespace host
