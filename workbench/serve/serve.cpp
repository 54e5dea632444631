#include "workbench/serve/serve.h"

#include "workbench/cli/exit_code.h"
#include "workbench/cli/quiet.h"
#include "workbench/cli/stop_signals.h"
#include "workbench/output/reports.h"
#include "workbench/serve/http_server.h"

#include <exception>
#include <iostream>
#include <utility>

namespace workbench::serve {
namespace {

/// However the serving ends, nothing waits for an answer then: the server's threads would, and the
/// server for them.
class AnswersAtEnd {
public:
    explicit AnswersAtEnd(MainQueue& queue) : queue_(queue) {}
    AnswersAtEnd(const AnswersAtEnd&) = delete;
    AnswersAtEnd& operator=(const AnswersAtEnd&) = delete;
    ~AnswersAtEnd() {
        queue_.close();
        queue_.run();
    }

private:
    MainQueue& queue_;
};

/// However the serving ends, the add-in is asked to stop: it keeps its settings then.
class StopAtEnd {
public:
    explicit StopAtEnd(ServedHost& host) : host_(host) {}
    StopAtEnd(const StopAtEnd&) = delete;
    StopAtEnd& operator=(const StopAtEnd&) = delete;
    ~StopAtEnd() {
        try {
            host_.stop();
        } catch (const std::exception& error) {
            std::cerr << "the add-in did not stop: " << error.what() << "\n";
        }
    }

private:
    ServedHost& host_;
};

}  // namespace

void serve(ServeRequest request) {
    host::DesignData design = std::move(request.design);
    const std::vector<host::ReadingWarning> warnings = std::move(request.warnings);
    MainQueue queue;
    Pages pages;
    const int port = request.port;
    // Beyond the server: the add-in's stop, which keeps its settings, is not to be cut off either.
    const StopSignals signals([&queue] { queue.close(); });
    ServedHost host(std::move(request), queue, pages);
    const StopAtEnd stop(host);
    HttpServer server(port, queue, pages);
    try {
        host.begin(std::move(design), warnings);
    } catch (const host::SessionError& error) {
        throw Failure(ExitCode::NoAddin, error.what());
    }
    server.start(host);
    const AnswersAtEnd answers(queue);
    std::cout << server.address() << "\n";
    flushOutput();
    if (!isQuiet()) {
        std::cerr << "Open this address in a browser. Ctrl-C ends the program.\n";
    }
    host.runAddin();
    host.loop();
}

}  // namespace workbench::serve
