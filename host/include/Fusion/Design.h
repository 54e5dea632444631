#pragma once

#include <Core/Document.h>
#include <Core/Product.h>

namespace adsk::fusion {

class Component;

/// The design of a document: the product that the modelling workspaces work on.
class Design : public core::Product {
public:
    static const char* classType();  ///< "adsk::fusion::Design"

    /// The component that contains all others of the design; never null. For a document that is
    /// open only because another one refers to it, the component that is referred to.
    [[nodiscard]] virtual core::Ptr<Component> rootComponent() const = 0;
};

/// A document that contains a design.
class FusionDocument : public core::Document {
public:
    static const char* classType();  ///< "adsk::fusion::FusionDocument"
};

}  // namespace adsk::fusion
