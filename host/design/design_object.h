#pragma once

#include "host/base/object.h"
#include "host/design/attributes_object.h"
#include "host/design/component_object.h"
#include "host/design/edits.h"
#include "host/design/units_manager_object.h"

#include <Core/Product.h>
#include <Fusion/Design.h>

#include <string>
#include <vector>

namespace host {

/// What the products of a document have in common. They belong to it.
template <class Interface>
class ProductBase : public Object<Interface> {
public:
    ProductBase(core::Document& document, std::string type, Edits& edits, StringPool& texts,
                std::vector<AttributeData> attributes)
        : document_(&document),
          type_(std::move(type)),
          attributes_(make<AttributesObject>(*this, edits, texts, std::move(attributes))) {}

    [[nodiscard]] core::Ptr<core::Document> parentDocument() const override {
        return this->template get<"Product::parentDocument">(document_);
    }

    [[nodiscard]] std::string productType() const override {
        return this->template get<"Product::productType">(type_);
    }

    [[nodiscard]] core::Ptr<core::Attributes> attributes() const override {
        return this->template get<"Product::attributes">(attributes_);
    }

    [[nodiscard]] core::Ptr<core::UnitsManager> unitsManager() const override {
        return this->template get<"Product::unitsManager">(units_);
    }

    [[nodiscard]] std::vector<AttributeData> attributeData() const {
        return attributes_->snapshot();
    }

    void dispose() {
        attributes_->dispose();
        units_->invalidate();
        document_ = nullptr;
        this->invalidate();
    }

private:
    core::Document* document_;
    std::string type_;
    core::Ptr<AttributesObject> attributes_;
    core::Ptr<UnitsManagerObject> units_ = make<UnitsManagerObject>();
};

/// A document's design.
class DesignObject final : public ProductBase<fusion::Design> {
public:
    DesignObject(core::Document& document, ComponentObject& root, Edits& edits, StringPool& texts,
                 std::vector<AttributeData> attributes)
        : ProductBase(document, "DesignProductType", edits, texts, std::move(attributes)),
          root_(&root) {}

    [[nodiscard]] core::Ptr<fusion::Component> rootComponent() const override {
        return get<"rootComponent">(root_);
    }

    [[nodiscard]] fusion::DesignTypes designType() const override {
        return get<"designType">(designType_);
    }
    bool designType(fusion::DesignTypes value) override {
        return set<"designType">(designType_, value);
    }

private:
    core::Ptr<ComponentObject> root_;
    fusion::DesignTypes designType_ = fusion::ParametricDesignType;
};

/// What another workspace shows of a document: a product that is no design.
class ProductObject final : public ProductBase<core::Product> {
public:
    ProductObject(core::Document& document, Edits& edits, StringPool& texts)
        : ProductBase(document, "CAMProductType", edits, texts, {}) {}
};

}  // namespace host
