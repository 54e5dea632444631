#include "tests/host/import/stub_reader.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace stub_reader {

void useBinaryStreams() {
    static_cast<void>(::_setmode(0, _O_BINARY));
    static_cast<void>(::_setmode(1, _O_BINARY));
}

void crash() {
    // Without a debugger or a window that asks.
    ::SetUnhandledExceptionFilter(
        [](EXCEPTION_POINTERS* /*unused*/) -> LONG { return EXCEPTION_EXECUTE_HANDLER; });
    ::RaiseException(EXCEPTION_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr);
}

void endAtOnce(int status) { ::ExitProcess(static_cast<UINT>(status)); }

std::string processId() { return std::to_string(::GetCurrentProcessId()); }

std::string openFiles(const std::string& which) {
    DWORD flags = 0;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number between processes
    auto* const handle = reinterpret_cast<HANDLE>(std::stoull(which));
    return ::GetHandleInformation(handle, &flags) != 0 ? "open" : "closed";
}

}  // namespace stub_reader
