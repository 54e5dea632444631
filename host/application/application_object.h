#pragma once

#include "host/application/custom_events.h"
#include "host/application/documents_object.h"
#include "host/application/import_manager_object.h"
#include "host/base/object.h"
#include "host/design/design_data.h"
#include "host/design/reading_warning.h"
#include "host/ui/active_model.h"
#include "host/ui/dialogs/messages.h"
#include "host/ui/host_setup.h"
#include "host/ui/preferences_object.h"
#include "host/ui/user_interface_object.h"

#include <Core/Application.h>
#include <Core/Data.h>
#include <Core/Document.h>
#include <Core/Product.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace host {

/// The application object of the host. A `RunningHost` makes it; the actions of `host/session`
/// drive it.
class ApplicationObject final : public Object<core::Application>, public ui::ActiveModel {
public:
    explicit ApplicationObject(const HostSetup& setup);

    /// That of the host that lives, null for none.
    static core::Ptr<ApplicationObject> current();

    [[nodiscard]] core::Ptr<core::UserInterface> userInterface() const override {
        return get<"userInterface">(ui_);
    }
    [[nodiscard]] core::Ptr<core::Document> activeDocument() const override {
        return get<"activeDocument">(document_);
    }
    [[nodiscard]] core::Ptr<core::Product> activeProduct() const override;
    [[nodiscard]] core::Ptr<core::Base> activeEditObject() const override;
    [[nodiscard]] core::Ptr<core::Data> data() const override;
    [[nodiscard]] core::Ptr<core::Documents> documents() const override {
        return get<"documents">(documents_);
    }
    [[nodiscard]] core::Ptr<core::ImportManager> importManager() const override {
        return get<"importManager">(importManager_);
    }
    [[nodiscard]] core::Ptr<core::Preferences> preferences() const override {
        return get<"preferences">(preferences_);
    }
    int getLastError(std::string* description) const override;
    void log(const std::string& message, core::LogLevels level, core::LogTypes logType) override;
    core::Ptr<core::CustomEvent> registerCustomEvent(const std::string& eventId) override;
    bool unregisterCustomEvent(const std::string& eventId) override;
    bool fireCustomEvent(const std::string& eventId, const std::string& additionalInfo) override;

    /// @name For the code that started the host
    /// @{

    /// Makes a document the active one. A running command ends with its document, unless it is
    /// inside its execution; nothing is selected any more. In workspaces for designs `product` is
    /// what is shown of it: its design where that is null.
    void setActiveDocument(const core::Ptr<core::Document>& document,
                           const core::Ptr<core::Product>& product = nullptr);

    /// Opens a design as a document that the host owns and ends itself, and makes it the active
    /// one. A command that is inside its execution goes on.
    core::Ptr<core::Document> openInHost(DesignData data);

    /// The documents that `openInHost` opened, oldest first.
    [[nodiscard]] const std::vector<core::Ptr<core::Document>>& openedInHost() const {
        return documents_->owned();
    }

    /// What the user should know of files that modules opened, one line each, oldest first.
    std::vector<ReadingWarning> importWarnings;

    /// Sets the user's projects; null for none.
    void setData(const core::Ptr<core::Data>& data);

    /// Sets what the user edits, such as an open sketch; null for the root component.
    void setActiveEditObject(const core::Ptr<core::Base>& object);

    [[nodiscard]] const core::Ptr<core::Document>& document() const { return document_; }

    [[nodiscard]] bool isRootComponent(const core::Ptr<core::Base>& entity) const override;
    [[nodiscard]] std::uint64_t editsOfModel() const override;

    [[nodiscard]] ui::UserInterfaceObject& ui() const { return *ui_; }
    [[nodiscard]] CustomEvents& customEvents() { return customEvents_; }
    /// @}

    void dispose();

private:
    [[nodiscard]] ui::ModelHistory makeHistory();

    CustomEvents customEvents_;
    core::Ptr<ui::UserInterfaceObject> ui_;
    core::Ptr<ui::PreferencesObject> preferences_;
    core::Ptr<DocumentsObject> documents_;
    core::Ptr<ImportManagerObject> importManager_;
    core::Ptr<core::Data> data_;
    core::Ptr<core::Document> document_;
    core::Ptr<core::Product> product_;
    core::Ptr<core::Product> otherProduct_;
    core::Ptr<core::Base> root_;
    core::Ptr<core::Base> editObject_;

    /// A record of a document's history.
    struct DocumentRecord {
        core::Ptr<core::Document> document;
        std::uint64_t record = 0;
    };
    std::map<std::uint64_t, DocumentRecord> records_;  ///< that are not taken back or kept yet
    std::uint64_t newestRecord_ = 0;
};

}  // namespace host
