#include "tarnix/platform/xml.h"

#include "tarnix/platform/com_error.h"
#include "tarnix/platform/windows/code_page.h"
#include "tarnix/platform/xml_text.h"

#include <windows.h>

#include <msxml2.h>

namespace tarnix::platform {
namespace {

// Spelled out, because not every compiler's headers attach them to the interfaces.
constexpr IID kUnknownId = {
    0x00000000, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

/// The interfaces of the DOM, whose ids differ in the first number alone.
constexpr IID domInterface(unsigned long first) {
    return {first, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};
}

constexpr IID kNodeId = domInterface(0x2933bf80);
constexpr IID kDocumentId = domInterface(0x2933bf95);
constexpr IID kListId = domInterface(0x2933bf82);
constexpr IID kMapId = domInterface(0x2933bf83);
constexpr IID kElementId = domInterface(0x2933bf86);
constexpr IID kInstructionId = domInterface(0x2933bf89);
constexpr IID kDocumentTypeId = domInterface(0x2933bf8b);

template <class Interface, const IID* Id>
using ComPtr = _com_ptr_t<_com_IIID<Interface, Id>>;
using UnknownPtr = ComPtr<IUnknown, &kUnknownId>;
using NodePtr = ComPtr<IXMLDOMNode, &kNodeId>;
using DocumentPtr = ComPtr<IXMLDOMDocument2, &kDocumentId>;
using ListPtr = ComPtr<IXMLDOMNodeList, &kListId>;
using MapPtr = ComPtr<IXMLDOMNamedNodeMap, &kMapId>;
using ElementPtr = ComPtr<IXMLDOMElement, &kElementId>;
using InstructionPtr = ComPtr<IXMLDOMProcessingInstruction, &kInstructionId>;
using DocumentTypePtr = ComPtr<IXMLDOMDocumentType, &kDocumentTypeId>;

/// Every failing call ends here.
void check(HRESULT result) {
    if (FAILED(result)) {
        throw _com_error(result);
    }
}

/// A string as a call takes it.
_bstr_t wide(const std::string& text) { return {fromUtf8(xmlText(text)).c_str()}; }

/// A string that a call has returned.
std::string taken(BSTR text) {
    const _bstr_t owner(text, /*fCopy=*/false);
    return text != nullptr ? toUtf8({text, ::SysStringLen(text)}) : std::string();
}

/// A document that reads the file alone, at once, and without its white space.
DocumentPtr makeDocument() {
    CLSID id = {};
    check(::CLSIDFromProgID(L"Msxml2.DOMDocument.6.0", &id));
    UnknownPtr object;
    check(
        ::CoCreateInstance(id, nullptr, CLSCTX_ALL, kUnknownId, reinterpret_cast<void**>(&object)));
    check(::OleRun(object));
    const DocumentPtr document = object;
    check(document->put_async(VARIANT_FALSE));
    check(document->put_validateOnParse(VARIANT_FALSE));
    check(document->put_resolveExternals(VARIANT_FALSE));
    check(document->put_preserveWhiteSpace(VARIANT_FALSE));
    check(document->setProperty(_bstr_t(L"ProhibitDTD"), _variant_t(true)));
    return document;
}

_variant_t pathValue(const std::string& path) { return {fromCodePage(path).c_str()}; }

}  // namespace

struct XmlNode::Body {
    explicit Body(NodePtr object) : node(std::move(object)) {}

    NodePtr node;
};

namespace {

/// Handle of a node that a call has returned, which may be none.
XmlNode handle(const NodePtr& node) {
    return node != nullptr ? XmlNode(std::make_shared<XmlNode::Body>(node)) : XmlNode();
}

}  // namespace

XmlNode::XmlNode(std::shared_ptr<Body> body) : body_(std::move(body)) {}

XmlNode::Body& XmlNode::body() const {
    if (body_ == nullptr) {
        throw _com_error(E_POINTER);
    }
    return *body_;
}

std::string XmlNode::nodeName() const {
    BSTR name = nullptr;
    check(body().node->get_nodeName(&name));
    return taken(name);
}

std::string XmlNode::nodeValue() const {
    _variant_t value;
    check(body().node->get_nodeValue(&value));
    if (value.vt != VT_BSTR) {
        throw _com_error(DISP_E_TYPEMISMATCH);
    }
    return taken(value.Detach().bstrVal);
}

void XmlNode::setNodeValue(const std::string& value) {
    check(body().node->put_nodeValue(_variant_t(wide(value))));
}

std::string XmlNode::text() const {
    BSTR text = nullptr;
    check(body().node->get_text(&text));
    return taken(text);
}

void XmlNode::setText(const std::string& text) { check(body().node->put_text(wide(text))); }

XmlNodeList XmlNode::childNodes() const {
    static_cast<void>(body());
    return XmlNodeList(*this);
}

XmlNode XmlNode::firstChild() const {
    NodePtr child;
    check(body().node->get_firstChild(&child));
    return handle(child);
}

XmlAttributeMap XmlNode::attributes() const {
    MapPtr map;
    check(body().node->get_attributes(&map));
    return map != nullptr ? XmlAttributeMap(*this) : XmlAttributeMap();
}

XmlNode XmlNode::appendChild(const XmlNode& child) {
    NodePtr added;
    check(body().node->appendChild(child.body().node, &added));
    return child;
}

XmlNode XmlNode::removeChild(const XmlNode& child) {
    NodePtr removed;
    check(body().node->removeChild(child.body().node, &removed));
    return child;
}

namespace {

ListPtr childrenOf(const NodePtr& node) {
    ListPtr list;
    check(node->get_childNodes(&list));
    return list;
}

MapPtr attributesOf(const NodePtr& node) {
    MapPtr map;
    check(node->get_attributes(&map));
    return map;
}

template <class Collection>
long lengthOf(const Collection& collection) {
    long length = 0;
    check(collection->get_length(&length));
    return length;
}

template <class Collection>
XmlNode itemOf(const Collection& collection, long index) {
    NodePtr node;
    check(collection->get_item(index, &node));
    return handle(node);
}

}  // namespace

long XmlNodeList::length() const { return lengthOf(childrenOf(parent_.body().node)); }

XmlNode XmlNodeList::item(long index) const {
    return itemOf(childrenOf(parent_.body().node), index);
}

long XmlAttributeMap::length() const { return lengthOf(attributesOf(element_.body().node)); }

XmlNode XmlAttributeMap::item(long index) const {
    return itemOf(attributesOf(element_.body().node), index);
}

XmlNode XmlAttributeMap::setNamedItem(const XmlNode& attribute) {
    NodePtr added;
    check(attributesOf(element_.body().node)->setNamedItem(attribute.body().node, &added));
    return attribute;
}

XmlDocument XmlDocument::create() { return XmlDocument(std::make_shared<Body>(makeDocument())); }

bool XmlDocument::load(const std::string& path) {
    const DocumentPtr document = body().node;
    VARIANT_BOOL loaded = VARIANT_FALSE;
    check(document->load(pathValue(path), &loaded));
    DocumentTypePtr type;
    check(document->get_doctype(&type));
    if (type != nullptr) {
        // A DOM that knows the prohibition by name only.
        body().node = makeDocument();
        return false;
    }
    return loaded != VARIANT_FALSE;
}

void XmlDocument::save(const std::string& path) const {
    const DocumentPtr document = body().node;
    check(document->save(pathValue(path)));
}

XmlNode XmlDocument::documentElement() const {
    const DocumentPtr document = body().node;
    ElementPtr element;
    check(document->get_documentElement(&element));
    return handle(element);
}

XmlNode XmlDocument::createNode(XmlNodeType type, const std::string& name) const {
    const DocumentPtr document = body().node;
    NodePtr node;
    check(document->createNode(_variant_t(static_cast<long>(type)), wide(name), wide(""), &node));
    return handle(node);
}

XmlNode XmlDocument::createElement(const std::string& name) const {
    const DocumentPtr document = body().node;
    ElementPtr element;
    check(document->createElement(wide(name), &element));
    return handle(element);
}

XmlNode XmlDocument::createProcessingInstruction(const std::string& target,
                                                 const std::string& data) const {
    const DocumentPtr document = body().node;
    InstructionPtr instruction;
    check(document->createProcessingInstruction(wide(target), wide(data), &instruction));
    return handle(instruction);
}

}  // namespace tarnix::platform
