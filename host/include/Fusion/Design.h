#pragma once

#include <Core/Document.h>
#include <Core/Product.h>

namespace adsk::fusion {

class Component;

/// The design of a document: its product for modelling.
class Design : public core::Product {
public:
    static const char* classType();

    /// The component that holds all others of the design.
    [[nodiscard]] virtual core::Ptr<Component> rootComponent() const = 0;
};

/// A document that holds a design.
class FusionDocument : public core::Document {
public:
    static const char* classType();
};

}  // namespace adsk::fusion
