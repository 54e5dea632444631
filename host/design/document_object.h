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
class DocumentObject final : public Object<adsk::fusion::FusionDocument> {
public:
    /// Opens a design. `data` fulfils `checkDesign`, and its root component is called like it.
    DocumentObject(DesignData data, const adsk::core::Ptr<adsk::core::Application>& parent);

    /// A document that `opened` refers to, with `root` as the top of what comes from it.
    DocumentObject(const DocumentObject& opened, ComponentObject& root);

    DocumentObject(const DocumentObject&) = delete;
    DocumentObject& operator=(const DocumentObject&) = delete;
    ~DocumentObject() override;

    [[nodiscard]] adsk::core::Ptr<adsk::core::DataFile> dataFile() const override;
    [[nodiscard]] adsk::core::Ptr<adsk::core::Application> parent() const override;
    [[nodiscard]] std::string name() const override;
    bool name(const std::string& value) override;
    [[nodiscard]] bool isSaved() const override;

    [[nodiscard]] const adsk::core::Ptr<DesignObject>& design() const { return design_; }
    [[nodiscard]] const adsk::core::Ptr<OtherProductObject>& other() const { return other_; }
    [[nodiscard]] const auto& references() const { return references_; }

    /// What it holds; null for a document that is only referred to, and after the end.
    [[nodiscard]] Model* model() const { return model_.get(); }

    void setDataFile(const adsk::core::Ptr<adsk::core::DataFile>& dataFile) {
        dataFile_ = dataFile;
    }

    [[nodiscard]] DesignData snapshot() const;
    void end();

private:
    void openReferences();

    std::string name_;
    adsk::core::Ptr<adsk::core::Application> parent_;
    adsk::core::Ptr<adsk::core::DataFile> dataFile_;
    std::unique_ptr<Model> model_;
    adsk::core::Ptr<DesignObject> design_;
    adsk::core::Ptr<OtherProductObject> other_;
    std::vector<adsk::core::Ptr<DocumentObject>> references_;
};

}  // namespace host
