#pragma once

#include "tests/support/addin_test.h"
#include "tests/support/text.h"

#include <Core/CoreAll.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tarnix {

using test_support::text;

inline constexpr const char* kPropertiesTab = "QEMA_tab_iProperties";
inline constexpr const char* kSettingsTab = "QEMA_tab_Settings";
inline constexpr const char* kSelection = "QEMA_selectComponent";
inline constexpr const char* kStructure = "QEMA_btnRowBuyMake";
inline constexpr const char* kPartNumber = "QEMA_Part Number";
inline constexpr const char* kPartName = "QEMA_Part Name";
inline constexpr const char* kDescription = "QEMA_Description";
inline constexpr const char* kFullPath = "QEMA_FullPathDoc";
inline constexpr const char* kTable = "userProperty";
inline constexpr const char* kAddRow = "propertyAdd";
inline constexpr const char* kDeleteRow = "propertyDelete";
inline constexpr const char* kMessage = "messageSave";
inline constexpr const char* kSave = "QEMA_btnSaveUserIProperty";

/// What the message box of the list says while nothing is wrong, and for a name that cannot be.
inline constexpr const char* kNotice =
    R"(<div align="center">The changes will by applied only after you close and re-open this dialog.</div>)";
inline constexpr const char* kIncorrect =
    R"(<div style="background-color:#fefa50" align="center"><b>Incorrect char !</b><br>Valid chars are only 0,1,2,3,4,5,6,7,8,9,SPACE,_,-</br><br>A,B,C,D,E,F,G,H,I,J,K,L,M,N,O,P,R,Q,S,T,U,V,W,X,Y,Z</br><br>a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,r,q,s,t,u,v,w,x,y,z<</br></div>)";

/// A settings document with these children of its root.
std::string settingsWith(const std::string& categories);

/// A category with items: key and value of each, parted by the first semicolon.
std::string category(const std::string& name, const std::vector<std::string>& items);

/// A test that uses the dialog "Edit custom properties".
class PropertiesTest : public test_support::AddinTest {
protected:
    /// Makes these the custom properties: key and display name of each, as in "QEMA_Colour;Colour".
    void offer(const std::vector<std::string>& properties);

    /// Presses "Edit custom properties".
    void openProperties();

    /// Opens the dialog and picks for it.
    void openAndPick(const std::string& path);

    /// Opens the dialog and shows the list of custom properties.
    void showList();

    /// The inputs of a collection, a line each: kind, id, name in quotes, what it holds, and what
    /// is special about it. "" is the dialog itself, else the id of a tab or a group.
    [[nodiscard]] std::string inputsOf(const std::string& container) const;

    /// The texts of the properties, the buttons that are on in front: "Buy | B-1 | Bolt | | red".
    [[nodiscard]] std::string values() const;

    /// The open design as a design file would have it.
    [[nodiscard]] std::string wholeDesign() const;

    /// The captions of the buttons that are on, with a space between them.
    [[nodiscard]] std::string buttonsOn() const;

    /// What a line of text holds.
    [[nodiscard]] std::string value(const std::string& id) const;

    /// The HTML of a text box.
    [[nodiscard]] std::string box(const std::string& id) const;

    /// The names in the rows of the list, with "|" around each.
    [[nodiscard]] std::string rows() const;

    /// Where the host has the cell of a row of the list: "row 0, column 0, spans 0 and 0".
    [[nodiscard]] std::string placeOfCell(int row) const;

    /// The entity of a path of the browser tree.
    [[nodiscard]] static adsk::core::Ptr<adsk::core::Base> entity(const std::string& path);

    /// The id of the input in a row of the list.
    [[nodiscard]] std::string rowId(int row) const;

    /// Types a name into a row of the list.
    void nameRow(int row, const std::string& name);

    /// What the category of the custom properties holds in the settings, as it is written there;
    /// "none" where there is no such category.
    [[nodiscard]] std::string savedList() const;

    [[nodiscard]] bool isEnabled(const std::string& id) const;
};

/// Shows what a component holds: part number, name, description and attributes of the group, as the
/// design has them. Components are found by their names.
std::string stored(const host::DesignData& design, const std::string& component);

}  // namespace tarnix
