#pragma once

#include "parts/bom_structure.h"

#include "host/design/design_data.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace parts {

/// So many of one component directly in an opened one, after Reference and Divided.
struct Line {
    std::size_t component = 0;
    std::int64_t quantity = 0;
    std::string place;  ///< path of the first, seen from the opened component
};

/// Where a component is met first, going through the opened ones from the root component.
struct FirstPlace {
    std::size_t parent = 0;
    std::size_t line = 0;  ///< of the parent's lines
};

/// How far assemblies are opened.
enum class Opening {
    RootAlone,
    Produce,  ///< and every assembly of the structure Produce
};

/// The items of a design as a graph: what is in each component, and how often. Its cost grows
/// with the components and their children, not with the occurrences in context.
class ItemTree {
public:
    /// For a design that fulfils `host::checkDesign`, and outlives the tree.
    ItemTree(const host::DesignData& design, Opening opening);

    /// What is directly in a component, whether it is opened or not; each component once.
    [[nodiscard]] const std::vector<Line>& lines(std::size_t component) const;

    /// Whether what is in a component is listed in its place.
    [[nodiscard]] bool isOpened(std::size_t component) const;

    [[nodiscard]] BomStructure structure(std::size_t component) const {
        return structures_[component];
    }

    /// The components that are in the list, the root component first, in the order of the design.
    [[nodiscard]] const std::vector<std::size_t>& reached() const { return reached_; }

    /// How many there are in the whole design; 0 of those that are not reached.
    [[nodiscard]] std::int64_t quantity(std::size_t component) const {
        return quantities_[component];
    }

    /// 1 below the root component; the highest place counts.
    [[nodiscard]] int level(std::size_t component) const { return levels_[component]; }

    /// The path of the first occurrence that is met; empty for the root component.
    [[nodiscard]] std::string path(std::size_t component) const;

    /// Divided components that are neither Reference nor in what is: they are in no line
    /// themselves. Those in what is not opened are there too.
    [[nodiscard]] const std::vector<std::size_t>& divided() const { return divided_; }

private:
    struct Inside {
        bool isKnown = false;
        std::vector<Line> lines;
    };

    const Inside& findInside(std::size_t component);
    void discover();
    void countQuantities();
    void findDivided();

    const host::DesignData& design_;
    Opening opening_;
    std::vector<BomStructure> structures_;
    std::vector<Inside> insides_;
    std::vector<std::size_t> reached_;
    std::vector<std::size_t> parentsFirst_;
    std::vector<std::int64_t> quantities_;
    std::vector<int> levels_;
    std::vector<std::optional<FirstPlace>> firstPlaces_;
    std::vector<std::size_t> divided_;
};

}  // namespace parts
