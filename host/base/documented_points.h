#pragma once

/// Points at which the vendor's documentation says something else than this host does.
///
/// This host does what add-ins were seen to rely on. Each point can be turned over to what the
/// documentation says, or what is reported of the real host, so that an add-in is tried under both.
/// docs/host.md says what that changes for the add-in.
namespace host {

struct DocumentedPoints {
    /// An input is not made where another of its command has its id. Several may have an empty one.
    bool uniqueInputIds = false;

    /// An empty part number goes back to the name of the component.
    bool emptyNumberIsName = false;

    /// The items of a button row read without a name, and take none.
    bool namelessRowItems = false;

    /// A change of workspace deletes all palettes.
    bool palettesEndWithWorkspace = false;

    /// `validateInputs` is fired before each `inputChanged` too.
    bool validatesAnyTime = false;

    /// In `inputChanged` the selected row of a table is still the one before the click.
    bool lateSelectedRow = false;

    /// A document that is imported is called "Untitled".
    bool unnamedImports = false;

    /// `numberOfColumns` counts the columns that have a width and hold inputs.
    bool columnsInUse = false;

    /// With `uniqueInputIds`: an empty id counts as an id. Whether it does is not documented.
    bool uniqueEmptyIds = false;

    bool operator==(const DocumentedPoints&) const = default;
};

/// A host as the documentation has it wherever it says something.
inline constexpr DocumentedPoints kAsDocumented = {.uniqueInputIds = true,
                                                   .emptyNumberIsName = true,
                                                   .namelessRowItems = true,
                                                   .palettesEndWithWorkspace = true,
                                                   .validatesAnyTime = true,
                                                   .lateSelectedRow = true,
                                                   .unnamedImports = true,
                                                   .columnsInUse = true,
                                                   .uniqueEmptyIds = false};

/// Those of the host that lives; none turned over without one.
DocumentedPoints documentedPoints();

}  // namespace host
