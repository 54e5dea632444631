#include "tarnix/platform/posix/xml_reader.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <exception>
#include <fstream>
#include <iterator>
#include <limits>

namespace tarnix::platform {
namespace {

using Body = XmlNode::Body;
using Context = std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)>;

std::string asText(const xmlChar* text) {
    return text != nullptr ? reinterpret_cast<const char*>(text) : "";
}

std::string asText(const xmlChar* text, int length) {
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)};
}

/// Builds the nodes from what the parser reports. The parser is set to report names and attributes
/// as they are written, so that declarations of namespaces keep their place among the attributes.
class Builder {
public:
    explicit Builder(xmlParserCtxt& parser) : parser_(parser) {
        xmlSAXHandler& handler = *parser.sax;
        handler = {};
        handler.startDocument = [](void* self) {
            report(self, [](Builder& builder) { builder.declaration(); });
        };
        handler.internalSubset = [](void* self, auto...) {
            report(self, [](Builder& builder) { builder.refuse(); });
        };
        handler.startElement = [](void* self, const xmlChar* name, const xmlChar** attributes) {
            report(self, [=](Builder& builder) { builder.startElement(name, attributes); });
        };
        handler.endElement = [](void* self, const xmlChar*) {
            report(self, [](Builder& builder) { builder.endElement(); });
        };
        handler.characters = [](void* self, const xmlChar* text, int length) {
            report(self, [=](Builder& builder) { builder.text_ += asText(text, length); });
        };
        handler.cdataBlock = [](void* self, const xmlChar* text, int length) {
            report(self, [=](Builder& builder) {
                builder.add(XmlKind::CharacterData, "#cdata-section", asText(text, length));
            });
        };
        handler.comment = [](void* self, const xmlChar* text) {
            report(self, [=](Builder& builder) {
                builder.add(XmlKind::Comment, "#comment", asText(text));
            });
        };
        handler.processingInstruction = [](void* self, const xmlChar* target, const xmlChar* data) {
            report(self, [=](Builder& builder) {
                builder.add(XmlKind::Instruction, asText(target), asText(data));
            });
        };
        parser.userData = this;
    }

    /// What was built, if the parser was content with it. Throws what was thrown meanwhile.
    XmlBodies result() {
        if (raised_) {
            std::rethrow_exception(raised_);
        }
        if (refused_ || parser_.wellFormed == 0) {
            return {};
        }
        Body::orphan(document_.children);
        return std::move(document_.children);
    }

private:
    /// Takes a report of the parser, whose C frames nothing may be thrown through.
    template <class Action>
    static void report(void* self, Action action) {
        Builder& builder = *static_cast<Builder*>(self);
        if (builder.raised_) {
            return;
        }
        try {
            action(builder);
        } catch (...) {
            builder.raised_ = std::current_exception();
            xmlStopParser(&builder.parser_);
        }
    }

    void declaration() {
        constexpr int noDeclaration = -1;
        if (parser_.standalone == noDeclaration) {
            return;
        }
        std::string data = "version=\"" + asText(parser_.version) + "\"";
        // Whatever it was, the nodes are UTF-8 and are written so.
        if (parser_.encoding != nullptr || parser_.input->encoding != nullptr) {
            data += " encoding=\"UTF-8\"";
        }
        if (parser_.standalone >= 0) {
            data += parser_.standalone == 0 ? " standalone=\"no\"" : " standalone=\"yes\"";
        }
        add(XmlKind::Instruction, "xml", data);
    }

    void refuse() {
        refused_ = true;
        xmlStopParser(&parser_);
    }

    void startElement(const xmlChar* name, const xmlChar** attributes) {
        Body& element = add(XmlKind::Element, asText(name), "");
        for (; attributes != nullptr && *attributes != nullptr; attributes += 2) {
            auto attribute = std::make_shared<Body>(XmlKind::Attribute, asText(attributes[0]),
                                                    asText(attributes[1]));
            attribute->parent = &element;
            element.attributes.push_back(std::move(attribute));
        }
        current_ = &element;
    }

    void endElement() {
        addText();
        current_ = current_->parent;
    }

    /// Adds the text that has been reported in pieces, unless it is white space alone that does not
    /// count.
    void addText() {
        if (text_.find_first_not_of(kXmlBlanks) != std::string::npos ||
            (!text_.empty() && preservesSpace(current_))) {
            adopt(*current_, std::make_shared<Body>(XmlKind::Text, "#text", text_));
        }
        text_.clear();
    }

    Body& add(XmlKind kind, const std::string& name, const std::string& value) {
        addText();
        adopt(*current_, std::make_shared<Body>(kind, name, value));
        return *current_->children.back();
    }

    xmlParserCtxt& parser_;
    Body document_{XmlKind::Document, "#document"};
    Body* current_ = &document_;
    std::string text_;
    bool refused_ = false;
    std::exception_ptr raised_;
};

}  // namespace

XmlBodies readXml(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    if (content.empty() || content.size() > std::numeric_limits<int>::max()) {
        return {};
    }
    const Context parser(
        xmlCreateMemoryParserCtxt(content.data(), static_cast<int>(content.size())),
        xmlFreeParserCtxt);
    if (parser == nullptr) {
        return {};
    }
    // NOENT resolves the references in attributes; there are no entities but XML's own, because a
    // document that could declare some is refused.
    xmlCtxtUseOptions(parser.get(), XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_SAX1);
    Builder builder(*parser);
    // Its result is the parser's `wellFormed`.
    static_cast<void>(xmlParseDocument(parser.get()));
    return builder.result();
}

}  // namespace tarnix::platform
