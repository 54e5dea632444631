#include "host/import/readable_file.h"

#include "host/base/utf8_path.h"
#include "host/import/private_copy.h"
#include "host/import/step_import.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBlock = std::size_t{1} << 20;

[[noreturn]] void refuseRead(const std::string& shown, const std::string& reason,
                             std::optional<ReadingLimit> limit = {}) {
    throw ImportError(shown + ": " + reason, limit);
}

// A STEP or design file takes a multiple of its size in memory.
std::uintmax_t bytesAllowed(const ReadingLimits& limits) {
    constexpr std::uintmax_t kMegabyte = std::uintmax_t{1} << 20;
    constexpr std::uintmax_t kAtLeast = 4;
    return limits.megabytes * kMegabyte / kAtLeast;
}

/// A descriptor that is closed unless it is the standard input.
class Input {
public:
    explicit Input(int descriptor) : descriptor_(descriptor) {}
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;
    ~Input() {
        if (descriptor_ > STDIN_FILENO) {
            ::close(descriptor_);
        }
    }

    [[nodiscard]] int get() const { return descriptor_; }

private:
    int descriptor_;
};

/// The time in which all of a pipe has to come.
class Deadline {
public:
    explicit Deadline(double seconds) : end_(Clock::now() + Seconds(seconds)) {}

    [[nodiscard]] int millisecondsLeft() const {
        using Milliseconds = std::chrono::duration<double, std::milli>;
        const double left = std::ceil(Milliseconds(end_ - Clock::now()).count());
        return static_cast<int>(
            std::clamp(left, 0.0, static_cast<double>(std::numeric_limits<int>::max())));
    }

private:
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;

    std::chrono::time_point<Clock, Seconds> end_;
};

void waitForInput(int input, const std::string& shown, const Deadline& deadline) {
    pollfd waiting = {input, POLLIN, 0};
    int ready = -1;
    do {
        ready = ::poll(&waiting, 1, deadline.millisecondsLeft());
    } while (ready < 0 && errno == EINTR);
    if (ready == 0) {
        refuseRead(
            shown,
            "did not end within the time that reading may take; write a whole file to it, or "
            "increase the limit",
            ReadingLimit::Seconds);
    }
}

void copyStream(int input, PrivateCopy& copy, const std::string& shown, double seconds) {
    const std::unique_ptr<char[]> block(new char[kBlock]);
    const Deadline deadline(seconds);
    for (;;) {
        waitForInput(input, shown, deadline);
        const ssize_t count = ::read(input, block.get(), kBlock);
        if (count == 0) {
            break;
        }
        if (count > 0) {
            copy.append(block.get(), static_cast<std::size_t>(count));
        } else if (errno != EINTR && errno != EAGAIN) {
            refuseRead(shown, "cannot be read (" + std::generic_category().message(errno) + ")");
        }
    }
    copy.finish();
}

ReadableFile copyOfStream(int input, const std::string& name, const std::string& shown,
                          const ReadingLimits& limits) {
    if (::isatty(input) != 0) {
        refuseRead(shown, "is a terminal; redirect a file or a pipe to it");
    }
    auto copy = std::make_shared<PrivateCopy>(name, shown, bytesAllowed(limits));
    copyStream(input, *copy, shown, limits.seconds);
    std::error_code ignored;
    return {.path = copy->path(),
            .shown = shown,
            .again = {},
            .folder = fs::current_path(ignored),
            .copy = copy};
}

/// Opened without waiting for a writer: waiting is bounded once it is open.
ReadableFile copyOfPipe(const fs::path& file, const ReadingLimits& limits) {
    const Input input(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (input.get() < 0) {
        refuseRead(toUtf8(file), "cannot be read (" + std::generic_category().message(errno) + ")");
    }
    return copyOfStream(input.get(), toUtf8(file.filename()), toUtf8(file), limits);
}

bool beginsWith(const fs::path& file, std::string_view mark) {
    std::array<char, 4> start = {};
    std::ifstream stream(file, std::ios::binary);
    stream.read(start.data(), static_cast<std::streamsize>(mark.size()));
    return stream && std::string_view(start.data(), mark.size()) == mark;
}

using GzipFile = std::unique_ptr<gzFile_s, decltype(&::gzclose)>;

void unpack(const fs::path& packed, PrivateCopy& copy, const std::string& shown) {
    const GzipFile file(::gzopen(packed.c_str(), "rb"), &::gzclose);
    const std::unique_ptr<char[]> block(new char[kBlock]);
    int count = -1;
    while (file && (count = ::gzread(file.get(), block.get(), kBlock)) > 0) {
        copy.append(block.get(), static_cast<std::size_t>(count));
    }
    int error = Z_OK;
    if (file) {
        ::gzerror(file.get(), &error);
    }
    if (count < 0 || error != Z_OK) {
        refuseRead(shown, "cannot be unpacked: the archive is cut off or damaged; pack it again");
    }
    copy.finish();
}

/// "Part.step" for "Part.step.gz", "Part.stp" for "Part.stpz".
fs::path unpackedName(const fs::path& file) {
    const std::string ending = file.extension().string();
    if (ending == ".gz" || ending == ".GZ") {
        return file.stem();
    }
    return ending.empty() ? file.filename() : fs::path(file.stem()) += ".stp";
}

ReadableFile unpacked(const ReadableFile& packed, const ReadingLimits& limits) {
    auto copy = std::make_shared<PrivateCopy>(toUtf8(unpackedName(packed.path.filename())),
                                              packed.shown, bytesAllowed(limits));
    unpack(packed.path, *copy, packed.shown);
    return {.path = copy->path(),
            .shown = packed.shown,
            .again = packed.again,
            .folder = packed.folder,
            .copy = copy};
}

ReadableFile ordinary(const fs::path& file) {
    std::error_code error;
    const fs::path absolute = fs::canonical(file, error);
    return {.path = file,
            .shown = toUtf8(file),
            .again = error ? file : absolute,
            .folder = (error ? file : absolute).parent_path(),
            .copy = nullptr};
}

ReadableFile byKind(const fs::path& file, const ReadingLimits& limits) {
    if (file == "-") {
        return copyOfStream(STDIN_FILENO, "standard input", "standard input", limits);
    }
    std::error_code error;
    const fs::file_type kind = fs::status(file, error).type();
    if (kind == fs::file_type::fifo) {
        return copyOfPipe(file, limits);
    }
    if (kind == fs::file_type::character || kind == fs::file_type::block ||
        kind == fs::file_type::socket) {
        refuseRead(toUtf8(file), "is no ordinary file; the path of a STEP file is needed");
    }
    // What is missing, or may not be read, is reported by what opens it.
    return ordinary(file);
}

}  // namespace

ReadableFile makeReadable(const fs::path& file, const ReadingLimits& limits) {
    ReadableFile readable = byKind(file, limits);
    std::error_code ignored;
    if (!fs::is_regular_file(readable.path, ignored)) {
        return readable;
    }
    if (beginsWith(readable.path, "PK\x03\x04")) {
        refuseRead(readable.shown, "is a ZIP archive; unpack it, and open the file that was in it");
    }
    return beginsWith(readable.path, "\x1F\x8B") ? unpacked(readable, limits) : readable;
}

}  // namespace host
