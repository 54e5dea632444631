#include "tests/tarnix/bom/model/open_design.h"

#include "tarnix/bom/model/walk.h"
#include "tests/support/outline.h"

#include "host/design/document.h"
#include "host/design/outline.h"

#include <stdexcept>

using namespace adsk::core;
using namespace adsk::fusion;

OpenDesign::OpenDesign(const host::DesignData& data) : document_(host::makeDocument(data)) {}

OpenDesign::OpenDesign(const std::string& outline)
    : OpenDesign(host::parseOutline(test_support::addinOutline(outline))) {}

OpenDesign::~OpenDesign() { host::endDocument(document_); }

Ptr<Component> OpenDesign::root() const { return host::designOf(document_)->rootComponent(); }

Ptr<OccurrenceList> OpenDesign::occurrences() const { return root()->occurrences()->asList(); }

Ptr<Component> OpenDesign::component(const std::string& name) const {
    tarnix::BomModel model;
    for (const auto& row : tarnix::walkOccurrences(model, occurrences(), 1)) {
        if (row.component->name() == name) {
            return row.component;
        }
    }
    throw std::invalid_argument("no component is called " + name);
}

std::string OpenDesign::descriptions() const {
    std::string all;
    const auto components = host::snapshot(document_).components;
    for (const auto& component : components) {
        if (!component.description.empty()) {
            all += (all.empty() ? "" : "\n") + component.name + ": " + component.description;
        }
    }
    return all;
}
