#include "tests/host/import/drafts.h"

#include <vector>

namespace drafts {

namespace {

void addTree(std::string& text, const host::DesignData& design, std::size_t component,
             const std::string& indent) {
    for (const host::OccurrenceData& child : design.components[component].children) {
        text += indent + design.components[child.component].name + ":" +
                std::to_string(child.instance) + "\n";
        addTree(text, design, child.component, indent + "  ");
    }
}

}  // namespace

std::string step(const std::string& entities) {
    return "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
           "FILE_NAME('','2024-01-01T00:00:00',(''),(''),'','','');\n"
           "FILE_SCHEMA(('AUTOMOTIVE_DESIGN { 1 0 10303 214 1 1 1 1 }'));\nENDSEC;\nDATA;\n"
           "#1=APPLICATION_CONTEXT('automotive design');\n"
           "#2=PRODUCT_CONTEXT('',#1,'mechanical');\n"
           "#3=PRODUCT_DEFINITION_CONTEXT('part definition',#1,'design');\n" +
           entities + "ENDSEC;\nEND-ISO-10303-21;\n";
}

std::string product(int number, const std::string& id, const std::string& name) {
    const std::string formation = std::to_string(number + 1);
    const std::string entity = std::to_string(number + 2);
    return "#" + std::to_string(number) + "=PRODUCT_DEFINITION('',''," + "#" + formation +
           ",#3);\n#" + formation + "=PRODUCT_DEFINITION_FORMATION('','',#" + entity + ");\n#" +
           entity + "=PRODUCT('" + id + "','" + name + "','',(#2));\n";
}

std::string usage(int number, int parent, int child) {
    const std::string text = std::to_string(number);
    return "#" + text + "=NEXT_ASSEMBLY_USAGE_OCCURRENCE('" + text + "','','',#" +
           std::to_string(parent) + ",#" + std::to_string(child) + ",$);\n";
}

std::string reference(int number, int definition, const std::string& file) {
    const auto at = [number](int offset) { return "#" + std::to_string(number + offset); };
    const std::string product = "#" + std::to_string(definition);
    return at(0) + "=DOCUMENT_FILE('" + file + "','','',#" + std::to_string(number + 1) +
           ",'',$);\n" + at(1) + "=DOCUMENT_TYPE('geometry');\n" + at(2) +
           "=DOCUMENT_REPRESENTATION_TYPE('digital'," + at(0) + ");\n" + at(3) +
           "=APPLIED_EXTERNAL_IDENTIFICATION_ASSIGNMENT('" + file + "'," + at(4) + "," + at(5) +
           ",(" + at(0) + "));\n" + at(4) +
           "=IDENTIFICATION_ROLE('external document id and location',$);\n" + at(5) +
           "=EXTERNAL_SOURCE(IDENTIFIER(''));\n" + at(6) + "=APPLIED_DOCUMENT_REFERENCE(" + at(0) +
           ",''," + "(" + product + "));\n" + at(7) +
           "=PROPERTY_DEFINITION('external definition',''," + at(0) + ");\n" + at(8) +
           "=SHAPE_REPRESENTATION('',(" + at(9) + ")," + at(13) + ");\n" + at(9) +
           "=AXIS2_PLACEMENT_3D(''," + at(10) + ",$,$);\n" + at(10) +
           "=CARTESIAN_POINT('',(0.,0.,0.));\n" + at(11) + "=PROPERTY_DEFINITION_REPRESENTATION(" +
           at(7) + "," + at(8) + ");\n" + at(12) + "=SHAPE_DEFINITION_REPRESENTATION(" + at(14) +
           "," + at(8) + ");\n" + at(13) + "=REPRESENTATION_CONTEXT('','');\n" + at(14) +
           "=PRODUCT_DEFINITION_SHAPE('',''," + product + ");\n";
}

std::string tree(const host::DesignData& design) {
    std::string text = design.components.front().name + "\n";
    addTree(text, design, 0, "  ");
    return text;
}

std::vector<std::string> lines(const std::vector<host::ReadingWarning>& warnings) {
    std::vector<std::string> all;
    all.reserve(warnings.size());
    for (const host::ReadingWarning& warning : warnings) {
        all.push_back(warning.line());
    }
    return all;
}

host::DesignData import(const std::string& path) {
    std::vector<host::ReadingWarning> warnings;
    return host::importStep(path, {}, {}, warnings);
}

std::string refusal(const std::string& path, const host::ReadingLimits& limits) {
    std::vector<host::ReadingWarning> warnings;
    try {
        host::importStep(path, limits, {}, warnings);
    } catch (const host::ImportError& error) {
        return error.what();
    }
    return {};
}

}  // namespace drafts
