#pragma once

#include <string>

namespace test_support {

/// An outline of a design with the add-in's own vocabulary written out:
///
/// - `structure=Divided` becomes the five structure attributes, that one "1" and the others "0";
/// - `property=Colour/red` becomes the attribute "QEMA_Colour".
///
/// Both are in the add-in's attribute group. The margin of a raw string is removed.
std::string addinOutline(const std::string& outline);

}  // namespace test_support
