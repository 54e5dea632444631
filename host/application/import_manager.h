#pragma once

#include "host/base/object.h"

#include <Core/Document.h>
#include <Core/Import.h>

#include <string>
#include <utility>

namespace host {

/// What to import; `Interface` tells the format.
template <class Interface>
class ImportOptionsObject final : public Object<Interface> {
public:
    explicit ImportOptionsObject(std::string filename) : filename_(std::move(filename)) {}

    [[nodiscard]] std::string filename() const override {
        if (refused<"ImportOptions::filename">()) return {};
        return filename_;
    }

    bool filename(const std::string& value) override {
        if (refused<"ImportOptions::filename">()) return {};
        filename_ = value;
        return true;
    }

    /// For the host itself.
    [[nodiscard]] const std::string& file() const { return filename_; }

private:
    std::string filename_;
};

/// Opens files of other formats as new documents: STEP, IGES, and design files in the place of the
/// vendor's archives. The formats that this host has no translator for fail by name, as one without
/// those translators does. Files are found as `foundFile` finds them.
class ImportManagerObject final : public Object<adsk::core::ImportManager> {
public:
    adsk::core::Ptr<adsk::core::IGESImportOptions> createIGESImportOptions(
        const std::string& filename) override;
    adsk::core::Ptr<adsk::core::FusionArchiveImportOptions> createFusionArchiveImportOptions(
        const std::string& filename) override;
    adsk::core::Ptr<adsk::core::SATImportOptions> createSATImportOptions(
        const std::string& filename) override;
    adsk::core::Ptr<adsk::core::SMTImportOptions> createSMTImportOptions(
        const std::string& filename) override;
    adsk::core::Ptr<adsk::core::STEPImportOptions> createSTEPImportOptions(
        const std::string& filename) override;
    adsk::core::Ptr<adsk::core::Document> importToNewDocument(
        const adsk::core::Ptr<adsk::core::ImportOptions>& importOptions) override;
};

}  // namespace host
