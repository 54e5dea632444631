#include "parts/list_context.h"

#include <algorithm>
#include <string_view>

namespace parts {
namespace {

/// Where the " (2)" of a name begins; npos where it has none.
std::size_t hostNumberIn(std::string_view name) {
    const std::size_t mark = name.rfind(" (");
    if (mark == std::string_view::npos || mark == 0 || !name.ends_with(')')) {
        return std::string_view::npos;
    }
    const std::string_view digits = name.substr(mark + 2, name.size() - mark - 3);
    const bool isNumber =
        !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
    return isNumber ? mark : std::string_view::npos;
}

}  // namespace

ListContext::ListContext(const host::DesignData& ofDesign, const PartsRequest& asked,
                         const PartShapes& knownShapes)
    : design(ofDesign),
      request(asked),
      shapes(knownShapes),
      tree(ofDesign, asked.view == View::Top ? Opening::RootAlone : Opening::Produce),
      measures(ofDesign),
      isMeasured(needsBodies(asked)) {
    for (const host::ComponentData& component : design.components) {
        names.insert(component.name);
    }
}

const std::string& ListContext::numberOf(std::size_t component) const {
    const host::ComponentData& data = at(component);
    return data.partNumber.empty() ? data.name : data.partNumber;
}

std::string ListContext::baseNameOf(std::size_t component) const {
    const std::string& name = at(component).name;
    const std::size_t mark = hostNumberIn(name);
    // Only where the plain name is taken, is the number the host's and not the designer's.
    const std::string base = name.substr(0, mark);
    return mark != std::string::npos && names.contains(base) ? base : name;
}

std::optional<int> ListContext::shapeOf(std::size_t component) const {
    // What else is in it is not in its shape: two assemblies on one kind of plate are not equal.
    return tree.lines(component).empty() ? ownShapeOf(component) : std::nullopt;
}

std::optional<int> ListContext::ownShapeOf(std::size_t component) const {
    return component < shapes.classOf.size() ? shapes.classOf[component] : std::nullopt;
}

}  // namespace parts
