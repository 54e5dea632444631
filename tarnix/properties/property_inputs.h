#pragma once

/// The ids of the inputs of the dialog "Edit custom properties".
///
/// The inputs of single properties have the property's key as their id (`property_store.h`).
namespace tarnix::property_inputs {

inline constexpr const char* kPropertiesTab = "QEMA_tab_iProperties";
inline constexpr const char* kSelection = "QEMA_selectComponent";
inline constexpr const char* kProperties = "QEMA_properties";
inline constexpr const char* kCustomProperties = "QEMA_customProperties";
inline constexpr const char* kBomStructure = "QEMA_btnRowBuyMake";
inline constexpr const char* kFullPath = "QEMA_FullPathDoc";

inline constexpr const char* kSettingsTab = "QEMA_tab_Settings";
inline constexpr const char* kTable = "userProperty";
inline constexpr const char* kAddRow = "propertyAdd";
inline constexpr const char* kDeleteRow = "propertyDelete";
inline constexpr const char* kMessage = "messageSave";
inline constexpr const char* kSave = "QEMA_btnSaveUserIProperty";

/// What the message box says while nothing is wrong.
inline constexpr const char* kSaveNotice =
    R"(<div align="center">The changes will by applied only after you close and re-open this )"
    R"(dialog.</div>)";

}  // namespace tarnix::property_inputs
