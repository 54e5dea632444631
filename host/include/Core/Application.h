#pragma once

#include <Core/Base.h>
#include <Core/Enums.h>

#include <string>

namespace adsk::core {

class CustomEvent;
class Data;
class Document;
class Documents;
class ImportManager;
class Preferences;
class Product;
class UserInterface;

/// The host itself; everything else is accessed from here.
class Application : public Base {
public:
    static const char* classType();  ///< "adsk::core::Application"

    /// The one application of the process; null while no host runs.
    static Ptr<Application> get();

    /// Toolbars, commands and dialogs; never null.
    [[nodiscard]] virtual Ptr<UserInterface> userInterface() const = 0;

    /// The document that the user works in; null before the first one is opened.
    [[nodiscard]] virtual Ptr<Document> activeDocument() const = 0;

    /// What the active workspace shows of the active document: its design, or another product,
    /// which does not convert to a design. Null without a document.
    [[nodiscard]] virtual Ptr<Product> activeProduct() const = 0;

    /// What the user edits: a sketch while one is open, otherwise the root component of the active
    /// document. Null without a document.
    [[nodiscard]] virtual Ptr<Base> activeEditObject() const = 0;

    /// The user's projects, folders and files; null when the host has no storage for them.
    [[nodiscard]] virtual Ptr<Data> data() const = 0;

    /// The open documents; never null.
    [[nodiscard]] virtual Ptr<Documents> documents() const = 0;

    /// Imports files of other formats; never null.
    [[nodiscard]] virtual Ptr<ImportManager> importManager() const = 0;

    /// The user's settings of the host; never null.
    [[nodiscard]] virtual Ptr<Preferences> preferences() const = 0;

    /// The code of the last failure, a value of `GenericErrors`, or `Ok` when nothing has failed
    /// yet. A call that succeeds does not reset it. `description` may be null; otherwise it
    /// receives the message.
    virtual int getLastError(std::string* description = nullptr) const = 0;

    /// Writes a line to the host's log file, and with `ConsoleLogType` to its text window too. An
    /// empty line is written as such.
    virtual void log(const std::string& message, LogLevels level = InfoLogLevel,
                     LogTypes logType = FileLogType) = 0;

    /// Makes an event of the module's own. Null when the id is empty or in use, by any module.
    virtual Ptr<CustomEvent> registerCustomEvent(const std::string& eventId) = 0;

    /// Ends an event that was registered; its object is not valid afterwards, and what was fired
    /// and has not been handled is dropped. False for an id that is not registered.
    virtual bool unregisterCustomEvent(const std::string& eventId) = 0;

    /// Has the handlers of a custom event notified: on the host's own thread, in the order of the
    /// calls, once the running notification has returned or while it waits in `adsk::doEvents`.
    /// False for an id that is not registered.
    ///
    /// This is the one operation that any thread may call, through a handle that it does not copy.
    /// On another thread a failure is not noted as the last error.
    virtual bool fireCustomEvent(const std::string& eventId,
                                 const std::string& additionalInfo = "") = 0;
};

}  // namespace adsk::core
