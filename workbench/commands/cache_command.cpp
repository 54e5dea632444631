#include "workbench/cli/common_options.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/output/display_text.h"

#include "host/base/utf8_path.h"

#include <iostream>

namespace workbench {
namespace {

struct CacheOptions {
    bool clear = false;
};

std::string sizeText(const host::CacheSize& size) {
    constexpr std::uintmax_t kKilobyte = 1000;
    return std::to_string(size.entries) + (size.entries == 1 ? " file, " : " files, ") +
           std::to_string((size.bytes + kKilobyte - 1) / kKilobyte) + " kB";
}

void runCache(const CacheOptions& options) {
    const host::ReadingCache cache = readingCache();
    if (options.clear) {
        std::cout << "Removed " << sizeText(host::clear(cache)) << "\n";
        return;
    }
    constexpr std::uintmax_t kMegabyte = std::uintmax_t{1} << 20U;
    std::cout << "Folder  "
              << (cache.folder.empty() ? "none" : printable(host::toUtf8(cache.folder))) << "\n"
              << "Holds   " << sizeText(host::sizeOf(cache)) << "\n"
              << "Limit   " << cache.limit / kMegabyte << " MB, of one file "
              << host::largestEntry(cache) / kMegabyte << " MB\n";
}

}  // namespace

void addCacheCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "cache", "Show or clear what is kept of STEP files, so that they are read once");
    CacheOptions& options = optionsFor(command, runCache);
    command.add_flag("--clear", options.clear, "Remove everything that is kept");
}

}  // namespace workbench
