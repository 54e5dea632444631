#include "host/import/child_program.h"

#include "host/base/utf8_path.h"
#include "host/base/windows/command_line.h"
#include "host/import/reader_connection.h"
#include "host/import/windows/owned_handle.h"

#include <windows.h>

#include <psapi.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <map>
#include <system_error>
#include <utility>

namespace host {
namespace {

constexpr std::size_t kBytesPerMegabyte = std::size_t{1024} * 1024;

/// What a program's end is told to be that did not end by itself.
constexpr UINT kEnded = 0x40010004;  // a debugger's "terminated": no crash

[[noreturn]] void refuse(const std::string& what) {
    const std::error_code reason(static_cast<int>(::GetLastError()), std::system_category());
    throw ReaderFailure(what + " cannot be started (" + reason.message() + ")");
}

/// Two ends of a pipe: ours, of which a read can be waited for with a limit, and the child's, which
/// it inherits.
struct Pipe {
    OwnedHandle ours;
    OwnedHandle childs;
};

Pipe makePipe(bool isRead) {
    static std::atomic<unsigned> made = 0;
    const std::wstring name = L"\\\\.\\pipe\\step-reader-" +
                              std::to_wstring(::GetCurrentProcessId()) + L"-" +
                              std::to_wstring(++made);
    constexpr DWORD kSize = 65536;
    const DWORD direction = isRead ? PIPE_ACCESS_INBOUND : PIPE_ACCESS_OUTBOUND;
    Pipe pipe;
    pipe.ours = OwnedHandle(::CreateNamedPipeW(
        name.c_str(), direction | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
        PIPE_TYPE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS, /*nMaxInstances=*/1, kSize, kSize,
        /*nDefaultTimeOut=*/0, nullptr));
    SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    pipe.childs = OwnedHandle(::CreateFileW(name.c_str(), isRead ? GENERIC_WRITE : GENERIC_READ,
                                            /*dwShareMode=*/0, &inherited, OPEN_EXISTING,
                                            FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!pipe.ours || !pipe.childs) {
        refuse("the reader");
    }
    return pipe;
}

/// The files that a child inherits, and no others.
class InheritedFiles {
public:
    explicit InheritedFiles(std::array<HANDLE, 3> files) : files_(files) {
        SIZE_T size = 0;
        ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        memory_.resize(size);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): as the system wants it
        list_ = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data());
        if (::InitializeProcThreadAttributeList(list_, 1, 0, &size) == 0 ||
            ::UpdateProcThreadAttribute(list_, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, files_.data(),
                                        sizeof files_, nullptr, nullptr) == 0) {
            refuse("the reader");
        }
    }
    InheritedFiles(const InheritedFiles&) = delete;
    InheritedFiles& operator=(const InheritedFiles&) = delete;
    ~InheritedFiles() { ::DeleteProcThreadAttributeList(list_); }

    [[nodiscard]] STARTUPINFOEXW startup() const {
        STARTUPINFOEXW startup = {};
        startup.StartupInfo.cb = sizeof startup;
        startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
        startup.StartupInfo.hStdInput = files_[0];
        startup.StartupInfo.hStdOutput = files_[1];
        startup.StartupInfo.hStdError = files_[2];
        startup.lpAttributeList = list_;
        return startup;
    }

private:
    std::array<HANDLE, 3> files_;
    std::vector<char> memory_;
    LPPROC_THREAD_ATTRIBUTE_LIST list_ = nullptr;
};

/// What a program is put into that ends it with this process, and bounds what it takes.
OwnedHandle makeJob(std::size_t megabytes) {
    OwnedHandle job(::CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE |
                                              JOB_OBJECT_LIMIT_JOB_MEMORY |
                                              JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
    // What is reserved may be twice what is held, which is watched.
    limits.JobMemoryLimit = 2 * megabytes * kBytesPerMegabyte;
    if (!job || ::SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits,
                                          sizeof limits) == 0) {
        refuse("the reader");
    }
    return job;
}

/// How a program ended by itself, in the words of other systems; empty where it did not crash.
std::string crashOf(DWORD status) {
    constexpr DWORD kAbort = 3;  // of the C library's abort
    constexpr DWORD kFirstError = 0xC0000000;
    static const std::map<DWORD, std::string> kNames = {
        {kAbort, "Aborted"},
        {EXCEPTION_ACCESS_VIOLATION, "Segmentation fault"},
        {EXCEPTION_STACK_OVERFLOW, "Segmentation fault"},
        {EXCEPTION_IN_PAGE_ERROR, "Bus error"},
        {EXCEPTION_ILLEGAL_INSTRUCTION, "Illegal instruction"},
        {EXCEPTION_INT_DIVIDE_BY_ZERO, "Floating point exception"},
        {EXCEPTION_FLT_DIVIDE_BY_ZERO, "Floating point exception"},
        {EXCEPTION_FLT_INVALID_OPERATION, "Floating point exception"},
        {EXCEPTION_FLT_OVERFLOW, "Floating point exception"},
    };
    if (const auto known = kNames.find(status); known != kNames.end()) {
        return known->second;
    }
    if (status < kFirstError) {
        return {};
    }
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), "0x%08lX", status);
    return text.data();
}

}  // namespace

struct ChildProgram::System {
    OwnedHandle job;
    OwnedHandle process;
    OwnedHandle input;   ///< what is sent
    OwnedHandle output;  ///< what is received
    OwnedHandle isRead;  ///< an event
    OwnedHandle isSent;  ///< an event
    OVERLAPPED reading = {};
    bool isReading = false;
    bool isOver = false;  ///< the program has closed its output
    std::array<char, 65536> block = {};
    std::string crash;

    /// A read that is under way writes into `block`: it has to be over before that is gone.
    void cancelReading() {
        DWORD count = 0;
        if (isReading && ::CancelIoEx(output.get(), &reading) != 0) {
            ::GetOverlappedResult(output.get(), &reading, &count, /*bWait=*/TRUE);
        }
        isReading = false;
    }
};

ChildProgram::ChildProgram(const std::filesystem::path& program,
                           const std::vector<std::string>& arguments, std::size_t megabytes)
    : system_(std::make_unique<System>()) {
    Pipe input = makePipe(/*isRead=*/false);
    Pipe output = makePipe(/*isRead=*/true);
    SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    const OwnedHandle nothing(::CreateFileW(L"NUL", GENERIC_WRITE,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    system_->isRead = OwnedHandle(::CreateEventW(nullptr, /*bManualReset=*/TRUE, FALSE, nullptr));
    system_->isSent = OwnedHandle(::CreateEventW(nullptr, /*bManualReset=*/TRUE, FALSE, nullptr));
    system_->job = makeJob(megabytes);
    const InheritedFiles files({input.childs.get(), output.childs.get(), nothing.get()});
    STARTUPINFOEXW startup = files.startup();
    std::wstring line = commandLine(program, arguments);
    PROCESS_INFORMATION started = {};
    // Suspended until it is in its job, so that nothing that it starts can escape.
    if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, /*bInheritHandles=*/TRUE,
                         EXTENDED_STARTUPINFO_PRESENT | CREATE_SUSPENDED | CREATE_NO_WINDOW,
                         nullptr, nullptr, &startup.StartupInfo, &started) == 0) {
        refuse("the reader " + toUtf8(program));
    }
    const OwnedHandle thread(started.hThread);
    system_->process = OwnedHandle(started.hProcess);
    if (::AssignProcessToJobObject(system_->job.get(), started.hProcess) == 0) {
        ::TerminateProcess(started.hProcess, kEnded);
        refuse("the reader " + toUtf8(program));
    }
    system_->input = std::move(input.ours);
    system_->output = std::move(output.ours);
    ::ResumeThread(thread.get());
}

ChildProgram::~ChildProgram() { end(); }

void ChildProgram::send(std::string_view bytes) {
    while (system_->input && !bytes.empty()) {
        OVERLAPPED sending = {};
        sending.hEvent = system_->isSent.get();
        DWORD count = 0;
        if (::WriteFile(system_->input.get(), bytes.data(), static_cast<DWORD>(bytes.size()),
                        nullptr, &sending) == 0 &&
            ::GetLastError() != ERROR_IO_PENDING) {
            return;
        }
        if (::GetOverlappedResult(system_->input.get(), &sending, &count, /*bWait=*/TRUE) == 0) {
            return;
        }
        bytes.remove_prefix(count);
    }
}

bool ChildProgram::receive(std::string& bytes, std::chrono::milliseconds atMost) {
    System& system = *system_;
    if (!system.isReading) {
        system.reading = {};
        system.reading.hEvent = system.isRead.get();
        if (::ReadFile(system.output.get(), system.block.data(),
                       static_cast<DWORD>(system.block.size()), nullptr, &system.reading) == 0 &&
            ::GetLastError() != ERROR_IO_PENDING) {
            system.isOver = true;
            return false;
        }
        system.isReading = true;
    }
    if (::WaitForSingleObject(system.isRead.get(), static_cast<DWORD>(atMost.count())) !=
        WAIT_OBJECT_0) {
        return true;
    }
    system.isReading = false;
    DWORD count = 0;
    if (::GetOverlappedResult(system.output.get(), &system.reading, &count, /*bWait=*/FALSE) == 0) {
        system.isOver = true;
        return false;
    }
    bytes.append(system.block.data(), count);
    return true;
}

std::size_t ChildProgram::megabytes() const {
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof memory;
    return ::GetProcessMemoryInfo(system_->process.get(), &memory, sizeof memory) != 0
               ? memory.WorkingSetSize / kBytesPerMegabyte
               : 0;
}

std::string ChildProgram::end() {
    System& system = *system_;
    if (!system.process) {
        return system.crash;
    }
    // The system closes a program's files before it knows how that has ended.
    constexpr DWORD kMillisecondsToEnd = 500;
    DWORD status = 0;
    ::WaitForSingleObject(system.process.get(), system.isOver ? kMillisecondsToEnd : 0);
    ::TerminateJobObject(system.job.get(), kEnded);
    ::WaitForSingleObject(system.process.get(), INFINITE);
    if (::GetExitCodeProcess(system.process.get(), &status) != 0) {
        system.crash = crashOf(status);
    }
    system.cancelReading();
    for (OwnedHandle* const each : {&system.input, &system.output, &system.process, &system.job}) {
        each->close();
    }
    return system.crash;
}

}  // namespace host
