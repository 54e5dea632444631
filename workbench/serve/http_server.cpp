#include "workbench/serve/http_server.h"

#include "workbench/cli/exit_code.h"
#include "workbench/serve/event_stream.h"
#include "workbench/serve/host_calls.h"
#include "workbench/serve/limited_server.h"
#include "workbench/serve/model_bytes.h"
#include "workbench/serve/palette_pages.h"
#include "workbench/serve/protocol_error.h"
#include "workbench/serve/rate_limit.h"
#include "workbench/serve/request_guard.h"
#include "workbench/serve/served_files.h"

#include "host/base/utf8_path.h"

#include <httplib.h>

#include <charconv>
#include <chrono>
#include <fstream>
#include <future>
#include <iterator>
#include <optional>
#include <thread>
#include <utility>

namespace workbench::serve {
namespace {

using httplib::Request;
using httplib::Response;

constexpr std::size_t kMostBytes = std::size_t{1024} * 1024;
constexpr const char* kAddress = "127.0.0.1";

/// Of the page itself: nothing from elsewhere, and no script or style but its own files.
constexpr const char* kPagePolicy =
    "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data: blob:; "
    "connect-src 'self'; frame-src 'self'; base-uri 'none'; form-action 'none'; "
    "frame-ancestors 'none'";

/// Of a palette's page: it has script and style of its own, and reaches nothing.
constexpr const char* kSitePolicy =
    "default-src 'none'; script-src 'unsafe-inline'; style-src 'unsafe-inline'; img-src data:; "
    "form-action 'none'; base-uri 'none'; frame-ancestors 'self'; sandbox allow-scripts "
    "allow-forms allow-popups";

/// Of what is no page.
constexpr const char* kClosedPolicy = "default-src 'none'; sandbox; frame-ancestors 'none'";

constexpr const char* kJsonType = "application/json; charset=utf-8";
constexpr const char* kHtmlType = "text/html; charset=utf-8";

/// The library compresses a body at each request, which between two programs of one machine takes
/// far longer than sending it; not so what is asked for piece by piece. `bytes` are not copied.
void sendAsItIs(Response& response, const std::shared_ptr<const std::string>& bytes,
                const std::string& type) {
    response.set_content_provider(
        bytes->size(), type,
        [bytes](std::size_t offset, std::size_t length, httplib::DataSink& sink) {
            return sink.write(bytes->data() + offset, length);
        });
}

void answerJson(Response& response, int status, const Json& json) {
    response.status = status;
    response.set_content(textOf(json) + "\n", kJsonType);
}

void refuse(Response& response, const ProtocolError& error) {
    Json body = {{"error", error.what()}};
    if (!error.member().empty()) {
        body[error.member()] = true;
    }
    answerJson(response, error.status(), body);
}

std::string typeOf(const std::string& name) {
    const std::string ending = name.substr(std::min(name.rfind('.'), name.size()));
    if (ending == ".js") return "text/javascript; charset=utf-8";
    if (ending == ".css") return "text/css; charset=utf-8";
    if (ending == ".svg") return "image/svg+xml";
    if (ending == ".png" || ending == ".gif") return "image/" + ending.substr(1);
    if (ending == ".jpg" || ending == ".jpeg") return "image/jpeg";
    return kHtmlType;
}

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw ProtocolError(kNotFound, "the file cannot be read");
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Whether a request is answered with what the page is made of, and nothing of the user's.
bool isPartOfPage(const std::string& path) {
    return path == "/" || path == "/host.js" || path == "/host.css" ||
           path.starts_with("/resources/") || path.starts_with("/site/");
}

/// The browser's own requests for events and downloads have no headers of the page's.
std::string keyOf(const Request& request) {
    return request.has_header("Workbench-Key") ? request.get_header_value("Workbench-Key")
                                               : request.get_param_value("key");
}

std::size_t numberIn(const std::string& text) {
    std::size_t number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || end != text.data() + text.size()) {
        throw ProtocolError(kNotFound, "no such address");
    }
    return number;
}

}  // namespace

struct HttpServer::Parts {
    Parts(MainQueue& mainQueue, Pages& allPages) : queue(mainQueue), pages(allPages) {}

    void configure();
    void route();
    httplib::Server::HandlerResponse check(const Request& request, Response& response);
    void begin(const Request& request, Response& response) const;
    void page(const std::string& name, Response& response) const;
    void site(const Request& request, Response& response) const;
    void events(Response& response) const;
    void action(const Request& request, Response& response);
    void files(const Request& request, Response& response) const;
    void model(Response& response);
    void resource(const Request& request, Response& response) const;
    void opened(const Request& request, Response& response) const;

    MainQueue& queue;
    Pages& pages;
    LimitedServer server;
    int port = 0;
    Secrets secrets;
    std::optional<RequestGuard> guard;
    std::optional<HostCalls> host;
    RateLimit actions{500, 1000};
    RateLimit strangers{20, 100};
    ModelBytes modelBytes;
    std::filesystem::path addinFolder;
    std::thread thread;
};

void HttpServer::Parts::configure() {
    server.set_payload_max_length(kMostBytes);
    server.set_tcp_nodelay(true);
    // By default two servers could share a port, and take each other's requests.
    server.set_socket_options([](socket_t socket) {
        const int yes = 1;
        ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, reinterpret_cast<const char*>(&yes),
                     sizeof yes);
    });
    server.set_default_headers({{"X-Content-Type-Options", "nosniff"},
                                {"Referrer-Policy", "no-referrer"},
                                {"Cache-Control", "no-store"},
                                {"Cross-Origin-Resource-Policy", "same-origin"}});
    server.set_exception_handler([](const Request&, Response& response, std::exception_ptr error) {
        try {
            std::rethrow_exception(error);
        } catch (const ProtocolError& refusal) {
            refuse(response, refusal);
        } catch (const std::runtime_error& refusal) {
            refuse(response, {kConflict, refusal.what()});
        } catch (const std::exception& failure) {
            refuse(response, {kFailed, std::string("the program failed: ") + failure.what()});
        }
    });
    server.set_error_handler([](const Request&, Response& response) {
        if (response.body.empty() && response.status >= kBadRequest) {
            refuse(response, {response.status, response.status == kNotFound
                                                   ? "no such address"
                                                   : "the request cannot be answered"});
        }
    });
}

httplib::Server::HandlerResponse HttpServer::Parts::check(const Request& request,
                                                          Response& response) {
    using Result = httplib::Server::HandlerResponse;
    response.set_header("Content-Security-Policy", kClosedPolicy);
    const RequestOrigin origin = {.method = request.method,
                                  .host = request.get_header_value("Host"),
                                  .origin = request.get_header_value("Origin"),
                                  .site = request.get_header_value("Sec-Fetch-Site"),
                                  .cookie = request.get_header_value("Cookie"),
                                  .hasOneHost = request.get_header_value_count("Host") == 1};
    std::string why = guard->whyForeign(origin);
    const bool asksForCookie = request.path == "/" && request.has_param("token");
    const bool knowsSecrets = guard->hasCookie(origin.cookie) &&
                              (isPartOfPage(request.path) || guard->isKey(keyOf(request)));
    if (why.empty() && !asksForCookie && !knowsSecrets) {
        why = "open the address that the program printed";
    }
    if (why.empty()) {
        return Result::Unhandled;
    }
    refuse(response, strangers.take() ? ProtocolError(kForbidden, why)
                                      : ProtocolError(kTooManyRequests, "too many requests"));
    return Result::Handled;
}

void HttpServer::Parts::route() {
    server.set_pre_routing_handler(
        [this](const Request& request, Response& response) { return check(request, response); });
    server.Get("/", [this](const Request& request, Response& response) {
        request.has_param("token") ? begin(request, response) : page("host.html", response);
    });
    for (const char* const name : {"host.js", "host.css"}) {
        server.Get(std::string("/") + name,
                   [this, name](const Request&, Response& response) { page(name, response); });
    }
    server.Get("/events", [this](const Request&, Response& response) { events(response); });
    server.Post("/actions",
                [this](const Request& request, Response& response) { action(request, response); });
    server.Get("/files",
               [this](const Request& request, Response& response) { files(request, response); });
    server.Get("/model.glb", [this](const Request&, Response& response) { model(response); });
    server.Get("/resources/[0-9]+/(.*)",
               [this](const Request& request, Response& response) { resource(request, response); });
    server.Get("/site/(.*)",
               [this](const Request& request, Response& response) { site(request, response); });
    server.Get("/opened/(.*)",
               [this](const Request& request, Response& response) { opened(request, response); });
}

void HttpServer::Parts::begin(const Request& request, Response& response) const {
    if (!guard->isToken(request.get_param_value("token"))) {
        throw ProtocolError(kForbidden,
                            "the token is not that of this program; open the address that it "
                            "printed last");
    }
    constexpr int kSeeOther = 303;
    response.set_header("Set-Cookie", guard->setCookie());
    response.set_redirect(guard->pageAddress(), kSeeOther);
}

void HttpServer::Parts::page(const std::string& name, Response& response) const {
    const auto found = pageFiles().find(name);
    if (found == pageFiles().end()) {
        throw ProtocolError(kNotFound, "this build has no page");
    }
    response.headers.erase("Content-Security-Policy");
    response.set_header("Content-Security-Policy", kPagePolicy);
    // It belongs to the program, and to no one who would have to free it.
    sendAsItIs(response, {std::shared_ptr<const std::string>(), &found->second}, typeOf(name));
}

void HttpServer::Parts::site(const Request& request, Response& response) const {
    const std::string* const content = pageContent(request.matches[1]);
    if (content == nullptr) {
        throw ProtocolError(kNotFound, "there is no such page");
    }
    response.headers.erase("Content-Security-Policy");
    response.set_header("Content-Security-Policy", kSitePolicy);
    response.set_content(*content, kHtmlType);
}

void HttpServer::Parts::events(Response& response) const {
    const std::shared_ptr<Page> page = pages.open();
    if (!page) {
        throw ProtocolError(kUnavailable, "too many pages are open; close one");
    }
    const auto stream = std::make_shared<EventStream>(pages, page);
    host->greet(page);
    response.set_chunked_content_provider(
        "text/event-stream", [stream](std::size_t, httplib::DataSink& sink) {
            const std::optional<std::string> text = stream->next();
            if (!text) {
                sink.done();
                return true;
            }
            // Nothing to say for a second: time to see whether the page is still there.
            return text->empty() ? sink.is_writable() : sink.write(text->data(), text->size());
        });
}

void HttpServer::Parts::action(const Request& request, Response& response) {
    if (!actions.take()) {
        throw ProtocolError(kTooManyRequests, "too many actions at a time; try again");
    }
    const Action action = parseAction(request.body);
    if (!pages.find(action.page)) {
        throw ProtocolError(kNotFound, "no such page: " + std::to_string(action.page));
    }
    constexpr int kFine = 200;
    answerJson(response, kFine, host->act(action));
}

void HttpServer::Parts::files(const Request& request, Response& response) const {
    const std::string folder = request.get_param_value("folder");
    constexpr int kFine = 200;
    answerJson(response, kFine, host->data().list(folder));
}

void HttpServer::Parts::model(Response& response) {
    const ModelSource source =
        host->run<ModelSource>([](ServedHost& served) { return served.model(); });
    const std::shared_ptr<const std::string> bytes = modelBytes.of(
        source, [this](const std::vector<std::string>& warnings) { host->warn(warnings); });
    response.set_header("Model-Revision", std::to_string(source.revision));
    if (bytes->empty()) {
        constexpr int kNoContent = 204;
        response.status = kNoContent;
        return;
    }
    sendAsItIs(response, bytes, "model/gltf-binary");
}

void HttpServer::Parts::resource(const Request& request, Response& response) const {
    const auto file = pictureFile(addinFolder, request.matches[1]);
    if (!file) {
        throw ProtocolError(kNotFound, "there is no such picture");
    }
    response.set_content(bytesOf(*file), typeOf(host::toUtf8(file->filename())).c_str());
}

void HttpServer::Parts::opened(const Request& request, Response& response) const {
    const std::size_t number = numberIn(request.matches[1]);
    const auto file = host->run<std::optional<std::filesystem::path>>(
        [number](ServedHost& served) { return served.openedFile(number); });
    if (!file) {
        throw ProtocolError(kNotFound, "there is no such file");
    }
    response.set_header("Content-Disposition",
                        "attachment; filename*=UTF-8''" + encoded(host::toUtf8(file->filename())));
    response.set_content(bytesOf(*file), "application/octet-stream");
}

HttpServer::HttpServer(int port, MainQueue& queue, Pages& pages)
    : parts_(std::make_unique<Parts>(queue, pages)) {
    parts_->configure();
    const bool isBound = port == 0 || parts_->server.bind_to_port(kAddress, port);
    parts_->port = port == 0 ? parts_->server.bind_to_any_port(kAddress) : port;
    if (!isBound || parts_->port < 0) {
        throw Failure(ExitCode::BadUsage, "--port " + std::to_string(port) +
                                              ": the port is in use; name another one, or 0 for "
                                              "any that is free");
    }
    parts_->server.acceptMany();
    parts_->guard.emplace(parts_->secrets, parts_->port);
    parts_->route();
}

HttpServer::~HttpServer() {
    parts_->pages.closeAll();
    parts_->modelBytes.end();
    parts_->server.stopSoon();
    if (parts_->thread.joinable()) {
        parts_->thread.join();
    }
}

void HttpServer::start(ServedHost& host) {
    parts_->host.emplace(parts_->queue, host);
    parts_->addinFolder = host.addinFolder();
    std::promise<void> ended;
    std::future<void> end = ended.get_future();
    parts_->thread = std::thread([this, ended = std::move(ended)]() mutable {
        parts_->server.listen_after_bind();
        ended.set_value();
    });
    // Until then the library takes no notice of a `stop`.
    constexpr std::chrono::milliseconds kPause(1);
    while (!parts_->server.is_running() && end.wait_for(kPause) != std::future_status::ready) {
    }
}

std::string HttpServer::address() const {
    return "http://127.0.0.1:" + std::to_string(parts_->port) + "/?token=" + parts_->secrets.token;
}

}  // namespace workbench::serve
