#include "tarnix/settings/settings_document.h"

#include "tarnix/platform/com.h"
#include "tarnix/platform/files.h"
#include "tarnix/platform/module_path.h"
#include "tarnix/settings/web_addresses.h"
#include "tarnix/text/checked.h"

#include <exception>

namespace tarnix {
namespace {

using platform::XmlDocument;
using platform::XmlNode;
using platform::XmlNodeList;
using platform::XmlNodeType;

/// Adds an attribute to an element.
void addAttribute(const XmlDocument& document, const XmlNode& element, const std::string& name,
                  const std::string& value) {
    XmlNode attribute = document.createNode(XmlNodeType::Attribute, name);
    attribute.setNodeValue(value);
    element.attributes().setNamedItem(attribute);
}

/// An element with one attribute that belongs to no parent yet.
XmlNode makeElement(const XmlDocument& document, const std::string& elementName,
                    const std::string& attributeName, const std::string& attributeValue) {
    XmlNode element = document.createNode(XmlNodeType::Element, elementName);
    addAttribute(document, element, attributeName, attributeValue);
    return element;
}

/// The value of the first attribute, whatever its name.
std::string firstAttributeValue(const XmlNode& element) {
    return element.attributes().item(0).nodeValue();
}

bool isCategory(const XmlNode& node, const std::string& elementName,
                const std::string& categoryName) {
    return node.nodeName() == elementName && firstAttributeValue(node) == categoryName;
}

/// The elements of the root that are a category of this name.
std::vector<XmlNode> categoriesOf(const XmlDocument& document, const std::string& elementName,
                                  const std::string& categoryName) {
    std::vector<XmlNode> categories;
    const XmlNodeList children = document.documentElement().childNodes();
    for (long i = 0; i < children.length(); ++i) {
        const XmlNode child = children.item(i);
        if (isCategory(child, elementName, categoryName)) {
            categories.push_back(child);
        }
    }
    return categories;
}

void removeChildren(XmlNode parent) {
    const XmlNodeList children = parent.childNodes();
    for (long i = children.length() - 1; i >= 0; --i) {
        parent.removeChild(children.item(i));
    }
}

/// Adds an item to a category. The string is split at its first ";", and without one is all key.
void addItem(const XmlDocument& document, const XmlNode& category, const std::string& elementName,
             const std::string& item) {
    const std::size_t semicolon = item.find(';');
    const bool hasValue = semicolon != std::string::npos;
    XmlNode element = appendItem(document, category, elementName, "id", item.substr(0, semicolon));
    XmlNode displayName = document.createElement("displayName");
    displayName.setText(hasValue ? item.substr(semicolon + 1) : "");
    element.appendChild(displayName);
}

/// The work of `replaceCategoryItems` between opening and closing.
void replaceItems(const XmlDocument& document, const std::string& categoryName,
                  const std::function<std::vector<std::string>()>& readItems,
                  MissingCategory missing) {
    std::vector<XmlNode> categories = categoriesOf(document, "category", categoryName);
    if (categories.empty() && missing == MissingCategory::Create) {
        categories.push_back(appendCategory(document, "category", "name", categoryName));
    }
    for (const XmlNode& category : categories) {
        removeChildren(category);
        for (const std::string& item : readItems()) {
            addItem(document, category, "item_" + categoryName, item);
        }
    }
}

}  // namespace

std::string settingsFilePath() {
    // The first one, be it in the name of a folder.
    return replaceFirst(platform::modulePath(), ".dll", "_configuration.xml");
}

XmlDocument openSettingsDocument(const std::string& path) {
    // First, since the default document is made with it as well.
    platform::initializeCom();
    if (!platform::canRead(path)) {
        createDefaultSettings(path);
    }
    XmlDocument document = XmlDocument::create();
    // What cannot be parsed leaves an empty document, which throws where its root is needed.
    static_cast<void>(document.load(path));
    return document;
}

void createDefaultSettings(const std::string& path) {
    XmlDocument document = XmlDocument::create();
    document.appendChild(
        document.createProcessingInstruction("xml", "version=\"1.0\" encoding=\"UTF-8\""));
    XmlNode configuration = document.createElement("configuration");
    document.appendChild(configuration);
    addAttribute(document, configuration, "nameOfApplication", "Tarnix");
    XmlNode helpdesk = appendItem(document, configuration, "category", "name", "httpHelpdesk");
    XmlNode www = document.createElement("www");
    www.setText(defaultHelpdeskUrl);
    helpdesk.appendChild(www);
    appendItem(document, configuration, "category", "name", "iProperty");
    appendItem(document, configuration, "category", "name", "bomItems");
    document.save(path);
}

std::vector<std::string> readCategoryItems(const std::string& elementName,
                                           const std::string& categoryName) {
    const XmlDocument document = openSettingsDocument(settingsFilePath());
    std::vector<std::string> items;
    for (const XmlNode& category : categoriesOf(document, elementName, categoryName)) {
        const XmlNodeList children = category.childNodes();
        for (long i = 0; i < children.length(); ++i) {
            items.push_back(itemToString(children.item(i)));
        }
    }
    return items;
}

std::string itemToString(const XmlNode& itemElement) {
    const std::string key = firstAttributeValue(itemElement);
    if (key.empty()) {
        return "";
    }
    const std::string text = itemElement.firstChild().text();
    return key + ";" + (text.empty() ? "missing" : text);
}

std::string readHelpdeskUrl() {
    const XmlDocument document = openSettingsDocument(settingsFilePath());
    std::string url;
    for (const XmlNode& category : categoriesOf(document, "category", "httpHelpdesk")) {
        url = category.firstChild().text();
    }
    return url;
}

void writeHelpdeskUrl(const std::string& url) {
    const std::string path = settingsFilePath();
    {
        // Released before COM is: its library may be unloaded with the last use.
        const XmlDocument document = openSettingsDocument(path);
        for (const XmlNode& category : categoriesOf(document, "category", "httpHelpdesk")) {
            category.firstChild().setText(url);
        }
        document.save(path);
    }
    platform::uninitializeCom();
}

XmlNode appendCategory(const XmlDocument& document, const std::string& elementName,
                       const std::string& attributeName, const std::string& attributeValue) {
    try {
        return appendItem(document, document.documentElement(), elementName, attributeName,
                          attributeValue);
    } catch (const std::exception&) {
        return {};
    }
}

XmlNode appendItem(const XmlDocument& document, XmlNode parent, const std::string& elementName,
                   const std::string& attributeName, const std::string& attributeValue) {
    // Whole before it is added, so that nothing half made stays when a step fails.
    return parent.appendChild(makeElement(document, elementName, attributeName, attributeValue));
}

void replaceCategoryItems(const std::string& categoryName,
                          const std::function<std::vector<std::string>()>& readItems,
                          MissingCategory missing) {
    const std::string path = settingsFilePath();
    {
        // Released before COM is: its library may be unloaded with the last use.
        const XmlDocument document = openSettingsDocument(path);
        replaceItems(document, categoryName, readItems, missing);
        document.save(path);
    }
    platform::uninitializeCom();
}

}  // namespace tarnix
