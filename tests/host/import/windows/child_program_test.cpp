#include "host/import/child_program.h"
#include "tests/host/import/stub_reader_program.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <string>

namespace {

using host::ChildProgram;

constexpr std::size_t kMegabytes = 1000;
constexpr DWORD kPatience = 20'000;

std::string lineOf(ChildProgram& program) {
    std::string line;
    while (line.find('\n') == std::string::npos && program.receive(line, std::chrono::seconds(1))) {
    }
    return line.substr(0, line.find_first_of("\r\n"));
}

/// A process whose end can be waited for.
class Watched {
public:
    explicit Watched(DWORD id) : process_(::OpenProcess(SYNCHRONIZE, FALSE, id)) {}
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() { ::CloseHandle(process_); }

    [[nodiscard]] bool isRunning() const {
        return ::WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
    }
    [[nodiscard]] bool ends() const {
        return ::WaitForSingleObject(process_, kPatience) == WAIT_OBJECT_0;
    }

private:
    HANDLE process_;
};

DWORD openHandles() {
    DWORD count = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &count);
    return count;
}

TEST(ChildProgram, InheritsNoHandleButItsStreams) {
    SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    const HANDLE ours = ::CreateEventW(&inherited, TRUE, FALSE, nullptr);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a handle is a number there
    const std::string number = std::to_string(reinterpret_cast<std::uintptr_t>(ours));
    ChildProgram program(test_support::stubReader(), {"files", number}, kMegabytes);

    EXPECT_EQ(lineOf(program), "closed");
    ::CloseHandle(ours);
}

TEST(ChildProgram, LeavesNeitherProcessNorHandleBehind) {
    { const ChildProgram first(test_support::stubReader(), {"hang"}, kMegabytes); }
    const DWORD before = openHandles();
    DWORD id = 0;
    {
        ChildProgram program(test_support::stubReader(), {"say-id-and-hang"}, kMegabytes);
        id = static_cast<DWORD>(std::stoul(lineOf(program)));
    }

    EXPECT_EQ(openHandles(), before);
    EXPECT_FALSE(Watched(id).isRunning());
}

TEST(ChildProgram, EndsWithItsStarter) {
    // One that starts another, and is ended from outside before it can end that.
    ChildProgram starter(test_support::stubReader(),
                         {"start-another", test_support::stubReader().string()}, kMegabytes);
    const Watched other(static_cast<DWORD>(std::stoul(lineOf(starter))));
    ASSERT_TRUE(other.isRunning());

    starter.end();

    EXPECT_TRUE(other.ends());
}

}  // namespace
