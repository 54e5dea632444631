#include "host/cloud/file_name.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"

#include <Core/Enums.h>

#include <algorithm>
#include <system_error>

namespace host {
namespace {

bool isRefused(char c) {
    return static_cast<unsigned char>(c) < ' ' ||
           std::string("<>:\"/\\|?*").find(c) != std::string::npos;
}

}  // namespace

bool isFileName(const std::string& name) {
    // Windows drops spaces and dots at the end, and what begins with a dot is hidden.
    return !name.empty() && name.front() != '.' && name.back() != '.' && name.back() != ' ' &&
           std::none_of(name.begin(), name.end(), isRefused);
}

bool renameInFolder(const std::filesystem::path& from, const std::filesystem::path& to,
                    const std::string& operation) {
    const std::string name = toUtf8(to.filename());
    std::error_code error;
    // A change of case alone finds the file itself on some systems.
    if (std::filesystem::exists(to, error) && !std::filesystem::equivalent(from, to, error)) {
        return fail(adsk::core::OperationFailed, operation + ": \"" + name + "\" is in use");
    }
    std::filesystem::rename(from, to, error);
    return !error || fail(adsk::core::OperationFailed, operation + ": " + error.message());
}

}  // namespace host
