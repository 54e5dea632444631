#include "host/design/document.h"

#include "host/design/design_check.h"
#include "host/design/document_object.h"
#include "host/design/naming.h"

#include <utility>

using adsk::core::Application;
using adsk::core::DataFile;
using adsk::core::Document;
using adsk::core::Product;
using adsk::core::Ptr;
using adsk::fusion::Design;
using adsk::fusion::Sketch;

namespace host {
namespace {

/// The object behind a document, null for null and after its end.
DocumentObject* objectOf(const Ptr<Document>& document) {
    auto* object = dynamic_cast<DocumentObject*>(document.get());
    return object != nullptr && object->isValid() ? object : nullptr;
}

Model* modelOf(const Ptr<Document>& document) {
    const DocumentObject* object = objectOf(document);
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

Ptr<Document> makeDocument(DesignData data, const Ptr<Application>& parent) {
    checkDesign(data);
    nameRoot(data);
    makeNamesUnique(data);
    return make<DocumentObject>(std::move(data), parent);
}

Ptr<Design> designOf(const Ptr<Document>& document) {
    const DocumentObject* object = objectOf(document);
    return object != nullptr ? Ptr<Design>(object->design()) : nullptr;
}

Ptr<Product> otherProductOf(const Ptr<Document>& document) {
    const DocumentObject* object = objectOf(document);
    return object != nullptr ? Ptr<Product>(object->other()) : nullptr;
}

std::vector<Ptr<Document>> referencesOf(const Ptr<Document>& document) {
    std::vector<Ptr<Document>> found;
    if (const DocumentObject* object = objectOf(document)) {
        found.assign(object->references().begin(), object->references().end());
    }
    return found;
}

Ptr<Sketch> sketchOf(const Ptr<Document>& document, std::size_t component, std::size_t sketch) {
    const Model* model = modelOf(document);
    if (model == nullptr || component >= model->componentCount()) {
        return {};
    }
    return model->component(component).sketch(sketch);
}

void setDataFile(const Ptr<Document>& document, const Ptr<DataFile>& dataFile) {
    if (DocumentObject* object = objectOf(document)) {
        object->setDataFile(dataFile);
    }
}

DesignData snapshot(const Ptr<Document>& document) {
    const DocumentObject* object = objectOf(document);
    return object != nullptr && object->model() != nullptr ? object->snapshot() : DesignData();
}

std::vector<Unmeasured> unmeasuredIn(const Ptr<Document>& document) {
    const Model* model = modelOf(document);
    return model != nullptr ? model->unmeasured : std::vector<Unmeasured>();
}

std::uint64_t editCount(const Ptr<Document>& document) {
    const Model* model = modelOf(document);
    return model != nullptr ? model->edits.all : 0;
}

void endDocument(const Ptr<Document>& document) {
    // One that is only referred to ends with the document that refers to it.
    if (modelOf(document) != nullptr) {
        objectOf(document)->end();
    }
}

}  // namespace host
