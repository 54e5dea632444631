#pragma once

#include "tarnix/platform/posix/xml_node.h"

#include <string>

namespace tarnix::platform {

/// The bytes of a document: its children, each with CR LF behind it, and nothing between the
/// elements; an element with no children is one empty tag. They are in the encoding that the XML
/// declaration names, which is UTF-8 if it names none. Raises `_com_error` if that is unknown.
std::string writeXml(const XmlNode::Body& document);

}  // namespace tarnix::platform
