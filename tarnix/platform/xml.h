#pragma once

#include <memory>
#include <string>
#include <utility>

/// The XML document object of Windows (`Msxml2.DOMDocument.6.0`), cut to what the settings need.
///
/// Handles share what they refer to and may refer to nothing. Any call on a handle that refers to
/// nothing throws `_com_error` with `E_POINTER`; a call that fails otherwise throws `_com_error`
/// with the result of that call (`com_error.h`). Names, values and texts are UTF-8. Characters that
/// no XML document can hold are left out of a value or a text that is set.
///
/// Documents are read without their white space: a text of spaces, tabs and line ends alone is not
/// a node, and `text` does not begin or end with any. In an element with xml:space="preserve" both
/// stay, down to one with another value of it. A document type declaration is refused, and
/// nothing but the file itself is ever read.
namespace tarnix::platform {

class XmlNodeList;
class XmlAttributeMap;

/// The kinds of node that `XmlDocument::createNode` makes, with the numbers they have in Windows.
enum class XmlNodeType { Element = 1, Attribute = 2 };

/// Handle of a node: the document, an element, an attribute, a text, a comment, an instruction.
class XmlNode {
public:
    struct Body;

    XmlNode() = default;
    explicit XmlNode(std::shared_ptr<Body> body);

    /// True if the handle refers to a node.
    explicit operator bool() const { return body_ != nullptr; }

    /// Name of an element, attribute or instruction; "#text", "#comment" and the like for others.
    [[nodiscard]] std::string nodeName() const;

    /// Value of an attribute, text, comment or instruction. An element or a document has none,
    /// which throws `_com_error` with `DISP_E_TYPEMISMATCH`.
    [[nodiscard]] std::string nodeValue() const;
    void setNodeValue(const std::string& value);

    /// The texts of a node and of all below it, one after the other.
    [[nodiscard]] std::string text() const;

    /// Puts one text in the place of all children; an empty text leaves none.
    void setText(const std::string& text);

    /// The children, as they are at any time.
    [[nodiscard]] XmlNodeList childNodes() const;

    /// The first child, or nothing.
    [[nodiscard]] XmlNode firstChild() const;

    /// The attributes of an element in document order; nothing for a text or a comment.
    [[nodiscard]] XmlAttributeMap attributes() const;

    /// Adds a node after all children and returns it.
    XmlNode appendChild(const XmlNode& child);

    /// Takes a child out and returns it.
    XmlNode removeChild(const XmlNode& child);

protected:
    friend class XmlNodeList;
    friend class XmlAttributeMap;

    /// What the handle refers to; throws if that is nothing.
    [[nodiscard]] Body& body() const;

    std::shared_ptr<Body> body_;
};

/// Handle of the children of a node.
class XmlNodeList {
public:
    XmlNodeList() = default;
    explicit XmlNodeList(XmlNode parent) : parent_(std::move(parent)) {}

    [[nodiscard]] long length() const;

    /// The child at an index from 0; nothing beyond the last.
    [[nodiscard]] XmlNode item(long index) const;

private:
    XmlNode parent_;
};

/// Handle of the attributes of an element.
class XmlAttributeMap {
public:
    XmlAttributeMap() = default;
    explicit XmlAttributeMap(XmlNode element) : element_(std::move(element)) {}

    /// True if the handle refers to the attributes of an element, be there any or none.
    explicit operator bool() const { return static_cast<bool>(element_); }

    [[nodiscard]] long length() const;

    /// The attribute at an index from 0, in document order; nothing beyond the last.
    [[nodiscard]] XmlNode item(long index) const;

    /// Puts an attribute node in, in the place of one of the same name or after all others, and
    /// returns it.
    XmlNode setNamedItem(const XmlNode& attribute);

private:
    XmlNode element_;
};

/// Handle of a document, which is the parent of the root element.
///
/// COM must be ready on the thread (`com.h`).
class XmlDocument : public XmlNode {
public:
    XmlDocument() = default;
    explicit XmlDocument(std::shared_ptr<Body> body) : XmlNode(std::move(body)) {}

    /// Makes an empty document.
    static XmlDocument create();

    /// Reads a file, whose path is in Windows terms. False when it is missing or is not
    /// well-formed XML, which leaves the document empty. The DOM of Windows takes "#" and escapes
    /// such as "%20" in a path for parts of an address, and does not find such a file.
    bool load(const std::string& path);

    /// Writes a file with nothing between the elements. Windows keeps the encoding that the
    /// document was read in, other systems write UTF-8. Throws when the file cannot be written.
    void save(const std::string& path) const;

    /// The root element, or nothing.
    [[nodiscard]] XmlNode documentElement() const;

    /// Makes a node that belongs to no parent yet.
    [[nodiscard]] XmlNode createNode(XmlNodeType type, const std::string& name) const;
    [[nodiscard]] XmlNode createElement(const std::string& name) const;
    [[nodiscard]] XmlNode createProcessingInstruction(const std::string& target,
                                                      const std::string& data) const;
};

}  // namespace tarnix::platform
