#pragma once

#include "workbench/serve/main_queue.h"
#include "workbench/serve/protocol_error.h"
#include "workbench/serve/served_host.h"

#include <functional>
#include <future>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace workbench::serve {

/// What the server's threads ask of the host, done on the main thread.
class HostCalls {
public:
    HostCalls(MainQueue& queue, ServedHost& host) : queue_(queue), host_(host) {}

    /// Does `work` with the host, and returns what it returned or throws what it threw.
    template <class Result>
    Result run(std::function<Result(ServedHost&)> work) const {
        const auto promise = std::make_shared<std::promise<Result>>();
        std::future<Result> result = promise->get_future();
        post([promise, work = std::move(work), &host = host_] {
            try {
                promise->set_value(work(host));
            } catch (...) {
                fail(*promise);
            }
        });
        return result.get();
    }

    /// Does an action; returns its answer, which may come before the action is over.
    [[nodiscard]] Json act(Action action) const {
        const auto promise = std::make_shared<std::promise<Json>>();
        std::future<Json> result = promise->get_future();
        post([promise, action = std::move(action), &host = host_] {
            try {
                host.act(action, [promise](const Json& answer) { promise->set_value(answer); });
            } catch (...) {
                fail(*promise);
            }
        });
        return result.get();
    }

    /// Shows a new page what it opens with.
    void greet(const std::shared_ptr<Page>& page) const {
        post([page, &host = host_] { host.greet(page); });
    }

    /// Lists warnings in the log.
    void warn(const std::vector<std::string>& warnings) const {
        post([warnings, &host = host_] { host.warn(warnings); });
    }

    [[nodiscard]] const DataFolder& data() const { return host_.data(); }

private:
    /// Answers with the exception that is handled now. An action that was answered as waiting has
    /// no caller left that would take one.
    template <class Result>
    static void fail(std::promise<Result>& promise) {
        try {
            promise.set_exception(std::current_exception());
        } catch (const std::future_error&) {
            return;
        }
    }

    void post(MainQueue::Work work) const {
        if (queue_.isClosed()) {
            throw ProtocolError(kUnavailable, "the program is ending");
        }
        if (!queue_.post(std::move(work))) {
            throw ProtocolError(kTooManyRequests, "too many requests wait; try again");
        }
    }

    MainQueue& queue_;
    ServedHost& host_;
};

}  // namespace workbench::serve
