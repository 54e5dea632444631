#include "tests/support/outline.h"

#include "tests/support/text.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace test_support {
namespace {

constexpr const char* kGroup = "attribute=QEMA_PropertiesAttributesGroup/";
constexpr std::array kStructures = {"Produce", "Buy", "AsPart", "Divided", "Reference"};

std::string structureAttributes(const std::string& chosen) {
    std::string result;
    bool known = false;
    for (const char* name : kStructures) {
        known = known || chosen == name;
        result += (result.empty() ? "" : " ") + std::string(kGroup) + name;
        result += chosen == name ? "/1" : "/0";
    }
    if (!known) {
        throw std::invalid_argument("no structure is called " + chosen);
    }
    return result;
}

}  // namespace

std::string addinOutline(const std::string& outline) {
    std::string result = text(outline);
    const std::string structure = "structure=";
    for (std::size_t at = 0; (at = result.find(structure, at)) != std::string::npos;) {
        const std::size_t end = std::min(result.find_first_of(" \n", at), result.size());
        const std::string name = result.substr(at + structure.size(), end - at - structure.size());
        result.replace(at, end - at, structureAttributes(name));
    }
    const std::string property = "property=";
    const std::string attribute = std::string(kGroup) + "QEMA_";
    for (std::size_t at = 0; (at = result.find(property, at)) != std::string::npos;) {
        result.replace(at, property.size(), attribute);
        at += attribute.size();
    }
    return result;
}

}  // namespace test_support
