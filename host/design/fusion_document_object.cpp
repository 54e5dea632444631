#include "host/design/fusion_document_object.h"

#include "host/base/last_error.h"

#include <unordered_map>
#include <utility>

namespace host {

FusionDocumentObject::FusionDocumentObject(DesignData data,
                                           const core::Ptr<core::Application>& parent)
    : name_(data.name), parent_(parent) {
    std::vector<AttributeData> attributes = std::move(data.attributes);
    data.attributes.clear();
    model_ = std::make_unique<Model>(std::move(data));
    design_ = make<DesignObject>(*this, model_->component(0), model_->edits, std::move(attributes));
    other_ = make<ProductObject>(*this, model_->edits);
    openReferences();
}

FusionDocumentObject::FusionDocumentObject(const FusionDocumentObject& opened,
                                           ComponentObject& root)
    : name_(root.state().document), parent_(opened.parent_) {
    design_ = make<DesignObject>(*this, root, opened.model_->edits, std::vector<AttributeData>());
    other_ = make<ProductObject>(*this, opened.model_->edits);
}

FusionDocumentObject::~FusionDocumentObject() { dispose(); }

void FusionDocumentObject::openReferences() {
    std::unordered_map<std::string, DesignObject*> designs;
    for (std::size_t index = 0; index < model_->componentCount(); ++index) {
        ComponentObject& component = model_->component(index);
        DesignObject* design = design_.get();
        if (!component.state().document.empty()) {
            DesignObject*& found = designs[component.state().document];
            if (found == nullptr) {
                references_.push_back(make<FusionDocumentObject>(*this, component));
                found = references_.back()->design_.get();
            }
            design = found;
        }
        component.setDesign(*design);
    }
}

bool FusionDocumentObject::name(const std::string& value) {
    if (closed<"Document::name">(*this)) return {};
    if (value.empty() || model_ == nullptr) {
        return fail(core::BadApiCallError,
                    "a document needs a name, and one that is only referred to keeps its own");
    }
    name_ = value;
    model_->component(0).rename(value);
    return true;
}

bool FusionDocumentObject::isSaved() const {
    if (closed<"Document::isSaved">(*this)) return {};
    return dataFile_ != nullptr;
}

DesignData FusionDocumentObject::snapshot() const {
    DesignData data = model_->snapshot();
    data.name = name_;
    data.attributes = design_->attributeData();
    return data;
}

void FusionDocumentObject::dispose() {
    if (!design_) {
        return;
    }
    for (const core::Ptr<FusionDocumentObject>& each : references_) {
        each->dispose();
    }
    references_.clear();
    design_->dispose();
    other_->dispose();
    design_ = nullptr;
    other_ = nullptr;
    model_.reset();
    dataFile_ = nullptr;
    parent_ = nullptr;
    invalidate();
}

}  // namespace host
