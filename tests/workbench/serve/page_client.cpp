#include "tests/workbench/serve/page_client.h"

#include <httplib.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace test_support {
namespace {

constexpr std::chrono::seconds kPatience{30};

}  // namespace

struct PageClient::Parts {
    explicit Parts(const ServedProgram& program)
        : secrets(program.secrets()),
          origin("http://127.0.0.1:" + std::to_string(program.port())),
          stream("127.0.0.1", program.port()),
          actions("127.0.0.1", program.port()) {
        stream.set_read_timeout(kPatience);
        actions.set_read_timeout(kPatience);
        actions.set_tcp_nodelay(true);
        actions.set_keep_alive(true);
    }

    [[nodiscard]] httplib::Headers headers() const {
        return {{"Cookie", secrets.cookie}, {"Workbench-Key", secrets.key}, {"Origin", origin}};
    }

    void follow() {
        stream.Get("/events", headers(), [this](const char* bytes, std::size_t count) {
            const std::lock_guard lock(mutex);
            if (isLeaving) return false;
            taken += count;
            buffer.append(bytes, count);
            takeEvents();
            changed.notify_all();
            return true;
        });
        const std::lock_guard lock(mutex);
        isOver = true;
        changed.notify_all();
    }

    void takeEvents() {
        for (std::size_t end = 0; (end = buffer.find("\n\n")) != std::string::npos;) {
            takeEvent(buffer.substr(0, end));
            buffer.erase(0, end + 2);
        }
    }

    void takeEvent(const std::string& event) {
        const std::size_t at = event.find("\ndata: ");
        if (at == std::string::npos) return;
        const Json data = Json::parse(event.substr(at + 7));
        if (data.contains("state")) {
            page = data["page"];
            state = data["state"];
        } else {
            state = state.patch(data["patch"]);
        }
        revision = data["revision"];
    }

    ServedProgram::Secrets secrets;
    std::string origin;
    httplib::Client stream;
    httplib::Client actions;
    std::thread thread;

    std::mutex mutex;
    std::condition_variable changed;
    std::string buffer;
    std::size_t taken = 0;
    Json state;
    int page = 0;
    std::uint64_t revision = 0;
    bool isOver = false;
    bool isLeaving = false;
};

PageClient::PageClient(const ServedProgram& program) : parts_(std::make_unique<Parts>(program)) {
    parts_->thread = std::thread([this] { parts_->follow(); });
    std::unique_lock lock(parts_->mutex);
    parts_->changed.wait_for(lock, kPatience,
                             [this] { return parts_->page != 0 || parts_->isOver; });
}

PageClient::~PageClient() {
    {
        const std::lock_guard lock(parts_->mutex);
        parts_->isLeaving = true;
    }
    parts_->stream.stop();
    parts_->thread.join();
}

Json PageClient::act(Json action) {
    action["page"] = number();
    const auto response =
        parts_->actions.Post("/actions", parts_->headers(), action.dump(), "application/json");
    if (!response) return {{"error", "no answer"}};
    Json answer = Json::parse(response->body, nullptr, /*allow_exceptions=*/false);
    answer["status"] = response->status;
    if (answer.contains("revision")) {
        std::unique_lock lock(parts_->mutex);
        parts_->changed.wait_for(lock, kPatience, [&] {
            return parts_->revision >= answer["revision"].get<std::uint64_t>() || parts_->isOver;
        });
    }
    return answer;
}

std::string PageClient::refusal(Json action) {
    const Json answer = act(std::move(action));
    return answer.contains("error") ? std::to_string(answer.value("status", 0)) + " " +
                                          answer["error"].get<std::string>()
                                    : "not refused";
}

Json PageClient::state() const {
    const std::lock_guard lock(parts_->mutex);
    return parts_->state;
}

Json PageClient::waitFor(const std::function<bool(const Json& state)>& isSuch) const {
    std::unique_lock lock(parts_->mutex);
    bool found = false;
    parts_->changed.wait_for(lock, kPatience, [&] {
        found = parts_->state.is_object() && isSuch(parts_->state);
        return found || parts_->isOver;
    });
    return found ? parts_->state : Json();
}

void PageClient::waitForEnd() {
    std::unique_lock lock(parts_->mutex);
    parts_->changed.wait_for(lock, kPatience, [this] { return parts_->isOver; });
}

int PageClient::number() const {
    const std::lock_guard lock(parts_->mutex);
    return parts_->page;
}

std::size_t PageClient::bytes() const {
    const std::lock_guard lock(parts_->mutex);
    return parts_->taken;
}

namespace {

Json found(const Json& inputs, const std::string& id);

Json foundInTable(const Json& table, const std::string& id) {
    Json result = found(table["toolbar"], id);
    for (const Json& row : table["window"]["rows"]) {
        result = result.is_null() ? found(row["cells"], id) : result;
    }
    return result;
}

Json found(const Json& inputs, const std::string& id) {
    Json result;
    for (const Json& each : inputs) {
        if (!result.is_null()) break;
        if (each["id"] == id) {
            result = each;
        } else if (each.contains("inputs")) {
            result = found(each["inputs"], id);
        } else if (each["kind"] == "Table") {
            result = foundInTable(each, id);
        }
    }
    return result;
}

}  // namespace

Json inputOf(const Json& state, const std::string& id) {
    return state["dialog"].is_null() ? Json() : found(state["dialog"]["inputs"], id);
}

}  // namespace test_support
