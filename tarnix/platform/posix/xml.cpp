#include "tarnix/platform/xml.h"

#include "tarnix/platform/posix/com_error.h"
#include "tarnix/platform/posix/paths.h"
#include "tarnix/platform/posix/replace_file.h"
#include "tarnix/platform/posix/xml_node.h"
#include "tarnix/platform/posix/xml_reader.h"
#include "tarnix/platform/posix/xml_writer.h"
#include "tarnix/platform/xml_text.h"

#include <algorithm>
#include <string_view>

namespace tarnix::platform {
namespace {

using Body = XmlNode::Body;

[[noreturn]] void throwComError(HRESULT result) { throw _com_error(result); }

bool isContainer(const Body& body) {
    return body.kind == XmlKind::Document || body.kind == XmlKind::Element;
}

XmlNode make(XmlKind kind, const std::string& name, const std::string& value = "") {
    if (name.empty()) {
        throwComError(E_FAIL);
    }
    return XmlNode(std::make_shared<Body>(kind, name, value));
}

/// The node at an index, or nothing.
XmlNode at(const XmlBodies& bodies, long index) {
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < bodies.size();
    return inside ? XmlNode(bodies[static_cast<std::size_t>(index)]) : XmlNode();
}

void removeFrom(XmlBodies& bodies, const Body& body) {
    const auto found = std::find_if(bodies.begin(), bodies.end(),
                                    [&](const auto& one) { return one.get() == &body; });
    if (found == bodies.end()) {
        throwComError(E_INVALIDARG);
    }
    (*found)->parent = nullptr;
    bodies.erase(found);
}

bool isInside(const Body* inner, const Body& outer) {
    while (inner != nullptr && inner != &outer) {
        inner = inner->parent;
    }
    return inner != nullptr;
}

/// The texts below a node, and how much white space at the ends belongs to texts where it does not
/// count, and not to others or to character data, whose own stays.
struct Gathered {
    std::string text;
    std::size_t keptFront = std::string::npos;  ///< where the first that stays whole begins
    std::size_t keptEnd = 0;                    ///< where the last such ends
};

void gather(const Body& body, Gathered& gathered) {
    const bool isText = body.kind == XmlKind::Text;
    if (isText && !preservesSpace(body.parent)) {
        gathered.text += body.value;
    } else if (isText || body.kind == XmlKind::CharacterData) {
        gathered.keptFront = std::min(gathered.keptFront, gathered.text.size());
        gathered.text += body.value;
        gathered.keptEnd = gathered.text.size();
    }
    for (const auto& child : body.children) {
        gather(*child, gathered);
    }
}

std::string gatheredText(const Body& body) {
    Gathered gathered;
    gather(body, gathered);
    const std::string& text = gathered.text;
    const std::size_t first = std::min(text.find_first_not_of(kXmlBlanks), gathered.keptFront);
    if (first == std::string::npos) {
        return "";
    }
    const std::size_t last = text.find_last_not_of(kXmlBlanks);
    const std::size_t end = last == std::string::npos ? 0 : last + 1;
    return text.substr(first, std::max(end, gathered.keptEnd) - first);
}

}  // namespace

XmlNode::XmlNode(std::shared_ptr<Body> body) : body_(std::move(body)) {}

XmlNode::Body& XmlNode::body() const {
    if (body_ == nullptr) {
        throwComError(E_POINTER);
    }
    return *body_;
}

std::string XmlNode::nodeName() const { return body().name; }

std::string XmlNode::nodeValue() const {
    if (isContainer(body())) {
        throwComError(DISP_E_TYPEMISMATCH);
    }
    return body().value;
}

void XmlNode::setNodeValue(const std::string& value) {
    if (isContainer(body())) {
        throwComError(E_FAIL);
    }
    body().value = xmlText(value);
}

std::string XmlNode::text() const {
    return body().kind == XmlKind::Text || isContainer(body()) ? gatheredText(body())
                                                               : body().value;
}

void XmlNode::setText(const std::string& text) {
    if (body().kind != XmlKind::Element) {
        return setNodeValue(text);
    }
    Body::orphan(body().children);
    body().children.clear();
    if (!text.empty()) {
        adopt(body(), std::make_shared<Body>(XmlKind::Text, "#text", xmlText(text)));
    }
}

XmlNodeList XmlNode::childNodes() const {
    static_cast<void>(body());
    return XmlNodeList(*this);
}

XmlNode XmlNode::firstChild() const { return at(body().children, 0); }

XmlAttributeMap XmlNode::attributes() const {
    return body().kind == XmlKind::Element ? XmlAttributeMap(*this) : XmlAttributeMap();
}

XmlNode XmlNode::appendChild(const XmlNode& child) {
    Body& added = child.body();
    const bool fits = added.kind != XmlKind::Attribute && added.kind != XmlKind::Document;
    if (!fits || !isContainer(body()) || isInside(&body(), added)) {
        throwComError(E_FAIL);
    }
    if (added.parent != nullptr) {
        removeFrom(added.parent->children, added);
    }
    adopt(body(), child.body_);
    return child;
}

XmlNode XmlNode::removeChild(const XmlNode& child) {
    removeFrom(body().children, child.body());
    return child;
}

long XmlNodeList::length() const { return static_cast<long>(parent_.body().children.size()); }

XmlNode XmlNodeList::item(long index) const { return at(parent_.body().children, index); }

long XmlAttributeMap::length() const {
    return static_cast<long>(element_.body().attributes.size());
}

XmlNode XmlAttributeMap::item(long index) const { return at(element_.body().attributes, index); }

XmlNode XmlAttributeMap::setNamedItem(const XmlNode& attribute) {
    Body& element = element_.body();
    Body& added = attribute.body();
    if (added.kind != XmlKind::Attribute || added.parent != nullptr) {
        throwComError(E_FAIL);
    }
    const auto old = std::find_if(element.attributes.begin(), element.attributes.end(),
                                  [&](const auto& one) { return one->name == added.name; });
    if (old != element.attributes.end()) {
        (*old)->parent = nullptr;
        *old = attribute.body_;
    } else {
        element.attributes.push_back(attribute.body_);
    }
    added.parent = &element;
    return attribute;
}

XmlDocument XmlDocument::create() {
    return XmlDocument(std::make_shared<Body>(XmlKind::Document, "#document"));
}

bool XmlDocument::load(const std::string& path) {
    Body::orphan(body().children);
    body().children = readXml(nativePath(path));
    for (const auto& child : body().children) {
        child->parent = &body();
    }
    return !body().children.empty();
}

void XmlDocument::save(const std::string& path) const {
    replaceFile(nativePath(path), writeXml(body()));
}

XmlNode XmlDocument::documentElement() const {
    const XmlBodies& children = body().children;
    const auto found = std::find_if(children.begin(), children.end(), [](const auto& child) {
        return child->kind == XmlKind::Element;
    });
    return found != children.end() ? XmlNode(*found) : XmlNode();
}

XmlNode XmlDocument::createNode(XmlNodeType type, const std::string& name) const {
    static_cast<void>(body());
    return make(type == XmlNodeType::Element ? XmlKind::Element : XmlKind::Attribute, name);
}

XmlNode XmlDocument::createElement(const std::string& name) const {
    return createNode(XmlNodeType::Element, name);
}

XmlNode XmlDocument::createProcessingInstruction(const std::string& target,
                                                 const std::string& data) const {
    static_cast<void>(body());
    return make(XmlKind::Instruction, target, data);
}

}  // namespace tarnix::platform
