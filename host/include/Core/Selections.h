#pragma once

#include <Core/Collection.h>
#include <Core/CommandInput.h>

#include <cstddef>
#include <string>

namespace adsk::core {

class Point3D;

/// One selected entity.
class Selection : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<Base> entity() const = 0;

    /// Where the user picked it.
    [[nodiscard]] virtual Ptr<Point3D> point() const = 0;
};

/// What is selected, in the order of selection.
class Selections : public CollectionOf<Selection> {
public:
    static const char* classType();

    /// Selects an entity too; nothing happens for one that is selected. False for null.
    virtual bool add(const Ptr<Base>& entity) = 0;

    /// Selects nothing.
    virtual bool clear() = 0;
};

/// Entities that the user picks in the model.
class SelectionCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual std::size_t selectionCount() const = 0;

    /// Null for an index that does not exist.
    [[nodiscard]] virtual Ptr<Selection> selection(std::size_t index) const = 0;

    /// Selects an entity; false for one that the filters or the limits refuse, and while the
    /// command is being created.
    virtual bool addSelection(const Ptr<Base>& selection) = 0;
    virtual bool clearSelection() = 0;

    /// Accepts entities of this kind too; without any filter all kinds are accepted. False for an
    /// unknown name.
    virtual bool addSelectionFilter(const std::string& filter) = 0;
    virtual bool clearSelectionFilter() = 0;

    /// How many entities there have to be, and may be at most; a maximum of 0 is none. At first
    /// exactly one.
    virtual bool setSelectionLimits(std::size_t minimum, std::size_t maximum = 0) = 0;

    [[nodiscard]] virtual std::string commandPrompt() const = 0;
    virtual bool commandPrompt(const std::string& value) = 0;

    /// Whether picks go to this input.
    [[nodiscard]] virtual bool hasFocus() const = 0;
    virtual bool hasFocus(bool value) = 0;

    /// Whether it takes what was selected before the command started, true at first.
    [[nodiscard]] virtual bool isUseCurrentSelections() const = 0;
    virtual bool isUseCurrentSelections(bool value) = 0;
};

}  // namespace adsk::core
