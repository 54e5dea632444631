#pragma once

#include "tarnix/platform/com.h"
#include "tarnix/platform/com_error.h"
#include "tarnix/platform/xml.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarnix::platform {

/// The result in the `_com_error` that an action throws; 0 if it throws none.
template <class Action>
HRESULT comError(Action action) {
    try {
        action();
    } catch (const _com_error& error) {
        return error.Error();
    }
    return 0;
}

/// What is between the declaration and the end, where the line ends differ between systems.
inline std::string rootOf(const std::string& document) {
    const std::size_t begin = document.find("<configuration");
    const std::string end = "</configuration>";
    const std::size_t last = document.rfind(end);
    if (begin == std::string::npos || last == std::string::npos) {
        return document;
    }
    return document.substr(begin, last + end.size() - begin);
}

/// Tests of documents: read from texts, and saved to be looked at.
class Xml : public testing::Test {
protected:
    Xml() { initializeCom(); }
    ~Xml() override {
        document = {};
        uninitializeCom();
    }

    /// Reads a document; its root, or nothing.
    XmlNode read(std::string_view content) {
        folder.write("document.xml", content);
        document = XmlDocument::create();
        loaded = document.load(folder.windows("document.xml"));
        return document.documentElement();
    }

    /// An empty document with a root element.
    XmlNode makeRoot() {
        document = XmlDocument::create();
        return document.appendChild(document.createElement("configuration"));
    }

    /// The file as the document is saved.
    std::string saved() {
        document.save(folder.windows("saved.xml"));
        return folder.read("saved.xml");
    }

    test_support::TemporaryFolder folder;
    XmlDocument document;
    bool loaded = false;
};

}  // namespace tarnix::platform
