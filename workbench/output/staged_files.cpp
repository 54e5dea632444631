#include "workbench/output/staged_files.h"

#include "workbench/cli/exit_code.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <system_error>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& file, const std::string& reason) {
    throw Failure(ExitCode::OutputFailed, "cannot write " + host::toUtf8(file) + ": " + reason);
}

}  // namespace

Fingerprint fingerprintOf(const fs::path& file) {
    std::error_code ignored;
    if (!fs::is_regular_file(file, ignored)) {
        return std::nullopt;
    }
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    return std::hash<std::string>()(content);
}

StagedFiles::~StagedFiles() {
    files_.clear();
    std::error_code ignored;
    for (auto folder = madeFolders_.rbegin(); folder != madeFolders_.rend(); ++folder) {
        fs::remove(*folder, ignored);
    }
}

void StagedFiles::makeFolderOf(const fs::path& file) {
    std::vector<fs::path> missing;
    std::error_code failure;
    for (fs::path folder = fs::absolute(file).parent_path(); !fs::exists(folder, failure);
         folder = folder.parent_path()) {
        missing.push_back(folder);
    }
    for (auto folder = missing.rbegin(); folder != missing.rend(); ++folder) {
        if (fs::create_directory(*folder, failure)) {
            madeFolders_.push_back(*folder);
        }
    }
    if (failure) {
        fail(file, failure.message());
    }
}

void StagedFiles::add(const fs::path& file, std::string_view content) {
    makeFolderOf(file);
    try {
        files_.push_back({file, host::AtomicFile(file, content), std::nullopt});
    } catch (const std::system_error& error) {
        fail(file, error.code().message());
    }
}

void StagedFiles::addDesign(const fs::path& file, const host::DesignData& design,
                            const Fingerprint& before) {
    makeFolderOf(file);
    try {
        files_.push_back({file, host::stageDesignFile(file, design), before});
    } catch (const host::DesignError& error) {
        throw Failure(ExitCode::OutputFailed, error.what());
    }
}

void StagedFiles::check() {
    for (const File& file : files_) {
        if (!file.before) {
            continue;
        }
        locks_.push_back(host::FolderLock::waitToWrite(fs::absolute(file.path).parent_path()));
        if (fingerprintOf(file.path) != *file.before) {
            locks_.clear();
            fail(file.path,
                 "another program changed it after it was read; nothing was saved, run again");
        }
    }
}

void StagedFiles::commit() {
    if (locks_.empty()) {
        check();
    }
    for (File& file : files_) {
        try {
            file.content.commit();
        } catch (const std::system_error& error) {
            fail(file.path, error.code().message());
        }
    }
    files_.clear();
    locks_.clear();
    madeFolders_.clear();
}

}  // namespace workbench
