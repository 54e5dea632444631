#pragma once

#include "host/application/running_host.h"
#include "host/base/dispatcher.h"
#include "host/session/dialog_answers.h"
#include "host/session/input_actions.h"
#include "host/session/user_actions.h"

#include "tests/support/fault_watch.h"

#include <Core/CoreAll.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace host {

using namespace adsk::core;

/// A handler whose notification is a function.
template <class Handler, class Arguments>
class Calling final : public Handler {
public:
    using Function = std::function<void(const Ptr<Arguments>&)>;

    explicit Calling(Function function) : function_(std::move(function)) {}
    void notify(const Ptr<Arguments>& eventArgs) override { function_(eventArgs); }

private:
    Function function_;
};

using OnCreated =
    Calling<adsk::core::CommandCreatedEventHandler, adsk::core::CommandCreatedEventArgs>;
using OnCommand = Calling<adsk::core::CommandEventHandler, adsk::core::CommandEventArgs>;
using OnChanged = Calling<adsk::core::InputChangedEventHandler, adsk::core::InputChangedEventArgs>;
using OnValidate =
    Calling<adsk::core::ValidateInputsEventHandler, adsk::core::ValidateInputsEventArgs>;
using OnApplication =
    Calling<adsk::core::ApplicationCommandEventHandler, adsk::core::ApplicationCommandEventArgs>;
using OnWorkspace = Calling<adsk::core::WorkspaceEventHandler, adsk::core::WorkspaceEventArgs>;
using OnMenu = Calling<adsk::core::MarkingMenuEventHandler, adsk::core::MarkingMenuEventArgs>;

/// A running host, and a module's side of it: definitions, handlers, and a list of what happened.
class HostTest : public testing::Test {
protected:
    using Build = std::function<void(const Ptr<adsk::core::Command>&)>;

    explicit HostTest(const HostSetup& setup = {}) { startHost(setup); }
    ~HostTest() override { endHost(); }

    /// Ends the host that runs, and starts another one.
    void startHost(const HostSetup& setup = {}) {
        endHost();
        host_.emplace(setup);
    }

    /// Ends the host; what it reported by then has to be named.
    void endHost() {
        if (host_) faults.verify();
        host_.reset();
    }

    static Ptr<adsk::core::UserInterface> ui() {
        return adsk::core::Application::get()->userInterface();
    }

    /// Adds a handler to an event; the test keeps it.
    template <class Handler, class Event, class Function>
    void on(const Event& event, Function function) {
        auto handler = std::make_shared<Handler>(std::move(function));
        event->add(handler.get());
        handlers_.push_back(handler);
    }

    /// Makes a definition whose commands are built by `build`.
    Ptr<adsk::core::CommandDefinition> define(const std::string& id, const Build& build);

    /// Opens the dialog of a command built by `build` and returns its inputs.
    Ptr<adsk::core::CommandInputs> open(const Build& build);

    /// The same; `build` gets the command's inputs, and changes are noted.
    Ptr<adsk::core::CommandInputs> openWith(
        const std::function<void(const Ptr<adsk::core::CommandInputs>&)>& build);

    /// Notes each change that the open dialog reports, as the input's id.
    void traceChanges(const Ptr<adsk::core::Command>& command);

    /// Notes all events of a command and of the host, each as one word.
    void traceLife(const Ptr<adsk::core::Command>& command);
    void traceHost();

    /// What was noted since the last call, separated by spaces.
    std::string noted();

    void note(const std::string& what) { notes_.push_back(what); }

    /// What was thrown and what was misused so far. The test names it by asking.
    [[nodiscard]] const std::vector<UncaughtException>& uncaughtExceptions() {
        return faults.exceptions();
    }
    [[nodiscard]] std::vector<Misuse> misuses() { return faults.misuses(); }

    /// The operations that were misused so far, in one line. The test names them by asking.
    [[nodiscard]] std::string misused() { return test_support::operationsOf(faults.misuses()); }

    /// What the host reports against the test's side, and which of it the test expects.
    test_support::FaultWatch faults;

private:
    std::vector<std::shared_ptr<adsk::core::EventHandler>> handlers_;
    std::vector<std::string> notes_;
    std::optional<RunningHost> host_;  // goes first: handlers are notified of its end
};

/// A running host in which the design of an outline is open and active.
class HostWithDesign : public HostTest {
protected:
    explicit HostWithDesign(const std::string& outline);
    ~HostWithDesign() override;

    adsk::core::Ptr<adsk::core::Document> document;
};

/// The number of a termination reason, as "=1".
std::string reasonText(adsk::core::CommandTerminationReason reason);

/// What the action throws as a `MisuseError`, empty where it throws none.
std::string misuseOf(const std::function<void()>& action);

}  // namespace host
