#include "tests/host/design/design_fixture.h"

#include <utility>

using namespace adsk::core;
using namespace adsk::fusion;

namespace host {
namespace {

void visit(const Ptr<OccurrenceList>& list, std::vector<Ptr<Occurrence>>& all) {
    for (std::size_t index = 0; index < list->count(); ++index) {
        if (const Ptr<Occurrence> each = list->item(index)) {
            all.push_back(each);
            visit(each->childOccurrences(), all);
        }
    }
}

std::vector<Ptr<Occurrence>> below(const Ptr<Component>& component) {
    std::vector<Ptr<Occurrence>> all;
    visit(component->occurrences()->asList(), all);
    return all;
}

}  // namespace

DesignTest::~DesignTest() {
    faults.verify();
    endDocument(document);
}

void DesignTest::open(const std::string& outline) { open(parseOutline(outline)); }

void DesignTest::open(DesignData data) {
    endDocument(document);
    document = makeDocument(std::move(data));
}

Ptr<Component> DesignTest::root() const { return designOf(document)->rootComponent(); }

Ptr<Occurrence> DesignTest::occurrence(const std::string& path) const {
    for (const Ptr<Occurrence>& each : below(root())) {
        if (each->fullPathName() == path) {
            return each;
        }
    }
    return {};
}

Ptr<Component> DesignTest::component(const std::string& path) const {
    return occurrence(path)->component();
}

std::vector<std::string> DesignTest::paths() const {
    std::vector<std::string> names;
    for (const Ptr<Occurrence>& each : below(root())) {
        names.push_back(each->fullPathName());
    }
    return names;
}

}  // namespace host
