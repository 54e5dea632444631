#include "tests/workbench/serve/served_program.h"

#include "host/session/environment.h"

#include <fcntl.h>
#include <httplib.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <utility>

namespace test_support {
namespace {

/// What comes through a pipe up to the end of the line, without that.
std::string lineFrom(int pipe) {
    std::string line;
    for (char each = 0; ::read(pipe, &each, 1) == 1 && each != '\n';) {
        line += each;
    }
    return line;
}

pid_t start(const std::vector<std::string>& arguments, int output) {
    std::vector<std::string> texts = {
        (host::environment::programFolder() / "tarnix-workbench").string(), "serve", "--quiet"};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> values;
    for (std::string& text : texts) {
        values.push_back(text.data());
    }
    values.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t child = 0;
    const int failure =
        ::posix_spawn(&child, values[0], &actions, nullptr, values.data(), ::environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? child : 0;
}

}  // namespace

ServedProgram::ServedProgram(const std::vector<std::string>& arguments) {
    std::array<int, 2> pipe = {};
    if (::pipe2(pipe.data(), O_CLOEXEC) == 0) {
        process_ = start(arguments, pipe[1]);
        ::close(pipe[1]);
        address_ = lineFrom(pipe[0]);
        ::close(pipe[0]);
    }
}

ServedProgram::~ServedProgram() { stop(); }

void ServedProgram::signal(int number) const { ::kill(process_, number); }

int ServedProgram::stop() {
    const pid_t process = std::exchange(process_, 0);
    int status = 0;
    if (process == 0 || ::kill(process, SIGTERM) != 0 ||
        ::waitpid(process, &status, 0) != process || !WIFEXITED(status)) {
        return -1;
    }
    return WEXITSTATUS(status);
}

int ServedProgram::port() const {
    const std::size_t at = address_.rfind(':');
    return at == std::string::npos ? 0 : std::stoi(address_.substr(at + 1));
}

std::string ServedProgram::token() const {
    return address_.substr(std::min(address_.find('=') + 1, address_.size()));
}

ServedProgram::Secrets ServedProgram::secrets() const {
    httplib::Client client("127.0.0.1", port());
    const auto response = client.Get("/?token=" + token());
    if (!response) {
        return {};
    }
    const std::string cookie = response->get_header_value("Set-Cookie");
    const std::string place = response->get_header_value("Location");
    return {.cookie = cookie.substr(0, cookie.find(';')),
            .key = place.substr(std::min(place.find('=') + 1, place.size()))};
}

}  // namespace test_support
