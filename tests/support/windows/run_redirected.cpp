#include "tests/support/run_program.h"

#include "host/base/windows/command_line.h"

#include <windows.h>

namespace test_support {
namespace {

HANDLE openForChild(const std::filesystem::path& file, DWORD access, DWORD disposition) {
    SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return ::CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                         disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

int waitFor(const PROCESS_INFORMATION& child) {
    DWORD status = static_cast<DWORD>(-1);
    ::WaitForSingleObject(child.hProcess, INFINITE);
    ::GetExitCodeProcess(child.hProcess, &status);
    ::CloseHandle(child.hThread);
    ::CloseHandle(child.hProcess);
    return static_cast<int>(status);
}

}  // namespace

int runRedirected(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                  const std::filesystem::path& output, const std::filesystem::path& errors) {
    std::wstring line = host::commandLine(program, arguments);
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = openForChild(L"NUL", GENERIC_READ, OPEN_EXISTING);
    start.hStdOutput = openForChild(output, GENERIC_WRITE, CREATE_ALWAYS);
    start.hStdError = openForChild(errors, GENERIC_WRITE, CREATE_ALWAYS);
    PROCESS_INFORMATION child = {};
    const BOOL started =
        ::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr,
                         /*bInheritHandles=*/TRUE, 0, nullptr, nullptr, &start, &child);
    const int status = started != 0 ? waitFor(child) : -1;
    ::CloseHandle(start.hStdInput);
    ::CloseHandle(start.hStdOutput);
    ::CloseHandle(start.hStdError);
    return status;
}

}  // namespace test_support
