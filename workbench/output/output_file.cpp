#include "workbench/output/output_file.h"

#include "workbench/cli/exit_code.h"

#include "host/base/utf8_path.h"

#include <fstream>
#include <system_error>

namespace workbench {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& file, const std::string& reason) {
    throw Failure(ExitCode::OutputFailed, "cannot write " + host::toUtf8(file) + ": " + reason);
}

}  // namespace

void writeWhole(const fs::path& file, const std::string& content) {
    std::error_code failure;
    fs::create_directories(fs::absolute(file).parent_path(), failure);
    if (failure) {
        fail(file, failure.message());
    }
    fs::path fresh = file;
    fresh += ".new";
    std::ofstream stream(fresh, std::ios::binary | std::ios::trunc);
    stream << content;
    stream.close();
    if (!stream) {
        fs::remove(fresh, failure);
        fail(file, "the folder is not writable, or the disk is full");
    }
    fs::rename(fresh, file, failure);
    if (failure) {
        const std::string reason = failure.message();
        fs::remove(fresh, failure);
        fail(file, reason);
    }
}

}  // namespace workbench
