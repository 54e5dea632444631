#pragma once

#include "workbench/serve/action.h"
#include "workbench/serve/addin_pictures.h"
#include "workbench/serve/changes.h"
#include "workbench/serve/data_folder.h"
#include "workbench/serve/event_log.h"
#include "workbench/serve/main_queue.h"
#include "workbench/serve/pages.h"
#include "workbench/serve/serve_request.h"

#include "host/design/design_data.h"
#include "host/session/dialog_answers.h"
#include "host/session/dialog_view.h"
#include "host/session/session.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace workbench::serve {

/// A design, to be drawn by any thread.
struct ModelSource {
    std::uint64_t revision = 0;
    std::uint64_t document = 0;  ///< grows with each document: designs of one have the same shapes
    std::shared_ptr<const host::DesignData> design;
};

/// Takes the answer to an action: once, and from the main thread.
using Answer = std::function<void(const Json& answer)>;

/// The host as several pages use it: does their actions, and shows them its state. It lives on the
/// main thread.
///
/// While the module waits for an answer, or for the host, the queue is emptied from inside the call
/// in which it waits; the actions that are being done are then answered as waiting.
class ServedHost {
public:
    /// `request` without its design, which `begin` takes.
    ServedHost(ServeRequest request, MainQueue& queue, Pages& pages);
    ServedHost(const ServedHost&) = delete;
    ServedHost& operator=(const ServedHost&) = delete;
    ~ServedHost();

    /// Loads the add-in and shows the design. Throws a `SessionError` where it cannot be loaded.
    void begin(host::DesignData design, const std::vector<host::ReadingWarning>& warnings);

    /// Calls the add-in's `run`, in which it may show messages already. One that fails to start is
    /// listed in the log.
    void runAddin();

    /// Does what pages and the clock ask for, until the queue is closed.
    void loop();

    /// Stops the add-in and ends the session.
    void stop();

    /// Does an action. Throws a `ProtocolError`, `MisuseError` or `SessionError` for what cannot be
    /// done; then `answer` was not called, unless the module had waited before.
    void act(const Action& action, const Answer& answer);

    /// Shows all pages what is now.
    void publish();

    /// What a page opens with is shown to it.
    void greet(const std::shared_ptr<Page>& page);

    /// What the model of the newest revision is made of.
    [[nodiscard]] ModelSource model() const;

    /// Lists warnings of the program's own in the log, and shows that.
    void warn(const std::vector<std::string>& warnings);

    /// The file that the add-in asked the system to open, by its number in `opened`; none for what
    /// is no file of the add-in's or of the user's data.
    [[nodiscard]] std::optional<std::filesystem::path> openedFile(std::size_t number) const;

    [[nodiscard]] const DataFolder& data() const { return data_; }
    /// The session's copy of the add-in.
    [[nodiscard]] const std::filesystem::path& addinFolder() const {
        return session_->addin().folder;
    }

private:
    struct Waiting;
    class InAction;

    /// A document of this session, and where it is kept.
    struct Opened {
        adsk::core::Ptr<adsk::core::Document> document;
        std::string name;
        std::filesystem::path file;    ///< absolute; empty for none
        std::uint64_t savedEdits = 0;  ///< those that the file has
        bool changed = false;          ///< when it was last read
    };

    /// What is open while no session lives, since the add-in could not be loaded again.
    struct Kept {
        host::DesignData design;
        std::filesystem::path file;
        bool changed = false;
    };

    void load();
    void startAgain();
    void warnOfLostChanges();
    [[nodiscard]] Opened& current();
    [[nodiscard]] const std::filesystem::path& file();
    [[nodiscard]] bool isChanged();
    void refuseInside() const;
    void refuseToDiscard();
    host::DesignData read(const std::filesystem::path& file,
                          std::vector<host::ReadingWarning>& warnings);
    void readWithoutAddin(std::map<std::string, Json>& fresh);
    void showDesign(host::DesignData design, const std::filesystem::path& file);
    Json perform(const Action& action);
    void performInput(const Action& action);
    void refuseWhileWaiting(const Action& action) const;
    Json performOther(const Action& action);
    void openFile(const Action& action);
    void save(const Action& action);
    void breathe();
    void reload();
    Json menu();
    void setWindow(const Action& action);
    [[nodiscard]] adsk::core::Ptr<adsk::core::CommandInput> input(const InputName& name) const;

    adsk::core::DialogResults askMessage(const host::Message& message);
    host::PickedFiles askFiles(const host::FileDialogShown& dialog);
    void waitForAnswer(Waiting& waiting);
    Waiting& waitingFor(int id, bool isMessage);
    void answerMessage(const Action& action);
    void answerFiles(const Action& action);
    [[nodiscard]] std::filesystem::path pickedFile(const std::string& name,
                                                   host::FileDialogKind kind, bool replaces) const;
    void answerWaiting();
    void watchProgress();

    [[nodiscard]] bool readState();
    void showAll();
    void readDesignState(std::map<std::string, Json>& fresh);
    [[nodiscard]] Json documentJson();
    const Json& openedJson();
    [[nodiscard]] bool readDialogState();
    void showTo(Page& page);
    [[nodiscard]] Json dialogFor(Page& page) const;
    void addWindows(Json& inputs, const std::vector<host::InputView>& views, const Page& page,
                    bool isShown) const;
    [[nodiscard]] Json windowJson(const host::InputView& table, const RowWindow& window) const;
    [[nodiscard]] std::filesystem::path saveTarget();
    [[nodiscard]] std::string nameOf(const std::filesystem::path& file) const;

    ServeRequest setup_;
    MainQueue& queue_;
    Pages& pages_;
    DataFolder data_;
    std::unique_ptr<host::Session> session_;
    std::unique_ptr<AddinPictures> pictures_;
    EventLog log_;
    int loads_ = 0;
    bool running_ = false;
    bool wasRun_ = false;  ///< so it is to be stopped
    std::string busy_;

    std::vector<Opened> opened_;
    std::optional<Kept> kept_;
    Json shellRequests_ = Json::array();
    std::size_t shellRequestsRead_ = 0;
    adsk::core::Ptr<adsk::core::Document> document_;
    std::uint64_t readEdits_ = 0;
    std::shared_ptr<const host::DesignData> design_;
    std::uint64_t modelDigest_ = 0;
    std::uint64_t modelRevision_ = 0;
    std::uint64_t shownDocuments_ = 0;
    int documentNumber_ = 0;
    bool showsSameDesign_ = false;  ///< the next other document has the design of this one

    Waiting* waiting_ = nullptr;  ///< what the module waits for; null for nothing
    int newestQuestion_ = 0;
    std::vector<InAction*> inAction_;
    int depth_ = 0;  ///< how many calls that may be the module's run inside each other

    std::uint64_t revision_ = 0;
    Sections sections_;
    adsk::core::Ptr<adsk::core::Command> shownDialog_;
    std::optional<host::DialogView> dialog_;
    Json dialogJson_;
};

}  // namespace workbench::serve
