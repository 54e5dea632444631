#include "host/design/document.h"

#include "host/design/design_check.h"
#include "host/design/fusion_document_object.h"
#include "host/design/naming.h"

#include <utility>

namespace host {
namespace {

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

void endDocument(const core::Ptr<core::Document>& document) {
    // One that is only referred to ends with the document that refers to it.
    if (modelOf(document) != nullptr) {
        objectOf(document)->dispose();
    }
}

}  // namespace host
