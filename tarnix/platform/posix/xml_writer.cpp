#include "tarnix/platform/posix/xml_writer.h"

#include "tarnix/platform/posix/com_error.h"

#include <libxml/encoding.h>
#include <libxml/xmlIO.h>

#include <limits>
#include <string_view>

namespace tarnix::platform {
namespace {

using Body = XmlNode::Body;

/// A text with its special characters escaped. What a reader would take for another line end, or in
/// an attribute for a blank, is escaped too.
std::string escaped(std::string_view text, bool isAttribute) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '\r':
                result += "&#13;";
                break;
            case '"':
                result += isAttribute ? "&quot;" : "\"";
                break;
            case '\n':
                result += isAttribute ? "&#10;" : "\n";
                break;
            case '\t':
                result += isAttribute ? "&#9;" : "\t";
                break;
            default:
                result += c;
        }
    }
    return result;
}

void write(const Body& body, std::string& out);

void writeElement(const Body& element, std::string& out) {
    out += "<" + element.name;
    for (const auto& attribute : element.attributes) {
        out += " " + attribute->name + "=\"" + escaped(attribute->value, true) + "\"";
    }
    if (element.children.empty()) {
        out += "/>";
        return;
    }
    out += ">";
    for (const auto& child : element.children) {
        write(*child, out);
    }
    out += "</" + element.name + ">";
}

void writeInstruction(const Body& body, std::string& out) {
    out += "<?" + body.name + (body.value.empty() ? "" : " ") + body.value + "?>";
}

void write(const Body& body, std::string& out) {
    switch (body.kind) {
        case XmlKind::Element:
            return writeElement(body, out);
        case XmlKind::Text:
            out += escaped(body.value, false);
            break;
        case XmlKind::CharacterData:
            out += "<![CDATA[" + body.value + "]]>";
            break;
        case XmlKind::Comment:
            out += "<!--" + body.value + "-->";
            break;
        case XmlKind::Instruction:
            return writeInstruction(body, out);
        case XmlKind::Document:
        case XmlKind::Attribute:
            break;  // never a child
    }
}

/// The encoding that an XML declaration names, or nothing.
std::string declaredEncoding(const Body& document) {
    const bool isDeclared = !document.children.empty() &&
                            document.children.front()->kind == XmlKind::Instruction &&
                            document.children.front()->name == "xml";
    const std::string data = isDeclared ? document.children.front()->value : "";
    const std::size_t name = data.find("encoding=");
    const std::size_t begin = name != std::string::npos ? data.find_first_of("\"'", name) : name;
    if (begin == std::string::npos) {
        return "";
    }
    return data.substr(begin + 1, data.find(data[begin], begin + 1) - begin - 1);
}

/// The same document in another encoding; characters that it lacks become references.
std::string encoded(const std::string& utf8, const std::string& encoding) {
    xmlCharEncodingHandler* const handler = xmlFindCharEncodingHandler(encoding.c_str());
    const std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer(xmlBufferCreate(),
                                                                      xmlBufferFree);
    if (handler == nullptr || utf8.size() > std::numeric_limits<int>::max()) {
        throw _com_error(E_FAIL);
    }
    xmlOutputBuffer* const output = xmlOutputBufferCreateBuffer(buffer.get(), handler);
    const bool written =
        output != nullptr &&
        xmlOutputBufferWrite(output, static_cast<int>(utf8.size()), utf8.data()) >= 0;
    if (output == nullptr || xmlOutputBufferClose(output) < 0 || !written) {
        throw _com_error(E_FAIL);
    }
    return {reinterpret_cast<const char*>(xmlBufferContent(buffer.get())),
            static_cast<std::size_t>(xmlBufferLength(buffer.get()))};
}

}  // namespace

std::string writeXml(const XmlNode::Body& document) {
    std::string utf8;
    for (const auto& child : document.children) {
        write(*child, utf8);
        utf8 += "\r\n";
    }
    const std::string encoding = declaredEncoding(document);
    const bool isUtf8 =
        encoding.empty() || xmlParseCharEncoding(encoding.c_str()) == XML_CHAR_ENCODING_UTF8;
    return isUtf8 ? utf8 : encoded(utf8, encoding);
}

}  // namespace tarnix::platform
