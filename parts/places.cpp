#include "parts/places.h"

#include "parts/bom_structure.h"
#include "parts/item_tree.h"

#include <map>
#include <optional>
#include <tuple>

namespace parts {
namespace {

/// Goes through all occurrences in context, by the rule that made the list.
class PlaceFinder {
public:
    PlaceFinder(const PartsList& list, const host::DesignData& design, PathTable& paths)
        : isTree_(list.request.view == View::Indented),
          design_(design),
          paths_(paths),
          tree_(design, list.request.view == View::Top ? Opening::RootAlone : Opening::Produce),
          places_(list.rows.size()) {
        for (std::size_t index = 0; index < list.rows.size(); ++index) {
            const PartsRow& row = list.rows[index];
            for (const Member& member : row.members) {
                rowOf_.emplace(Key(row.parent, member.component, row.kind), index);
            }
        }
    }

    std::vector<std::vector<std::size_t>> find() {
        visitOpened(0, "", std::nullopt);
        return std::move(places_);
    }

private:
    using Row = std::optional<std::size_t>;
    using Key = std::tuple<Row, std::size_t, RowKind>;

    void visitOpened(std::size_t component, const std::string& path, Row row) {
        if (design_.components[component].geometry != nullptr) {
            place(row, component, RowKind::OwnBodies, path + std::string(kOwnBodies));
        }
        visitChildren(component, path, row);
    }

    void visitChildren(std::size_t component, const std::string& path, Row row) {
        for (const host::OccurrenceData& child : design_.components[component].children) {
            if (!child.absent) {
                visit(child.component, pathBelow(path, design_, child), row);
            }
        }
    }

    void visit(std::size_t component, const std::string& path, Row above) {
        switch (tree_.structure(component)) {
            case BomStructure::Reference:
                return;
            case BomStructure::Divided:
                visitChildren(component, path, above);
                return;
            default:
                break;
        }
        const bool isOpened = tree_.isOpened(component);
        const Row row = place(above, component, isOpened ? RowKind::Assembly : RowKind::Part, path);
        // In a tree, a filter that dropped an assembly has dropped all below it.
        if (isOpened && (row || !isTree_)) {
            visitOpened(component, path, isTree_ ? row : std::nullopt);
        }
    }

    /// The row that the place went to; a list without it may have been filtered.
    Row place(Row above, std::size_t component, RowKind kind, const std::string& path) {
        const auto found = rowOf_.find(Key(above, component, kind));
        if (found == rowOf_.end()) {
            return std::nullopt;
        }
        places_[found->second].push_back(paths_.indexOf(path));
        return found->second;
    }

    bool isTree_;
    const host::DesignData& design_;
    PathTable& paths_;
    ItemTree tree_;
    std::map<Key, std::size_t> rowOf_;
    std::vector<std::vector<std::size_t>> places_;
};

}  // namespace

std::string pathBelow(const std::string& parent, const host::DesignData& design,
                      const host::OccurrenceData& occurrence) {
    return parent + (parent.empty() ? "" : "+") + design.components[occurrence.component].name +
           ":" + std::to_string(occurrence.instance);
}

std::size_t PathTable::indexOf(const std::string& path) {
    const auto [found, isNew] = indices_.try_emplace(path, paths_.size());
    if (isNew) {
        paths_.push_back(path);
    }
    return found->second;
}

std::vector<std::vector<std::size_t>> placesOf(const PartsList& list,
                                               const host::DesignData& design, PathTable& paths) {
    return PlaceFinder(list, design, paths).find();
}

}  // namespace parts
