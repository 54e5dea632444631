#include "tests/conformance/idioms.h"

#include <CAM/CAMAll.h>
#include <Core/Application/Product.h>
#include <Core/CoreAll.h>
#include <Fusion/Components/Component.h>
#include <Fusion/Components/Occurrence.h>
#include <Fusion/Components/OccurrenceList.h>
#include <Fusion/Components/Occurrences.h>
#include <Fusion/Fusion/Design.h>
#include <Fusion/FusionAll.h>

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

// As sources of add-ins have it, and so as the host's headers have to bear it.
using namespace adsk::core;
using namespace adsk::fusion;
using namespace adsk::cam;

namespace IDIOMS {
namespace {

Ptr<Base> nothingAsNull() { return NULL; }  // NOLINT(modernize-use-nullptr)
Ptr<Base> nothingAsZero() { return 0; }     // NOLINT(modernize-use-nullptr)
Ptr<Base> nothingAsNullptr() { return nullptr; }

bool isThere(const Ptr<Base>& handle) { return handle; }

bool bothAreThere(const Ptr<Base>& left, const Ptr<Base>& right) {
    bool ok = true;
    ok = ok & left;
    return ok && right;
}

std::size_t countOf(const Ptr<Occurrences>& collection) {
    std::size_t count = 0;
    for (Ptr<Occurrence> each : collection) {  // NOLINT(performance-for-range-copy): the manual's
        count += each ? 1 : 0;
    }
    return count;
}

std::string namesIn(const Ptr<OccurrenceList>& list) {
    std::string names;
    for (const auto& each : list) {
        names += each->name() + " ";
    }
    return names;
}

Ptr<Base> emptied(Ptr<Base> handle, int way) {
    if (way == 0) handle = nullptr;
    if (way == 1) handle = NULL;  // NOLINT(modernize-use-nullptr)
    if (way == 2) handle = 0;     // NOLINT(modernize-use-nullptr)
    if (way == 3) handle = {};
    return handle;
}

bool throwsOnNull() {
    try {
        for (const Ptr<Occurrence>& each : Ptr<Occurrences>()) {
            return each == nullptr;
        }
    } catch (const std::exception&) {
        return true;
    }
    return false;
}

}  // namespace

std::vector<std::string> wrongIdioms(const Ptr<Application>& application) {
    std::vector<std::string> wrong;
    const auto expect = [&wrong](bool holds, const char* idiom) {
        if (!holds) wrong.emplace_back(idiom);
    };
    const Ptr<Design> design = application->activeProduct();
    const Ptr<Component> root = design->rootComponent();
    const Ptr<Occurrence> first = root->occurrences()->item(0);
    const Ptr<Occurrence> second = root->occurrences()->item(1);
    const Ptr<Base> none;

    expect(root != nullptr && nullptr != root, "p != nullptr");
    expect(none == nullptr && nullptr == none, "nullptr == p");
    expect(first != second && !(first == second), "p != q");
    expect(first == Ptr<Base>(first), "p == q of another class");
    expect(none == 0 && !(root == 0), "p == 0");
    expect(!nothingAsNull() && !nothingAsZero() && !nothingAsNullptr(), "return NULL");
    expect(isThere(root) && !isThere(none), "return p");
    expect(bothAreThere(root, first) && !bothAreThere(none, first), "ok & p");
    expect(countOf(root->occurrences()) == 2, "for (Ptr<X> x : collection)");
    expect(namesIn(root->occurrences()->asList()) == first->name() + " " + second->name() + " ",
           "for (auto x : list)");
    expect(throwsOnNull(), "for (x : null)");
    for (int way = 0; way < 4; ++way) {
        expect(!emptied(root, way), "p = 0");
    }
    expect(std::set<Ptr<Occurrence>>{first, second, first}.size() == 2, "std::set");
    std::map<Ptr<Component>, int> uses;
    for (const Ptr<Occurrence>& each : root->occurrences()) {
        ++uses[each->component()];
    }
    expect(uses.size() == 2 && uses[first->component()] == 1, "std::map");
    expect(!Ptr<Design>(root) && Ptr<BaseComponent>(root), "Ptr<X>(p)");
    expect(root->cast<Component>() == root, "cast");
    const Ptr<Base> chosen = wrong.empty() ? root : nullptr;
    expect(chosen == root, "condition ? p : nullptr");
    return wrong;
}

}  // namespace IDIOMS
