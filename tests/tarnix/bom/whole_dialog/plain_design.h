#pragma once

#include <Fusion/FusionAll.h>

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The design and its rows as plainly as they can be written: values that are read from the open
/// design between two actions, and the walks over them. It shares nothing with the add-in.
namespace plain {

/// What an action throws: class and message, as the host reports them.
struct Thrown {
    std::string type;
    std::string text;
};

[[noreturn]] void throwNullHandle();
[[noreturn]] void throwSubscript();
[[noreturn]] void throwStringPosition();

/// The host calls that an action makes by the rules, counted by name. One of them may be refused.
/// Calls that the rules leave open, such as how often an id is asked for, are not among them.
class Calls {
public:
    /// Counts a call; true where it is the refused one, and returns nothing.
    bool refused(const std::string& name);

    /// Counts a call that returns a handle to go on with; throws where it is refused.
    void need(const std::string& name);

    /// Begins an action, in which the `nth` call of `name` is refused; 0 for none.
    void begin(std::string name = "", int nth = 0);

    [[nodiscard]] int count(const std::string& name) const;
    [[nodiscard]] const std::map<std::string, int>& counts() const { return counts_; }

private:
    std::string refusedName_;
    int refusedCall_ = 0;
    std::map<std::string, int> counts_;
};

/// As `std::stoi` and `std::stod` read them; throws `Thrown`.
int integerOf(const std::string& text);
double numberOf(const std::string& text);

/// What follows the last "_" of an id; the whole id where it has none.
std::string tailOf(const std::string& id);

/// The id up to its last "_".
std::string baseOf(const std::string& id);

/// An element; throws as a list does outside of which one asks.
template <class List>
auto& at(List& list, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= list.size()) throwSubscript();
    return list[static_cast<std::size_t>(index)];
}

std::string fixed(double value, int decimals);

using Properties = std::vector<std::pair<std::string, std::string>>;

struct Component {
    std::string name;
    std::string number;
    std::string description;
    Properties attributes;  ///< of the add-in's group
    double area = 0;
    double density = 0;
    double mass = 0;
    double volume = 0;
    std::string material;
    std::array<double, 3> extents = {};  ///< in cm, along the axes
};

struct Occurrence {
    std::size_t component = 0;
    std::string path;
    double mass = 0;
    std::vector<std::optional<Occurrence>> children;  ///< with the places that are empty
};

struct Design {
    std::vector<Component> components;
    std::vector<std::optional<Occurrence>> top;
};

/// Reads the open design.
Design read(const adsk::core::Ptr<adsk::fusion::Component>& root);

/// All that an action may change, a line for each component.
std::string describe(const Design& design);

struct Row {
    std::size_t component = 0;
    const Occurrence* occurrence = nullptr;
    std::string relativePosition;
    std::size_t childCount = 0;
    std::string pathName;
    int quantity = 1;
    int level = 0;
    bool combined = false;
    Properties properties;
};

using Rows = std::vector<Row>;

/// Every occurrence; the names of custom properties are added to `userNames`.
Rows walk(Calls& calls, const Design& design, std::vector<std::string>& userNames);

/// Every occurrence, the items merged; writes descriptions into the design.
Rows walkMerged(Calls& calls, Design& design);

/// The row of the same item, -1 for none.
int find(const Design& design, const Rows& rows, const Row& row);

bool isSet(const Row& row, const std::string& key);

/// The first key that is set, empty for none.
std::string firstSet(const Row& row);

/// The text of a configured cell.
std::string cellText(const Design& design, const Row& row, const std::string& key);

}  // namespace plain
