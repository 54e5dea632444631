#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

class Attributes;
class Document;
class UnitsManager;

/// What a workspace works on within a document, such as its design.
class Product : public Base {
public:
    static const char* classType();  ///< "adsk::core::Product"

    /// The document that this product is part of; never null.
    [[nodiscard]] virtual Ptr<Document> parentDocument() const = 0;

    /// The kind of product, "DesignProductType" for a design.
    [[nodiscard]] virtual std::string productType() const = 0;

    /// The attributes of the product as a whole; never null. Components have their own.
    [[nodiscard]] virtual Ptr<Attributes> attributes() const = 0;

    /// Evaluates and formats values in the units of the product; never null.
    [[nodiscard]] virtual Ptr<UnitsManager> unitsManager() const = 0;
};

}  // namespace adsk::core
