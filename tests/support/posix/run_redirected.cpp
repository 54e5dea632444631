#include "tests/support/run_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace test_support {
namespace {

int waitFor(pid_t child) {
    int status = 0;
    if (::waitpid(child, &status, 0) != child || !WIFEXITED(status)) {
        return -1;
    }
    return WEXITSTATUS(status);
}

}  // namespace

int runRedirected(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                  const std::filesystem::path& output, const std::filesystem::path& errors) {
    std::vector<std::string> texts = {program.string()};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> values;
    for (std::string& text : texts) {
        values.push_back(text.data());
    }
    values.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    constexpr int kMode = 0600;
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), kFlags, kMode);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(), kFlags, kMode);
    pid_t child = 0;
    const int failure =
        ::posix_spawn(&child, program.c_str(), &actions, nullptr, values.data(), ::environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? waitFor(child) : -1;
}

}  // namespace test_support
