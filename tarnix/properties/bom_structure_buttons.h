#pragma once

#include "tarnix/properties/property_store.h"

#include <Core/CoreAll.h>

#include <cstddef>
#include <string>

/// The buttons of the BOM structure, of which at most one is to be on.
///
/// The row allows several at once, since that is how the host lets the user switch the only one
/// off. `selected` is the caption of the button that is on, which tells it from one just pressed.
namespace tarnix {

/// A button of the BOM structure: its caption is a property's key too.
struct StructureButton {
    const char* caption;
    const char* iconFolder;
};

/// In their order in the row.
inline constexpr StructureButton kStructureButtons[] = {
    {.caption = "Produce", .iconFolder = "resources/_Produce"},
    {.caption = "Buy", .iconFolder = "resources/_Buy"},
    {.caption = "AsPart", .iconFolder = "resources/_AsPart"},
    {.caption = "Divided", .iconFolder = "resources/_Divided"},
    {.caption = "Reference", .iconFolder = "resources/_Reference"}};

/// The caption of the button at that place of the row. A host whose buttons read without a name
/// still has them in the order in which they were made.
std::string captionOf(const adsk::core::Ptr<adsk::core::ListItem>& button, std::size_t place);

/// Switches on what `properties` has on, and all others off. `selected` becomes the last one that
/// is on, an empty string for none.
void loadBomStructure(const adsk::core::Ptr<adsk::core::ButtonRowCommandInput>& row,
                      const ComponentProperties& properties, std::string& selected);

/// Answers a press: of two buttons that are on, `selected` goes off, and the other takes its place
/// there. Where neither is `selected`, both stay, and the later one takes its place. With none or
/// more than two on nothing happens.
void keepOneBomStructure(const adsk::core::Ptr<adsk::core::ButtonRowCommandInput>& row,
                         std::string& selected);

}  // namespace tarnix
