#include "tarnix/platform/posix/xml_writer.h"

#include <string_view>

namespace tarnix::platform {
namespace {

using Body = XmlNode::Body;

/// A string with its special characters escaped. What a reader would take for another line end, or
/// in an attribute for a space, is escaped too.
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

}  // namespace

std::string writeXml(const XmlNode::Body& document) {
    std::string utf8;
    for (const auto& child : document.children) {
        write(*child, utf8);
        utf8 += "\r\n";
    }
    return utf8;
}

}  // namespace tarnix::platform
