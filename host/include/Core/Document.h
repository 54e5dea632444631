#pragma once

#include <Core/Collection.h>
#include <Core/Values.h>

#include <string>

namespace adsk::core {

class Application;
class DataFile;

/// An open document.
class Document : public Base {
public:
    static const char* classType();  ///< "adsk::core::Document"

    /// The file of the user's data that it was opened from or saved to. Null for a document that
    /// was never saved, and for a referenced one until the host has found its file.
    [[nodiscard]] virtual Ptr<DataFile> dataFile() const = 0;

    /// The application; never null.
    [[nodiscard]] virtual Ptr<Application> parent() const = 0;

    /// The document's name, which is also that of the root component of its design.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Renames the root component too. False for an empty name, for a document that was saved, and
    /// for one that is open only because another one refers to it.
    virtual bool name(const std::string& value) = 0;

    /// Whether it has a file in the user's data.
    [[nodiscard]] virtual bool isSaved() const = 0;
};

/// The open documents, in the order in which they were opened. Those that are open only because
/// another one refers to them are not among them.
class Documents : public CollectionOf<Document> {
public:
    static const char* classType();  ///< "adsk::core::Documents"

    /// Opens a file of the user's data as the active document, which closes an open dialog. Null
    /// for null, for a file that cannot be read, and while it is being converted after its upload.
    /// Takes as long as reading the file; `visible` is ignored. The stand-in throws if set to.
    virtual Ptr<Document> open(const Ptr<DataFile>& dataFile, bool visible = true) = 0;

    /// Creates an empty design as the active document, which closes an open dialog. `visible` and
    /// `options` are ignored. Null for another type of document.
    virtual Ptr<Document> add(DocumentTypes documentType, bool visible = true,
                              const Ptr<NamedValues>& options = nullptr) = 0;
};

}  // namespace adsk::core
