#pragma once

#include "tarnix/platform/xml.h"

#include <functional>
#include <string>
#include <vector>

/// The settings document: all that the add-in keeps between two runs of the host.
///
/// A small XML file beside the module holds, in categories under its root, the web address of the
/// support provider ("httpHelpdesk"), the user's custom property names ("iProperty") and the
/// columns of the parts list ("bomItems"). It is opened again for every read and every write, so
/// that a change is seen by the next read, and is made with its default content when it is missing.
///
/// A failing call on the document throws `_com_error`, which no function here catches. A file that
/// is not XML is not repaired: what needs its root throws `E_POINTER`.
namespace tarnix {

/// Path of the settings document: the module's own, with the first ".dll" in it replaced by
/// "_configuration.xml". Throws `std::out_of_range` when the module's path has no ".dll".
std::string settingsFilePath();

/// Opens the document, which is made with the default content if it cannot be opened for reading.
/// A file that cannot be parsed returns an empty document. COM is made ready once more by each
/// call; a writer takes that back with `platform::uninitializeCom` when it has saved and let the
/// document go, a reader does not.
platform::XmlDocument openSettingsDocument(const std::string& path);

/// Writes the default document. COM must be ready on the thread.
void createDefaultSettings(const std::string& path);

/// The items of a category, in document order; of all categories of that name where there are
/// several. An item is one string: its key, ";" and its value.
std::vector<std::string> readCategoryItems(const std::string& elementName,
                                           const std::string& categoryName);

/// An item as one string. An empty value reads "missing"; an item with an empty key is an empty
/// string.
std::string itemToString(const platform::XmlNode& itemElement);

/// The web address of the support provider; empty when the document has no category for it.
std::string readHelpdeskUrl();

/// Stores the web address of the support provider. A document without a category for it is saved as
/// it is; when anything throws, the file stays as it was.
void writeHelpdeskUrl(const std::string& url);

/// Adds an element with one attribute under the root, and returns it. Nothing, and nothing added,
/// if a `std::exception` was thrown on the way.
platform::XmlNode appendCategory(const platform::XmlDocument& document,
                                 const std::string& elementName, const std::string& attributeName,
                                 const std::string& attributeValue);

/// Adds an element with one attribute under `parent`, and returns it.
platform::XmlNode appendItem(const platform::XmlDocument& document, platform::XmlNode parent,
                             const std::string& elementName, const std::string& attributeName,
                             const std::string& attributeValue);

/// What `replaceCategoryItems` does about a category that is not there.
enum class MissingCategory { Create, LeaveOut };

/// Replaces the items of a category in the stored document: opens it, removes what the category
/// holds, adds an element "item_" + `categoryName` for each string of `readItems`, split at its
/// first ";" into key and value, and saves. Categories of the same name all get the items.
/// `readItems` is asked when a category has been emptied, and not where there is none. When
/// anything throws, the file stays as it was; one that was missing has been made by then.
void replaceCategoryItems(const std::string& categoryName,
                          const std::function<std::vector<std::string>()>& readItems,
                          MissingCategory missing = MissingCategory::Create);

}  // namespace tarnix
