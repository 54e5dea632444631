#include "workbench/output/save_target.h"

#include "workbench/cli/exit_code.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"

namespace workbench {
namespace {

namespace fs = std::filesystem;

bool isDesignFile(const fs::path& file) { return file.extension() == ".json"; }

}  // namespace

fs::path saveTarget(const std::string& file, const std::string& named) {
    const fs::path input = host::fromUtf8(file);
    const fs::path target = host::fromUtf8(named);
    if (!target.empty() && !isDesignFile(target)) {
        throw Failure(ExitCode::BadUsage,
                      "--save " + named + ": a design file's name has to end in .json");
    }
    if (!target.empty() || isDesignFile(input)) {
        return target.empty() ? input : target;
    }
    fs::path beside = input;
    beside.replace_extension(host::kDesignFileEnding);
    if (fs::exists(beside)) {
        throw Failure(ExitCode::BadUsage, host::toUtf8(beside) + " is there already; --save " +
                                              host::toUtf8(beside) + " replaces it");
    }
    return beside;
}

}  // namespace workbench
