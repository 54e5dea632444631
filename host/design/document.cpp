#include "host/design/document.h"

#include "host/base/last_error.h"
#include "host/base/object.h"
#include "host/design/design_check.h"
#include "host/design/design_object.h"
#include "host/design/model.h"
#include "host/design/naming.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

namespace host {
namespace {

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

FusionDocumentObject::FusionDocumentObject(DesignData data,
                                           const core::Ptr<core::Application>& parent)
    : name_(data.name), parent_(parent) {
    std::vector<AttributeData> attributes = std::move(data.attributes);
    data.attributes.clear();
    model_ = std::make_unique<Model>(std::move(data));
    design_ = make<DesignObject>(*this, model_->component(0), model_->edits, model_->texts,
                                 std::move(attributes));
    other_ = make<ProductObject>(*this, model_->edits, model_->texts);
    openReferences();
}

FusionDocumentObject::FusionDocumentObject(const FusionDocumentObject& opened,
                                           ComponentObject& root)
    : name_(root.state().document), parent_(opened.parent_) {
    design_ = make<DesignObject>(*this, root, opened.model_->edits, opened.model_->texts,
                                 std::vector<AttributeData>());
    other_ = make<ProductObject>(*this, opened.model_->edits, opened.model_->texts);
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
    if (dataFile_) {
        return fail(core::OperationFailed,
                    "Document::name: a saved document is called like its file");
    }
    ComponentObject& root = model_->component(0);
    model_->edits.history.remember([this, &root, old = name_, number = root.state().partNumber] {
        name_ = old;
        root.restoreName(old, number);
    });
    name_ = value;
    root.rename(value);
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

/// The implementation of a document, null for null and for a closed one.
FusionDocumentObject* objectOf(const core::Ptr<core::Document>& document) {
    auto* object = dynamic_cast<FusionDocumentObject*>(document.get());
    return object != nullptr && object->isValid() ? object : nullptr;
}

Model* modelOf(const core::Ptr<core::Document>& document) {
    const FusionDocumentObject* object = objectOf(document);
    return object != nullptr ? object->model() : nullptr;
}

/// Document and root component have one name.
void nameRoot(DesignData& data) {
    ComponentData& root = data.components.front();
    if (data.name.empty()) {
        data.name = root.name.empty() ? "Untitled" : root.name;
    }
    renameComponent(root, data.name);
}

}  // namespace

core::Ptr<core::Document> makeDocument(DesignData data,
                                       const core::Ptr<core::Application>& parent) {
    checkDesign(data);
    nameRoot(data);
    makeNamesUnique(data);
    return make<FusionDocumentObject>(std::move(data), parent);
}

DesignData emptyDesign() {
    DesignData design;
    design.name = "Untitled";
    design.components.emplace_back().name = design.name;
    return design;
}

core::Ptr<fusion::Design> designOf(const core::Ptr<core::Document>& document) {
    const FusionDocumentObject* object = objectOf(document);
    return object != nullptr ? core::Ptr<fusion::Design>(object->design()) : nullptr;
}

core::Ptr<core::Product> otherProductOf(const core::Ptr<core::Document>& document) {
    const FusionDocumentObject* object = objectOf(document);
    return object != nullptr ? core::Ptr<core::Product>(object->other()) : nullptr;
}

std::vector<core::Ptr<core::Document>> referencesOf(const core::Ptr<core::Document>& document) {
    std::vector<core::Ptr<core::Document>> found;
    if (const FusionDocumentObject* object = objectOf(document)) {
        found.assign(object->references().begin(), object->references().end());
    }
    return found;
}

core::Ptr<fusion::Sketch> sketchOf(const core::Ptr<core::Document>& document, std::size_t component,
                                   std::size_t sketch) {
    const Model* model = modelOf(document);
    if (model == nullptr || component >= model->componentCount()) {
        return {};
    }
    return model->component(component).sketch(sketch);
}

void setDataFile(const core::Ptr<core::Document>& document,
                 const core::Ptr<core::DataFile>& dataFile) {
    if (FusionDocumentObject* object = objectOf(document)) {
        object->setDataFile(dataFile);
    }
}

DesignData snapshot(const core::Ptr<core::Document>& document) {
    const FusionDocumentObject* object = objectOf(document);
    return object != nullptr && object->model() != nullptr ? object->snapshot() : DesignData();
}

std::vector<Unmeasured> unmeasuredIn(const core::Ptr<core::Document>& document) {
    const Model* model = modelOf(document);
    return model != nullptr ? model->unmeasured : std::vector<Unmeasured>();
}

std::uint64_t editCount(const core::Ptr<core::Document>& document) {
    const Model* model = modelOf(document);
    return model != nullptr ? model->edits.all : 0;
}

History::Record beginRecord(const core::Ptr<core::Document>& document) {
    Model* model = modelOf(document);
    return model != nullptr ? model->edits.history.begin() : 0;
}

void endRecord(const core::Ptr<core::Document>& document, History::Record record) {
    if (Model* model = modelOf(document)) {
        model->edits.history.end(record);
    }
}

void takeBack(const core::Ptr<core::Document>& document, History::Record record) {
    if (Model* model = modelOf(document)) {
        model->edits.history.takeBack(record);
        ++model->edits.all;
        ++model->edits.materials;
        ++model->edits.placements;
    }
}

void keepRecord(const core::Ptr<core::Document>& document, History::Record record) {
    if (Model* model = modelOf(document)) {
        model->edits.history.keep(record);
    }
}

void endDocument(const core::Ptr<core::Document>& document) {
    // One that is only referred to ends with the document that refers to it.
    if (modelOf(document) != nullptr) {
        objectOf(document)->dispose();
    }
}

}  // namespace host
