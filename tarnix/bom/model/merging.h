#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <cstddef>
#include <functional>
#include <memory_resource>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

/// Which occurrences are one item of the bill of materials, and what its row shows where they
/// differ. The walk that merges (`walk.h`) does both while it visits the design.
namespace tarnix {

/// The index of the first row that is the same item as `occurrence`, or -1.
///
/// Two occurrences are the same item when their components have the same part number and they are
/// under the same parent occurrence, or both directly under the root component. The component's
/// name plays no part. Paths are compared as strings, cut before their last "+"; a path without
/// "+" stays whole, so an occurrence directly under the root is the same item as one inside it that
/// has its part number.
int findBomRow(const std::vector<BomRow>& rows,
               const adsk::core::Ptr<adsk::fusion::Occurrence>& occurrence);

/// Returns what `findBomRow` returns for the rows added so far, without a scan.
///
/// It holds the strings that came with a row. They stay true for as long as part numbers and
/// paths do not change in the design, which is the case within one walk over it.
class ItemIndex {
public:
    /// Makes room for so many rows at once; more may come.
    void reserve(std::size_t rowCount);

    /// Takes the next row of the list, an occurrence at `path` whose component has `partNumber`.
    /// The index of the first row added before it that is the same item.
    std::optional<std::size_t> add(const std::string& partNumber, const std::string& path);

    /// Takes the row unless it is the same item as one added before; false then.
    bool addIfNew(const std::string& partNumber, const std::string& path);

private:
    struct Item {
        std::string partNumber;
        std::string parentPath;  ///< the whole path directly under the root

        bool operator==(const Item&) const = default;
    };
    struct ItemHash {
        std::size_t operator()(const Item& item) const {
            const std::hash<std::string> hash;
            return hash(item.partNumber) * 31 + hash(item.parentPath);
        }
    };

    static Item itemOf(const std::string& partNumber, const std::string& path);

    /// The entries go all at once: freeing a hundred thousand one by one takes longer than the
    /// walk.
    std::pmr::monotonic_buffer_resource memory_;
    std::pmr::unordered_map<Item, std::size_t, ItemHash> firstOfItem_{&memory_};
    std::pmr::unordered_map<std::string, std::size_t> firstUnderRoot_{
        &memory_};  ///< by part number
    std::size_t rowCount_ = 0;
};

/// Shown in place of a value that is not the same in all occurrences of an item.
inline constexpr const char* kDifferent = "***different***";

/// Counts `row`, a further occurrence of the same item, into `target`, the item's first row.
///
/// The quantity grows by one, another name sets `combined`, and property values that differ become
/// `kDifferent`: entries are compared by position, not by key, and those that only the further row
/// has are appended unless they are empty. Where the descriptions differ, `kDifferent` is written
/// ahead of the target component's description: into the design, at once, and only once.
void mergeInto(BomRow& target, const BomRow& row);

}  // namespace tarnix
