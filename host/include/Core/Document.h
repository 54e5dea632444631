#pragma once

#include <Core/Collection.h>

#include <string>

namespace adsk::core {

class Application;
class DataFile;

/// An open document.
class Document : public Base {
public:
    static const char* classType();

    /// The file in the user's data that it was opened from or saved to. Null for a document that
    /// was never saved, and for a referenced one until the host has looked its file up.
    [[nodiscard]] virtual Ptr<DataFile> dataFile() const = 0;

    /// The application.
    [[nodiscard]] virtual Ptr<Application> parent() const = 0;

    /// The document's name; the root component of its design is called the same.
    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    /// Whether it has ever been saved into the user's data.
    [[nodiscard]] virtual bool isSaved() const = 0;
};

/// The open documents.
class Documents : public CollectionOf<Document> {
public:
    static const char* classType();

    /// Opens a file of the user's data and makes it the active document; null where that fails, for
    /// instance while the file is still being converted.
    virtual Ptr<Document> open(const Ptr<DataFile>& dataFile, bool visible = true) = 0;
};

}  // namespace adsk::core
