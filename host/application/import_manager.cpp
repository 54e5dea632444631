#include "host/application/import_manager.h"

#include "host/application/application.h"
#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/import/found_file.h"
#include "host/import/step_import.h"

#include <exception>
#include <vector>

namespace host {
namespace {

using namespace adsk::core;

/// A STEP or IGES file.
DesignData readShapes(const std::string& path) {
    // The API has no place for warnings; whoever drives the host may ask for them.
    return importStep(path, ImportLimits(), ImportProgress(),
                      Application::current()->importWarnings);
}

DesignData readArchive(const std::string& path) {
    return loadDesignFile(fromUtf8(path),
                          [](const SourceFile& source) { return readShapes(source.path); });
}

/// The path that the options name where they are of this format, else null.
template <class Interface>
const std::string* fileOf(const Ptr<ImportOptions>& options) {
    const auto* own = dynamic_cast<const ImportOptionsObject<Interface>*>(options.get());
    return own == nullptr ? nullptr : &own->file();
}

DesignData readAs(const Ptr<ImportOptions>& options) {
    if (const std::string* file = fileOf<STEPImportOptions>(options)) {
        return readShapes(toUtf8(foundFile(*file)));
    }
    if (const std::string* file = fileOf<FusionArchiveImportOptions>(options)) {
        return readArchive(toUtf8(foundFile(*file)));
    }
    if (const std::string* file = fileOf<IGESImportOptions>(options)) {
        return readShapes(toUtf8(foundFile(*file)));
    }
    throw ImportError("this host has no translator for the format of " +
                      std::string(options->objectType()));
}

}  // namespace

Ptr<IGESImportOptions> ImportManagerObject::createIGESImportOptions(const std::string& filename) {
    if (closed<"ImportManager::createIGESImportOptions">(*this)) return {};
    return make<ImportOptionsObject<IGESImportOptions>>(filename);
}

Ptr<FusionArchiveImportOptions> ImportManagerObject::createFusionArchiveImportOptions(
    const std::string& filename) {
    if (closed<"ImportManager::createFusionArchiveImportOptions">(*this)) return {};
    return make<ImportOptionsObject<FusionArchiveImportOptions>>(filename);
}

Ptr<SATImportOptions> ImportManagerObject::createSATImportOptions(const std::string& filename) {
    if (closed<"ImportManager::createSATImportOptions">(*this)) return {};
    return make<ImportOptionsObject<SATImportOptions>>(filename);
}

Ptr<SMTImportOptions> ImportManagerObject::createSMTImportOptions(const std::string& filename) {
    if (closed<"ImportManager::createSMTImportOptions">(*this)) return {};
    return make<ImportOptionsObject<SMTImportOptions>>(filename);
}

Ptr<STEPImportOptions> ImportManagerObject::createSTEPImportOptions(const std::string& filename) {
    if (closed<"ImportManager::createSTEPImportOptions">(*this)) return {};
    return make<ImportOptionsObject<STEPImportOptions>>(filename);
}

Ptr<Document> ImportManagerObject::importToNewDocument(const Ptr<ImportOptions>& importOptions) {
    if (closed<"ImportManager::importToNewDocument">(*this)) return {};
    const Ptr<Application> application = Application::current();
    if (!importOptions || !application) {
        misuse("ImportManager::importToNewDocument", "needs options that tell what to import");
        return {};
    }
    try {
        return application->openInHost(readAs(importOptions));
    } catch (const std::exception& error) {
        fail(OperationFailed, error.what());
        return {};
    }
}

}  // namespace host
