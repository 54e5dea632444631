#include "tests/workbench/serve/raw_connection.h"
#include "tests/workbench/serve/served_program.h"
#include "tests/workbench/workbench_fixture.h"

#include <httplib.h>

#include <nlohmann/json.hpp>

#include <atomic>
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
        cookie = program->cookie();
        own = "127.0.0.1:" + std::to_string(program->port());
    }

    [[nodiscard]] int get(const std::string& path, const Headers& headers) const {
        httplib::Client client("127.0.0.1", program->port());
        const auto response = client.Get(path, headers);
        return response ? response->status : -1;
    }

    [[nodiscard]] int getWithCookie(const std::string& path) const {
        return get(path, {{"Cookie", cookie}});
    }

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
        return post(body, {{"Cookie", cookie}, {"Origin", "http://" + own}});
    }

    std::unique_ptr<ServedProgram> program;
    std::string cookie;
    std::string own;
};

TEST_F(Server, AddressSetsACookieForThisPortAndLeadsToThePage) {
    httplib::Client client("127.0.0.1", program->port());

    const auto response = client.Get("/?token=" + program->token());

    ASSERT_TRUE(response);
    EXPECT_EQ(response->status, 303);
    EXPECT_EQ(response->get_header_value("Location"), "/");
    EXPECT_EQ(response->get_header_value("Set-Cookie"),
              "workbench-" + std::to_string(program->port()) + "=" + program->token() +
                  "; HttpOnly; SameSite=Strict; Path=/");
    EXPECT_EQ(program->token().size(), 64U);
    EXPECT_EQ(getWithCookie("/"), 200);
}

TEST_F(Server, PageRunsItsOwnScriptAlone) {
    httplib::Client client("127.0.0.1", program->port());

    const auto response = client.Get("/", {{"Cookie", cookie}});

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
    EXPECT_EQ(get("/", {{"Cookie", cookie.substr(0, cookie.find('=') + 1) + token}}), 403);
}

TEST_F(Server, ForeignHostIsRefused) {
    EXPECT_EQ(get("/", {{"Cookie", cookie}, {"Host", "evil.example:80"}}), 403);
    EXPECT_EQ(get("/?token=" + program->token(), {{"Host", "evil.example"}}), 403);
    EXPECT_EQ(get("/", {{"Cookie", cookie}, {"Host", "127.0.0.1:1"}}), 403);
    EXPECT_EQ(
        get("/", {{"Cookie", cookie}, {"Host", "localhost:" + std::to_string(program->port())}}),
        200);
}

TEST_F(Server, ForeignOriginIsRefused) {
    const std::string expected = "403 the header Origin has to be http://" + own;

    EXPECT_EQ(post("{}", {{"Cookie", cookie}}), expected);
    EXPECT_EQ(post("{}", {{"Cookie", cookie}, {"Origin", "null"}}), expected);
    EXPECT_EQ(post("{}", {{"Cookie", cookie}, {"Origin", "http://evil.example"}}), expected);
    EXPECT_EQ(post("{}", {{"Cookie", cookie}, {"Origin", "https://" + own}}), expected);
    EXPECT_EQ(get("/events", {{"Cookie", cookie}, {"Origin", "http://evil.example"}}), 403);
}

TEST_F(Server, PicturesOfTheAddinAreServedAndNothingElseOfItsFolder) {
    EXPECT_EQ(getWithCookie("/resources/1/Resources/BOM/16x16.png"), 200);
    for (const char* const path :
         {"/resources/1/Tarnix.manifest", "/resources/1/Tarnix.dll",
          "/resources/1/../Tarnix.manifest", "/resources/1/%2e%2e/Tarnix/Resources/BOM/16x16.png",
          "/resources/1//etc/passwd", "/resources/1/Resources/../../../../../../../../etc/passwd",
          "/resources/1/Resources", "/resources/1/Resources/BOM/16x16.png%00.html",
          "/resources/Resources/BOM/16x16.png"}) {
        EXPECT_GE(getWithCookie(path), 400) << path;
    }
}

TEST_F(Server, NothingOutsideOfTheDataFolderIsListed) {
    EXPECT_EQ(getWithCookie("/files"), 200);
    EXPECT_EQ(getWithCookie("/files?folder=Local"), 200);
    for (const char* const name : {"..", "../Tarnix", "Local/../..", "/", "/etc", ".", "nowhere",
                                   "Local%00", "%2e%2e%2fTarnix"}) {
        EXPECT_EQ(getWithCookie(std::string("/files?folder=") + name), 404) << name;
    }
}

TEST_F(Server, LinkOutOfTheDataFolderIsNotFollowed) {
    std::filesystem::create_directory_symlink(
        folder.path(), folder.path() / "data/tarnix-workbench/Projects/Local/out");

    EXPECT_EQ(getWithCookie("/files?folder=Local/out"), 404);
    httplib::Client client("127.0.0.1", program->port());
    const auto listed = client.Get("/files?folder=Local", {{"Cookie", cookie}});
    ASSERT_TRUE(listed);
    EXPECT_EQ(nlohmann::json::parse(listed->body)["entries"], nlohmann::json::array());
}

TEST_F(Server, PalettesPagesComeInASandbox) {
    httplib::Client client("127.0.0.1", program->port());

    const auto response =
        client.Get("/site/units/units-cmd.asp?app=Inventor", {{"Cookie", cookie}});

    ASSERT_TRUE(response);
    EXPECT_EQ(response->status, 200);
    EXPECT_NE(response->get_header_value("Content-Security-Policy").find("sandbox allow-scripts"),
              std::string::npos);
    EXPECT_EQ(getWithCookie("/site/../README.md"), 404);
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
    announced.send("POST /actions HTTP/1.1\r\nHost: " + own + "\r\nCookie: " + cookie +
                   "\r\nOrigin: http://" + own + "\r\nContent-Length: 104857600\r\n\r\n");
    EXPECT_EQ(announced.firstLine(), "HTTP/1.1 413 Payload Too Large");
    EXPECT_EQ(getWithCookie("/"), 200);
}

TEST_F(Server, ThousandRequestsAtATimeAreAnswered) {
    constexpr int kThreads = 50;
    constexpr int kEach = 20;
    std::atomic<int> answered = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < kEach; ++n) {
                answered += getWithCookie("/files") == 200 ? 1 : 0;
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

    EXPECT_EQ(getWithCookie("/files"), 200);
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
