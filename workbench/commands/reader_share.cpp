#include "workbench/commands/reader_share.h"

#include <algorithm>

namespace workbench {

host::ReadingLimits shareOf(const host::ReadingLimits& limits, const ReaderPool& pool) {
    host::ReadingLimits share = limits;
    if (pool.readers > 1) {
        share.threads = std::max<std::size_t>(pool.processors / pool.readers, 1);
        if (pool.memoryMegabytes > 0) {
            constexpr std::size_t kLeast = 16;  // as for --max-memory
            share.megabytes =
                std::min(limits.megabytes, std::max(pool.memoryMegabytes / pool.readers, kLeast));
        }
    }
    return share;
}

}  // namespace workbench
