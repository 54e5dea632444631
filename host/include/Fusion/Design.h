#pragma once

#include <Core/Document.h>
#include <Core/Product.h>

namespace adsk::fusion {

class Component;

/// How a design remembers what it was made from.
enum DesignTypes {
    DirectDesignType = 0,      ///< it does not
    ParametricDesignType = 1,  ///< with a timeline of features
};

/// The design of a document: the product that the modelling workspaces work on.
class Design : public core::Product {
public:
    static const char* classType();  ///< "adsk::fusion::Design"

    /// The component that contains all others of the design; never null. For a document that is
    /// open only because another one refers to it, the component that is referred to.
    [[nodiscard]] virtual core::Ptr<Component> rootComponent() const = 0;

    /// Whether it has a timeline, `ParametricDesignType` at first.
    [[nodiscard]] virtual DesignTypes designType() const = 0;
    /// Kept while the document is open; this host has no features that it would concern.
    virtual bool designType(DesignTypes value) = 0;
};

/// A document that contains a design.
class FusionDocument : public core::Document {
public:
    static const char* classType();  ///< "adsk::fusion::FusionDocument"
};

}  // namespace adsk::fusion
