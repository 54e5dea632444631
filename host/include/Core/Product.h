#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

class Attributes;
class Document;

/// What a workspace works on inside a document, such as its design.
class Product : public Base {
public:
    static const char* classType();

    /// The document that this product is part of.
    [[nodiscard]] virtual Ptr<Document> parentDocument() const = 0;

    /// Tells the kinds of products apart: "DesignProductType" for a design.
    [[nodiscard]] virtual std::string productType() const = 0;

    /// The attributes of the product as a whole; components have their own.
    [[nodiscard]] virtual Ptr<Attributes> attributes() const = 0;
};

}  // namespace adsk::core
