#pragma once

#include <Core/Collection.h>
#include <Core/CommandInput.h>

#include <cstddef>
#include <string>

namespace adsk::core {

class Point3D;

/// One selected entity, valid until it is unselected.
class Selection : public Base {
public:
    static const char* classType();  ///< "adsk::core::Selection"

    /// What is selected, such as an occurrence or a component; never null.
    [[nodiscard]] virtual Ptr<Base> entity() const = 0;

    /// Where the user picked it, in cm; the origin for an entity that was selected in the browser
    /// tree or by code.
    [[nodiscard]] virtual Ptr<Point3D> point() const = 0;
};

/// What is selected, in the order of selection, each entity once. While a dialog is open it mirrors
/// what its selection inputs contain.
class Selections : public CollectionOf<Selection> {
public:
    static const char* classType();  ///< "adsk::core::Selections"

    /// Adds an entity to the selection; true without effect for one that is already selected. False
    /// for null.
    virtual bool add(const Ptr<Base>& entity) = 0;

    /// Unselects everything; what an open dialog has picked stays picked there.
    virtual bool clear() = 0;
};

/// Entities that the user picks in the model, in the order of picking. It cannot be a cell of a
/// table, and loses its entities when it is hidden.
class SelectionCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::SelectionCommandInput"

    /// The number of entities picked.
    [[nodiscard]] virtual std::size_t selectionCount() const = 0;

    /// The selection at a place, counted from 0; null for an index outside.
    [[nodiscard]] virtual Ptr<Selection> selection(std::size_t index) const = 0;

    /// Picks an entity; true without effect for one that is already picked. False for null, for one
    /// that no filter accepts, beyond the maximum, and before the dialog shows.
    virtual bool addSelection(const Ptr<Base>& selection) = 0;

    /// Unpicks everything.
    virtual bool clearSelection() = 0;

    /// Accepts entities of a further kind, such as "Occurrences"; without any filter all kinds are
    /// accepted. What is picked already stays. False for an unknown name.
    virtual bool addSelectionFilter(const std::string& filter) = 0;

    /// Accepts all kinds again.
    virtual bool clearSelectionFilter() = 0;

    /// How many entities the user has to pick before OK is enabled, and can pick at most; a maximum
    /// of 0 means no limit. Both are 1 at first. False for a maximum below the minimum.
    virtual bool setSelectionLimits(std::size_t minimum, std::size_t maximum = 0) = 0;

    /// What the host asks the user to pick while the input has the focus.
    [[nodiscard]] virtual std::string commandPrompt() const = 0;
    /// Shown at once if the input has the focus.
    virtual bool commandPrompt(const std::string& value) = 0;

    /// Whether picks go to this input; of a dialog's selection inputs the first has it at first.
    [[nodiscard]] virtual bool hasFocus() const = 0;
    /// True takes the focus from the other inputs, false leaves it with none. True is refused for
    /// an input that is hidden.
    virtual bool hasFocus(bool value) = 0;

    /// Whether it takes over what was selected before the command started, true at first.
    [[nodiscard]] virtual bool isUseCurrentSelections() const = 0;
    /// Takes effect only while the command is created: the entities are taken over when the dialog
    /// opens, unless they exceed the maximum.
    virtual bool isUseCurrentSelections(bool value) = 0;
};

}  // namespace adsk::core
