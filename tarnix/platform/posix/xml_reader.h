#pragma once

#include "tarnix/platform/posix/xml_node.h"

#include <string>

namespace tarnix::platform {

/// What XML calls white space.
inline constexpr const char* kXmlBlanks = " \t\r\n";

/// Reads a file, whose path is in this system's terms, into the children of a document: the XML
/// declaration as an instruction "xml" if there is one, and what follows. Texts of white space
/// alone are dropped. Empty when the file cannot be read, is not well-formed XML, or declares a
/// document type. Nothing but the file is read.
XmlBodies readXml(const std::string& path);

}  // namespace tarnix::platform
