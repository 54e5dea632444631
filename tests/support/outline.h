#pragma once

#include <string>

namespace test_support {

/// An outline of a design in which the add-in's own vocabulary is written out:
///
/// - `structure=Divided` becomes the five structure attributes, that one "1" and the others "0";
/// - `property=Colour/red` becomes the attribute "QEMA_Colour".
///
/// Both stand in the add-in's attribute group. Margins of a raw string are taken off.
std::string addinOutline(const std::string& outline);

}  // namespace test_support
