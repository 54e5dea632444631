#include "host/import/reader_program.h"

#include "host/import/step_import.h"

#include <dlfcn.h>

#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "step-reader";

fs::path folderOfLibrary() {
    Dl_info info = {};
    static const char inLibrary = 0;
    if (::dladdr(&inLibrary, &info) == 0 || info.dli_fname == nullptr) {
        return {};
    }
    return fs::absolute(info.dli_fname).parent_path();
}

fs::path folderOfProgram() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

}  // namespace

fs::path findStepReader() {
    std::error_code ignored;
    for (const fs::path& folder : {folderOfLibrary(), folderOfProgram()}) {
        if (fs::is_regular_file(folder / kName, ignored)) {
            return folder / kName;
        }
    }
    throw ImportError(std::string("the program ") + kName + " is missing; it belongs beside " +
                      folderOfLibrary().string());
}

}  // namespace host
