#include "host/application/application_object.h"

#include "host/application/log.h"
#include "host/application/running_host.h"
#include "host/base/host_state.h"
#include "host/base/last_error.h"
#include "host/design/document.h"

#include <Core/Data.h>
#include <Core/Import.h>
#include <Fusion/Component.h>
#include <Fusion/Design.h>

#include <utility>

namespace host {
namespace {

constexpr const char* kDesignType = "DesignProductType";

}  // namespace

ApplicationObject::ApplicationObject(const HostSetup& setup)
    : ui_(make<ui::UserInterfaceObject>(setup, *this)),
      preferences_(make<ui::PreferencesObject>()),
      documents_(make<DocumentsObject>()),
      importManager_(make<ImportManagerObject>()) {
    ui_->history = makeHistory();
}

// A document may be opened or closed while a record is open: the record is of the one that was
// active when it was opened.
ui::ModelHistory ApplicationObject::makeHistory() {
    const auto take = [this](std::uint64_t number) {
        const DocumentRecord record = records_[number];
        records_.erase(number);
        return record;
    };
    return {.begin =
                [this] {
                    records_[++newestRecord_] = {.document = document_,
                                                 .record = beginRecord(document_)};
                    return newestRecord_;
                },
            .end =
                [this](std::uint64_t number) {
                    const DocumentRecord& record = records_[number];
                    endRecord(record.document, record.record);
                },
            .takeBack =
                [take](std::uint64_t number) {
                    const DocumentRecord record = take(number);
                    takeBack(record.document, record.record);
                },
            .keep =
                [take](std::uint64_t number) {
                    const DocumentRecord record = take(number);
                    keepRecord(record.document, record.record);
                }};
}

core::Ptr<ApplicationObject> ApplicationObject::current() {
    const auto* running = HostState::currentPart<RunningApplication>();
    return running == nullptr ? nullptr : running->application;
}

core::Ptr<core::Product> ApplicationObject::activeProduct() const {
    if (closed<"activeProduct">(*this)) return {};
    const core::Ptr<ui::WorkspaceObject>& workspace = ui_->state().workspaces->active();
    return workspace && workspace->state().productType != kDesignType ? otherProduct_ : product_;
}

core::Ptr<core::Base> ApplicationObject::activeEditObject() const {
    if (closed<"activeEditObject">(*this)) return {};
    return editObject_ ? editObject_ : root_;
}

core::Ptr<core::Data> ApplicationObject::data() const {
    if (closed<"data">(*this)) return {};
    if (!data_) {
        fail(core::OperationFailed, "Application::data: no folder stands in for the user's data");
    }
    return data_;
}

int ApplicationObject::getLastError(std::string* description) const {
    if (closed<"getLastError">(*this)) return {};
    if (description != nullptr) {
        *description = lastError().description;
    }
    return lastError().code;
}

void ApplicationObject::log(const std::string& message, core::LogLevels level,
                            core::LogTypes logType) {
    if (closed<"log">(*this)) return;
    if (auto* log = HostState::currentPart<Log>()) {
        log->lines.push_back({.text = message, .level = level, .type = logType});
    }
}

core::Ptr<core::CustomEvent> ApplicationObject::registerCustomEvent(const std::string& eventId) {
    if (closed<"registerCustomEvent">(*this)) return {};
    const auto event = eventId.empty() ? nullptr : customEvents_.add(eventId, this);
    if (!event) {
        fail(core::BadApiCallError, "Application::registerCustomEvent: the id \"" + eventId +
                                        (eventId.empty() ? "\" is empty" : "\" is in use"));
    }
    return event;
}

bool ApplicationObject::unregisterCustomEvent(const std::string& eventId) {
    if (closed<"unregisterCustomEvent">(*this)) return {};
    return customEvents_.remove(eventId) ||
           fail(core::BadApiCallError,
                "Application::unregisterCustomEvent: \"" + eventId + "\" is not registered");
}

// Neither the gate nor the last error may be touched by another thread.
bool ApplicationObject::fireCustomEvent(const std::string& eventId,
                                        const std::string& additionalInfo) {
    if (!customEvents_.isHostThread()) return customEvents_.fire(eventId, additionalInfo);
    if (closed<"fireCustomEvent">(*this)) return {};
    return customEvents_.fire(eventId, additionalInfo) ||
           fail(core::BadApiCallError,
                "Application::fireCustomEvent: \"" + eventId + "\" is not registered");
}

void ApplicationObject::setActiveDocument(const core::Ptr<core::Document>& document,
                                          const core::Ptr<core::Product>& product) {
    if (ui_->runner().active() && !ui_->runner().isExecuting()) {
        ui_->runner().end(core::SessionEndingTerminationReason);
    }
    documents_->add(document);
    ui_->state().selections->list.clear();
    const gate::Outside outside;
    const core::Ptr<fusion::Design> design = designOf(document);
    document_ = document;
    product_ = product ? product : core::Ptr<core::Product>(design);
    otherProduct_ = otherProductOf(document);
    root_ = design ? design->rootComponent() : nullptr;
    editObject_ = nullptr;
}

core::Ptr<core::Document> ApplicationObject::openInHost(DesignData data) {
    core::Ptr<core::Document> document =
        makeDocument(std::move(data), core::Ptr<ApplicationObject>(this));
    documents_->own(document);
    setActiveDocument(document);
    return document;
}

void ApplicationObject::setData(const core::Ptr<core::Data>& data) { data_ = data; }

void ApplicationObject::setActiveEditObject(const core::Ptr<core::Base>& object) {
    editObject_ = object;
}

bool ApplicationObject::isRootComponent(const core::Ptr<core::Base>& entity) const {
    return entity && entity == root_;
}

std::uint64_t ApplicationObject::editsOfModel() const {
    return document_ ? editCount(document_) : 0;
}

void ApplicationObject::dispose() {
    ui_->dispose();
    customEvents_.dispose();
    preferences_->dispose();
    documents_->dispose();
    importManager_->invalidate();
    data_ = nullptr;
    document_ = nullptr;
    product_ = nullptr;
    otherProduct_ = nullptr;
    root_ = nullptr;
    editObject_ = nullptr;
    invalidate();
}

}  // namespace host

namespace adsk::core {

Ptr<Application> Application::get() {
    if (host::refused<"Application::get">()) return {};
    return host::ApplicationObject::current();
}

}  // namespace adsk::core
