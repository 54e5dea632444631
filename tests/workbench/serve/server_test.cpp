#include "tests/workbench/serve/raw_connection.h"
#include "tests/workbench/serve/served_program.h"
#include "tests/workbench/workbench_fixture.h"

#include <httplib.h>

#include <nlohmann/json.hpp>

#include <atomic>
#include <chrono>
#include <thread>

namespace test_support {
namespace {

using Headers = httplib::Headers;

/// The program with a small design, and requests to it.
class Server : public Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        program = std::make_unique<ServedProgram>(std::vector<std::string>{design(kSmallDesign)});
        ASSERT_NE(program->port(), 0);
        secrets = program->secrets();
        own = "127.0.0.1:" + std::to_string(program->port());
    }

    [[nodiscard]] int get(const std::string& path, const Headers& headers) const {
        httplib::Client client("127.0.0.1", program->port());
        const auto response = client.Get(path, headers);
        return response ? response->status : -1;
    }

    /// What the page sends.
    [[nodiscard]] Headers known() const {
        return {{"Cookie", secrets.cookie}, {"Workbench-Key", secrets.key}};
    }

    /// The same with headers that it would not send.
    [[nodiscard]] Headers knownAnd(const Headers& more) const {
        Headers headers = known();
        headers.insert(more.begin(), more.end());
        return headers;
    }

    [[nodiscard]] int getKnown(const std::string& path) const { return get(path, known()); }

    /// The status and the error of an action's request.
    [[nodiscard]] std::string post(const std::string& body, const Headers& headers) const {
        httplib::Client client("127.0.0.1", program->port());
        const auto response = client.Post("/actions", headers, body, "application/json");
        if (!response) return "no answer";
        const auto json = nlohmann::json::parse(response->body, nullptr, false);
        return std::to_string(response->status) + " " +
               (json.is_object() ? json.value("error", "") : "");
    }

    [[nodiscard]] std::string post(const std::string& body) const {
        return post(body, knownAnd({{"Origin", "http://" + own}}));
    }

    std::unique_ptr<ServedProgram> program;
    ServedProgram::Secrets secrets;
    std::string own;
};

TEST_F(Server, AddressSetsACookieForThisPortAndLeadsToThePage) {
    httplib::Client client("127.0.0.1", program->port());

    const auto response = client.Get("/?token=" + program->token());

    ASSERT_TRUE(response);
    EXPECT_EQ(response->status, 303);
    EXPECT_EQ(response->get_header_value("Location"), "/#key=" + secrets.key);
    EXPECT_EQ(response->get_header_value("Set-Cookie"),
              secrets.cookie + "; HttpOnly; SameSite=Strict; Path=/");
    EXPECT_EQ(secrets.cookie.find("workbench-" + std::to_string(program->port()) + "="), 0U);
    EXPECT_EQ(secrets.key.size(), 64U);
    EXPECT_EQ(getKnown("/"), 200);
}

TEST_F(Server, NoSecretLeadsToAnother) {
    const std::string cookie = secrets.cookie.substr(secrets.cookie.find('=') + 1);

    EXPECT_EQ(program->token().size(), 64U);
    EXPECT_NE(program->token(), cookie);
    EXPECT_NE(program->token(), secrets.key);
    EXPECT_NE(cookie, secrets.key);
}

// A browser sends the cookie to every port of the machine, whoever listens there.
TEST_F(Server, CookieAloneServesNothingOfTheUsers) {
    for (const char* const path :
         {"/events", "/files", "/model.glb", "/opened/0", "/actions", "/nothing"}) {
        EXPECT_EQ(get(path, {{"Cookie", secrets.cookie}}), 403) << path;
        EXPECT_EQ(get(path, {{"Workbench-Key", secrets.key}}), 403) << path;
    }
    EXPECT_EQ(post("{}", {{"Cookie", secrets.cookie}, {"Origin", "http://" + own}}).substr(0, 3),
              "403");
    EXPECT_EQ(get("/files?key=" + secrets.key, {{"Cookie", secrets.cookie}}), 200);
    EXPECT_EQ(get("/files?key=" + secrets.key.substr(1), {{"Cookie", secrets.cookie}}), 403);
}

TEST_F(Server, RequestOfAnotherPageIsRefused) {
    for (const char* const site : {"cross-site", "same-site"}) {
        EXPECT_EQ(get("/files", knownAnd({{"Sec-Fetch-Site", site}})), 403) << site;
    }
    for (const char* const site : {"same-origin", "none"}) {
        EXPECT_EQ(get("/files", knownAnd({{"Sec-Fetch-Site", site}})), 200) << site;
    }
}

TEST_F(Server, PageRunsItsOwnScriptAlone) {
    httplib::Client client("127.0.0.1", program->port());

    const auto response = client.Get("/", known());

    ASSERT_TRUE(response);
    EXPECT_EQ(response->get_header_value_count("Content-Security-Policy"), 1U);
    EXPECT_EQ(response->get_header_value("Content-Security-Policy")
                  .find("default-src 'none'; "
                        "script-src 'self'; "),
              0U);
    EXPECT_EQ(response->get_header_value("X-Content-Type-Options"), "nosniff");
}

TEST_F(Server, NothingIsServedWithoutTheCookie) {
    for (const char* const path :
         {"/", "/host.js", "/events", "/files", "/model.glb",
          "/resources/1/Resources/BOM/16x16.png", "/opened/0", "/nothing"}) {
        EXPECT_EQ(get(path, {}), 403) << path;
    }
    EXPECT_EQ(post("{}", {{"Origin", "http://" + own}}),
              "403 open the address that the program printed");
}

TEST_F(Server, WrongTokenIsRefused) {
    std::string token = program->token();
    token.back() = token.back() == '0' ? '1' : '0';

    EXPECT_EQ(get("/?token=" + token, {}), 403);
    EXPECT_EQ(get("/?token=", {}), 403);
    EXPECT_EQ(
        get("/", {{"Cookie", secrets.cookie.substr(0, secrets.cookie.find('=') + 1) + token}}),
        403);
}

TEST_F(Server, ForeignHostIsRefused) {
    EXPECT_EQ(get("/", knownAnd({{"Host", "evil.example:80"}})), 403);
    EXPECT_EQ(get("/?token=" + program->token(), {{"Host", "evil.example"}}), 403);
    EXPECT_EQ(get("/", knownAnd({{"Host", "127.0.0.1:1"}})), 403);
    EXPECT_EQ(get("/", knownAnd({{"Host", "localhost:" + std::to_string(program->port())}})), 200);
}

TEST_F(Server, ForeignOriginIsRefused) {
    const std::string expected = "403 the header Origin has to be http://" + own;

    EXPECT_EQ(post("{}", known()), expected);
    EXPECT_EQ(post("{}", knownAnd({{"Origin", "null"}})), expected);
    EXPECT_EQ(post("{}", knownAnd({{"Origin", "http://evil.example"}})), expected);
    EXPECT_EQ(post("{}", knownAnd({{"Origin", "https://" + own}})), expected);
    EXPECT_EQ(get("/events", knownAnd({{"Origin", "http://evil.example"}})), 403);
}

TEST_F(Server, PicturesOfTheAddinAreServedAndNothingElseOfItsFolder) {
    EXPECT_EQ(getKnown("/resources/1/Resources/BOM/16x16.png"), 200);
    for (const char* const path :
         {"/resources/1/Tarnix.manifest", "/resources/1/Tarnix.dll",
          "/resources/1/../Tarnix.manifest", "/resources/1/%2e%2e/Tarnix/Resources/BOM/16x16.png",
          "/resources/1//etc/passwd", "/resources/1/Resources/../../../../../../../../etc/passwd",
          "/resources/1/Resources", "/resources/1/Resources/BOM/16x16.png%00.html",
          "/resources/Resources/BOM/16x16.png"}) {
        EXPECT_GE(getKnown(path), 400) << path;
    }
}

TEST_F(Server, NothingOutsideOfTheDataFolderIsListed) {
    EXPECT_EQ(getKnown("/files"), 200);
    EXPECT_EQ(getKnown("/files?folder=Local"), 200);
    for (const char* const name : {"..", "../Tarnix", "Local/../..", "/", "/etc", ".", "nowhere",
                                   "Local%00", "%2e%2e%2fTarnix"}) {
        EXPECT_EQ(getKnown(std::string("/files?folder=") + name), 404) << name;
    }
}

TEST_F(Server, LinkOutOfTheDataFolderIsNotFollowed) {
    std::filesystem::create_directory_symlink(
        folder.path(), folder.path() / "data/tarnix-workbench/Projects/Local/out");

    EXPECT_EQ(getKnown("/files?folder=Local/out"), 404);
    httplib::Client client("127.0.0.1", program->port());
    const auto listed = client.Get("/files?folder=Local", known());
    ASSERT_TRUE(listed);
    EXPECT_EQ(nlohmann::json::parse(listed->body)["entries"], nlohmann::json::array());
}

TEST_F(Server, PalettesPagesComeInASandbox) {
    httplib::Client client("127.0.0.1", program->port());

    const auto response = client.Get("/site/units/units-cmd.asp?app=Inventor", known());

    ASSERT_TRUE(response);
    EXPECT_EQ(response->status, 200);
    EXPECT_NE(response->get_header_value("Content-Security-Policy").find("sandbox allow-scripts"),
              std::string::npos);
    EXPECT_EQ(getKnown("/site/../README.md"), 404);
}

TEST_F(Server, WhatIsNoActionIsRefusedByName) {
    const std::string known = "400 no such action; there are press, click";

    EXPECT_EQ(post("{\"page\": 1"), "400 the body is not valid JSON");
    EXPECT_EQ(post(""), "400 the body is not valid JSON");
    EXPECT_EQ(post("[]"), "400 the body has to be a JSON object");
    EXPECT_EQ(post("{}"), "400 the member \"action\" is missing");
    EXPECT_EQ(post(R"({"page": 1, "action": "fly"})").substr(0, known.size()), known);
    EXPECT_EQ(post(R"({"page": "1", "action": "ok"})"),
              "400 the member \"page\" has to be a whole number from 0 to 2147483647");
    EXPECT_EQ(post(R"({"page": 1, "action": "press", "command": 5})"),
              "400 the member \"command\" has to be a string");
    EXPECT_EQ(post(R"({"page": 1, "action": "type", "input": 1, "text": "a\u0000b"})"),
              "400 the member \"text\" has to be a string without a zero character");
    EXPECT_EQ(post(R"({"page": 1, "action": "ok"})"), "404 no such page: 1");
    EXPECT_EQ(post(std::string(500'000, '[')), "400 the body is nested too deeply");
}

TEST_F(Server, LargeBodyIsRefused) {
    EXPECT_EQ(post(std::string(2'000'000, ' ')).substr(0, 3), "413");
    RawConnection announced(program->port());
    announced.send("POST /actions HTTP/1.1\r\nHost: " + own + "\r\nCookie: " + secrets.cookie +
                   "\r\nWorkbench-Key: " + secrets.key + "\r\nOrigin: http://" + own +
                   "\r\nContent-Length: 104857600\r\n\r\n");
    EXPECT_EQ(announced.firstLine(), "HTTP/1.1 413 Payload Too Large");
    EXPECT_EQ(getKnown("/"), 200);
}

TEST_F(Server, ThousandRequestsAtATimeAreAnswered) {
    constexpr int kThreads = 50;
    constexpr int kEach = 20;
    std::atomic<int> answered = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < kEach; ++n) {
                answered += getKnown("/files") == 200 ? 1 : 0;
            }
        });
    }
    for (std::thread& each : threads) {
        each.join();
    }

    EXPECT_EQ(answered, kThreads * kEach);
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(Server, ConnectionsThatSayNothingDoNotKeepOthersFromBeingServed) {
    std::vector<std::unique_ptr<RawConnection>> silent;
    for (int i = 0; i < 200; ++i) {
        silent.push_back(std::make_unique<RawConnection>(program->port()));
        silent.back()->send("GET /fil");
    }

    EXPECT_EQ(getKnown("/files"), 200);
}

// Each has a thread while its body may come, and nothing drops it: it knows the secrets.
TEST_F(Server, OneConnectionTooManyIsRefused) {
    std::vector<std::unique_ptr<RawConnection>> slow;
    for (int i = 0; i < 80; ++i) {
        slow.push_back(std::make_unique<RawConnection>(program->port()));
        slow.back()->send("POST /actions HTTP/1.1\r\nHost: " + own +
                          "\r\nCookie: " + secrets.cookie + "\r\nWorkbench-Key: " + secrets.key +
                          "\r\nOrigin: http://" + own + "\r\nContent-Length: 10\r\n\r\n");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    std::vector<std::unique_ptr<RawConnection>> waiting;
    for (int i = 0; i < 256; ++i) {
        waiting.push_back(std::make_unique<RawConnection>(program->port()));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(500));

    const RawConnection next(program->port());
    EXPECT_EQ(next.firstLine(), "HTTP/1.1 503 Service Unavailable");
    EXPECT_EQ(slow.front()->firstLine(), "HTTP/1.1 400 Bad Request");  // it took too long
    waiting.clear();
    int status = 0;
    for (int attempt = 0; attempt < 100 && status != 200; ++attempt) {
        status = getKnown("/files");
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    EXPECT_EQ(status, 200);
}

TEST_F(Server, RequestThatComesByteByByteIsGivenUp) {
    const RawConnection slow(program->port());
    std::thread dripping([&slow] {
        for (int i = 0; i < 70 && slow.send("G") > 0; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
    });
    const auto began = std::chrono::steady_clock::now();

    static_cast<void>(slow.firstLine());

    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(6500));
    dripping.join();
}

TEST_F(Server, PortInUseIsNamed) {
    const std::string port = std::to_string(program->port());
    const ProgramResult result =
        run({"serve", "--port", port, "--data-home", path("other"), "--quiet"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "tarnix-workbench: --port " + port +
                                 ": the port is in use; name another one, or 0 for any that is "
                                 "free\n");
    EXPECT_EQ(result.output, "");
}

}  // namespace
}  // namespace test_support
