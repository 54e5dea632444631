#pragma once

#include "tarnix/platform/xml.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tarnix::platform {

/// What a node may be. Only the first two have children, only an element has attributes.
enum class XmlKind { Document, Element, Attribute, Text, CharacterData, Comment, Instruction };

using XmlBodies = std::vector<std::shared_ptr<XmlNode::Body>>;

/// A node itself. A parent owns its children, and a child knows its parent as long as that is
/// there.
struct XmlNode::Body {
    Body(XmlKind bodyKind, std::string bodyName, std::string bodyValue = "")
        : kind(bodyKind), name(std::move(bodyName)), value(std::move(bodyValue)) {}
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;
    ~Body() {
        orphan(children);
        orphan(attributes);
    }

    static void orphan(const XmlBodies& bodies) {
        for (const auto& body : bodies) {
            body->parent = nullptr;
        }
    }

    XmlKind kind;
    std::string name;
    std::string value;
    XmlBodies children;
    XmlBodies attributes;
    Body* parent = nullptr;
};

/// Whether white space counts inside an element: what the nearest "xml:space" around it says.
inline bool preservesSpace(const XmlNode::Body* element) {
    for (; element != nullptr; element = element->parent) {
        for (const auto& attribute : element->attributes) {
            if (attribute->name == "xml:space") {
                return attribute->value == "preserve";
            }
        }
    }
    return false;
}

/// Adds a node that has no parent after all children.
inline void adopt(XmlNode::Body& parent, std::shared_ptr<XmlNode::Body> child) {
    parent.children.push_back(std::move(child));
    parent.children.back()->parent = &parent;
}

}  // namespace tarnix::platform
