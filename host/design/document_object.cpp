#include "host/design/document_object.h"

#include "host/base/last_error.h"

#include <unordered_map>
#include <utility>

using adsk::core::Application;
using adsk::core::DataFile;
using adsk::core::Ptr;

namespace host {

DocumentObject::DocumentObject(DesignData data, const Ptr<Application>& parent)
    : name_(data.name), parent_(parent) {
    std::vector<AttributeData> attributes = std::move(data.attributes);
    data.attributes.clear();
    model_ = std::make_unique<Model>(std::move(data));
    design_ = make<DesignObject>(*this, model_->component(0), model_->edits, std::move(attributes));
    other_ = make<OtherProductObject>(*this, model_->edits);
    openReferences();
}

DocumentObject::DocumentObject(const DocumentObject& opened, ComponentObject& root)
    : name_(root.data().document), parent_(opened.parent_) {
    design_ = make<DesignObject>(*this, root, opened.model_->edits, std::vector<AttributeData>());
    other_ = make<OtherProductObject>(*this, opened.model_->edits);
}

DocumentObject::~DocumentObject() { end(); }

void DocumentObject::openReferences() {
    std::unordered_map<std::string, DesignObject*> designs;
    for (std::size_t index = 0; index < model_->componentCount(); ++index) {
        ComponentObject& component = model_->component(index);
        DesignObject* design = design_.get();
        if (!component.data().document.empty()) {
            DesignObject*& found = designs[component.data().document];
            if (found == nullptr) {
                references_.push_back(make<DocumentObject>(*this, component));
                found = references_.back()->design_.get();
            }
            design = found;
        }
        component.setDesign(*design);
    }
}

Ptr<DataFile> DocumentObject::dataFile() const {
    if (closed<"Document::dataFile">(*this)) return {};
    return dataFile_;
}

Ptr<Application> DocumentObject::parent() const {
    if (closed<"Document::parent">(*this)) return {};
    return parent_;
}

std::string DocumentObject::name() const {
    if (closed<"Document::name">(*this)) return {};
    return name_;
}

bool DocumentObject::name(const std::string& value) {
    if (closed<"Document::name">(*this)) return {};
    if (value.empty() || model_ == nullptr) {
        return fail(adsk::core::BadApiCallError,
                    "a document needs a name, and one that is only referred to keeps its own");
    }
    name_ = value;
    model_->component(0).rename(value);
    return true;
}

bool DocumentObject::isSaved() const {
    if (closed<"Document::isSaved">(*this)) return {};
    return dataFile_ != nullptr;
}

DesignData DocumentObject::snapshot() const {
    DesignData data = model_->snapshot();
    data.name = name_;
    data.attributes = design_->attributeData();
    return data;
}

void DocumentObject::end() {
    if (!design_) {
        return;
    }
    for (const Ptr<DocumentObject>& each : references_) {
        each->end();
    }
    references_.clear();
    design_->end();
    other_->end();
    design_ = nullptr;
    other_ = nullptr;
    model_.reset();
    dataFile_ = nullptr;
    parent_ = nullptr;
    invalidate();
}

}  // namespace host
