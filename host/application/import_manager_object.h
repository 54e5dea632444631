#pragma once

#include "host/base/object.h"

#include <Core/Document.h>
#include <Core/Import.h>

#include <string>
#include <utility>

namespace host {

/// What to import; `Interface` determines the format.
template <class Interface>
class ImportOptionsObject final : public Object<Interface> {
public:
    explicit ImportOptionsObject(std::string filename) : state_{.filename = std::move(filename)} {}

    [[nodiscard]] std::string filename() const override {
        return this->template get<"ImportOptions::filename">(state_.filename);
    }
    bool filename(const std::string& value) override {
        return this->template set<"ImportOptions::filename">(state_.filename, value);
    }

    struct State {
        std::string filename;
    };

    /// For the host itself.
    [[nodiscard]] const State& state() const { return state_; }

private:
    State state_;
};

/// Opens files of other formats as new documents: STEP, IGES, and design files in the place of the
/// vendor's archives. The formats that this host has no translator for fail by name, as one without
/// those translators does. Files are found as `foundFile` finds them.
class ImportManagerObject final : public Object<core::ImportManager> {
public:
    core::Ptr<core::IGESImportOptions> createIGESImportOptions(
        const std::string& filename) override {
        return create<"createIGESImportOptions", core::IGESImportOptions>(filename);
    }
    core::Ptr<core::FusionArchiveImportOptions> createFusionArchiveImportOptions(
        const std::string& filename) override {
        return create<"createFusionArchiveImportOptions", core::FusionArchiveImportOptions>(
            filename);
    }
    core::Ptr<core::SATImportOptions> createSATImportOptions(const std::string& filename) override {
        return create<"createSATImportOptions", core::SATImportOptions>(filename);
    }
    core::Ptr<core::SMTImportOptions> createSMTImportOptions(const std::string& filename) override {
        return create<"createSMTImportOptions", core::SMTImportOptions>(filename);
    }
    core::Ptr<core::STEPImportOptions> createSTEPImportOptions(
        const std::string& filename) override {
        return create<"createSTEPImportOptions", core::STEPImportOptions>(filename);
    }
    core::Ptr<core::Document> importToNewDocument(
        const core::Ptr<core::ImportOptions>& importOptions) override;

private:
    template <CallName Name, class Options>
    core::Ptr<Options> create(const std::string& filename) {
        if (closed<Name>(*this)) return {};
        return make<ImportOptionsObject<Options>>(filename);
    }
};

}  // namespace host
