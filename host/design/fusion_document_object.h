#pragma once

#include "host/base/object.h"
#include "host/design/design_object.h"
#include "host/design/model.h"

#include <Core/Application.h>
#include <Core/Data.h>
#include <Fusion/Design.h>

#include <memory>
#include <string>
#include <vector>

namespace host {

/// An open document, or one that an open document refers to.
class FusionDocumentObject final : public Object<fusion::FusionDocument> {
public:
    /// Opens a design. `data` fulfils `checkDesign`, and its root component is called like it.
    FusionDocumentObject(DesignData data, const core::Ptr<core::Application>& parent);

    /// A document that `opened` refers to, with `root` as the top of what comes from it.
    FusionDocumentObject(const FusionDocumentObject& opened, ComponentObject& root);

    FusionDocumentObject(const FusionDocumentObject&) = delete;
    FusionDocumentObject& operator=(const FusionDocumentObject&) = delete;
    ~FusionDocumentObject() override;

    [[nodiscard]] core::Ptr<core::DataFile> dataFile() const override {
        return get<"Document::dataFile">(dataFile_);
    }
    [[nodiscard]] core::Ptr<core::Application> parent() const override {
        return get<"Document::parent">(parent_);
    }
    [[nodiscard]] std::string name() const override { return get<"Document::name">(name_); }
    bool name(const std::string& value) override;
    [[nodiscard]] bool isSaved() const override;

    [[nodiscard]] const core::Ptr<DesignObject>& design() const { return design_; }
    [[nodiscard]] const core::Ptr<ProductObject>& other() const { return other_; }
    [[nodiscard]] const auto& references() const { return references_; }

    /// What it holds; null for a document that is only referred to, and after the end.
    [[nodiscard]] Model* model() const { return model_.get(); }

    void setDataFile(const core::Ptr<core::DataFile>& dataFile) { dataFile_ = dataFile; }

    [[nodiscard]] DesignData snapshot() const;
    void dispose();

private:
    void openReferences();

    std::string name_;
    core::Ptr<core::Application> parent_;
    core::Ptr<core::DataFile> dataFile_;
    std::unique_ptr<Model> model_;
    core::Ptr<DesignObject> design_;
    core::Ptr<ProductObject> other_;
    std::vector<core::Ptr<FusionDocumentObject>> references_;
};

}  // namespace host
