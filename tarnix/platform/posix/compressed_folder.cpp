#include "tarnix/platform/compressed_folder.h"

#include "tarnix/platform/posix/archive_work.h"
#include "tarnix/platform/posix/paths.h"

#include <fstream>

namespace tarnix::platform {

bool writeBytes(const std::string& path, std::span<const std::uint8_t> bytes) {
    std::ofstream file(nativePath(path), std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}

struct CompressedFolder::State {
    std::string archive;  ///< as this system spells it
};

CompressedFolder::CompressedFolder(const std::string& archivePath) {
    std::string archive = nativePath(archivePath);
    if (isArchive(archive)) {
        state_ = std::make_unique<State>(State{std::move(archive)});
    }
}

CompressedFolder::~CompressedFolder() = default;

void CompressedFolder::copyHere(const std::string& folder) const {
    fillArchiveBeside(state_->archive, nativePath(folder));
}

}  // namespace tarnix::platform
