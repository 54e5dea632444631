#pragma once

#include "tarnix/platform/posix/xml_node.h"

#include <string>

namespace tarnix::platform {

/// The bytes of a document in UTF-8: its children, each followed by CR LF, and nothing between
/// the elements; an element with no children is one empty tag.
std::string writeXml(const XmlNode::Body& document);

}  // namespace tarnix::platform
