#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

class Data;
class Document;
class Documents;
class ImportManager;
class Preferences;
class Product;
class UserInterface;

/// The host itself; everything else is reached from here.
class Application : public Base {
public:
    static const char* classType();

    /// The one application of the process, null where none runs.
    static Ptr<Application> get();

    [[nodiscard]] virtual Ptr<UserInterface> userInterface() const = 0;

    /// The document that the user works in.
    [[nodiscard]] virtual Ptr<Document> activeDocument() const = 0;

    /// What the active workspace shows of the active document: its design, or another product. Null
    /// without one.
    [[nodiscard]] virtual Ptr<Product> activeProduct() const = 0;

    /// What the user edits: a component, or a sketch while one is open.
    [[nodiscard]] virtual Ptr<Base> activeEditObject() const = 0;

    /// The user's projects, folders and files.
    [[nodiscard]] virtual Ptr<Data> data() const = 0;

    /// The open documents.
    [[nodiscard]] virtual Ptr<Documents> documents() const = 0;

    [[nodiscard]] virtual Ptr<ImportManager> importManager() const = 0;
    [[nodiscard]] virtual Ptr<Preferences> preferences() const = 0;

    /// The code of the last failure, a value of `GenericErrors`; `Ok` where nothing failed. Its
    /// text goes to `description` where one is given.
    virtual int getLastError(std::string* description = nullptr) const = 0;
};

}  // namespace adsk::core
