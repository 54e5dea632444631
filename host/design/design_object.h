#pragma once

#include "host/base/object.h"
#include "host/design/attributes_object.h"
#include "host/design/component_object.h"
#include "host/design/edits.h"

#include <Core/Product.h>
#include <Fusion/Design.h>

#include <string>
#include <vector>

namespace host {

/// What the products of a document have in common. They belong to it.
template <class Interface>
class ProductObject : public Object<Interface> {
public:
    ProductObject(adsk::core::Document& document, std::string type, Edits& edits,
                  std::vector<AttributeData> attributes)
        : document_(&document),
          type_(std::move(type)),
          attributes_(make<AttributesObject>(*this, edits, std::move(attributes))) {}

    [[nodiscard]] adsk::core::Ptr<adsk::core::Document> parentDocument() const override {
        if (closed<"Product::parentDocument">(*this)) return {};
        return document_;
    }

    [[nodiscard]] std::string productType() const override {
        if (closed<"Product::productType">(*this)) return {};
        return type_;
    }

    [[nodiscard]] adsk::core::Ptr<adsk::core::Attributes> attributes() const override {
        if (closed<"Product::attributes">(*this)) return {};
        return attributes_;
    }

    [[nodiscard]] std::vector<AttributeData> attributeData() const { return attributes_->data(); }

    void end() {
        attributes_->end();
        document_ = nullptr;
        this->invalidate();
    }

private:
    adsk::core::Document* document_;
    std::string type_;
    adsk::core::Ptr<AttributesObject> attributes_;
};

/// A document's design.
class DesignObject final : public ProductObject<adsk::fusion::Design> {
public:
    DesignObject(adsk::core::Document& document, ComponentObject& root, Edits& edits,
                 std::vector<AttributeData> attributes)
        : ProductObject(document, "DesignProductType", edits, std::move(attributes)),
          root_(&root) {}

    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Component> rootComponent() const override {
        if (closed<"Design::rootComponent">(*this)) return {};
        return root_;
    }

private:
    adsk::core::Ptr<ComponentObject> root_;
};

/// What another workspace shows of a document: a product that is no design.
class OtherProductObject final : public ProductObject<adsk::core::Product> {
public:
    OtherProductObject(adsk::core::Document& document, Edits& edits)
        : ProductObject(document, "CAMProductType", edits, {}) {}
};

}  // namespace host
