#include "workbench/output/result_stream.h"

#include "workbench/cli/console.h"
#include "workbench/cli/exit_code.h"
#include "workbench/output/display_text.h"

#include "host/base/utf8_path.h"
#include "host/design/atomic_file.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <system_error>

namespace workbench {
namespace {

// Of the one stream that lives at a time.
std::string outputFailure;
bool goesToFile = false;

}  // namespace

std::size_t resultWidth() {
    return goesToFile || !console::outputIsTerminal() ? static_cast<std::size_t>(-1)
                                                      : console::outputWidth();
}

std::string whyOutputFailed() {
    return outputFailure.empty() ? "cannot write to stdout" : outputFailure;
}

ResultStream::ResultStream() : stdout_(std::cout.rdbuf(this)) {}

ResultStream::~ResultStream() {
    if (!isFinished_ && !file_.empty()) {
        restoreFile();
        file_.clear();
        written_ = 0;
        std::cout.clear();
    }
    std::cout.flush();
    std::cout.rdbuf(stdout_);
}

void ResultStream::writeTo(const std::string& file) {
    if (file == "-") {
        return;
    }
    // A session has a working directory of its own.
    const std::filesystem::path path = std::filesystem::absolute(host::fromUtf8(file));
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored) &&
        !std::filesystem::is_regular_file(path, ignored)) {
        refuse("--output " + file + ": it exists and is not a file");
    }
    file_ = path;
    goesToFile = true;
    std::ifstream stream(path, std::ios::binary);
    if (stream) {
        old_ = std::string{std::istreambuf_iterator<char>(stream), {}};
    }
}

void ResultStream::finish() {
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, whyOutputFailed());
    }
    isFinished_ = true;
}

ResultStream::int_type ResultStream::overflow(int_type character) {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        results_ += traits_type::to_char_type(character);
    }
    return traits_type::not_eof(character);
}

std::streamsize ResultStream::xsputn(const char* text, std::streamsize count) {
    results_.append(text, static_cast<std::size_t>(count));
    return count;
}

int ResultStream::sync() {
    // Any line on stderr flushes this stream too.
    if (results_.size() == written_) {
        return file_.empty() ? stdout_->pubsync() : 0;
    }
    return pass() ? 0 : -1;
}

bool ResultStream::writeFile(const std::string& content) {
    try {
        std::filesystem::create_directories(file_.parent_path());
        host::writeFileAtomically(file_, content);
        return true;
    } catch (const std::system_error& error) {
        outputFailure = "cannot write " + host::toUtf8(file_) + ": " + error.code().message();
        return false;
    }
}

void ResultStream::restoreFile() {
    std::error_code ignored;
    if (written_ > 0 && old_) {
        static_cast<void>(writeFile(*old_));
    } else if (written_ > 0) {
        std::filesystem::remove(file_, ignored);
    }
}

bool ResultStream::pass() {
    if (!file_.empty()) {
        const bool isWritten = writeFile(results_);
        written_ = isWritten ? results_.size() : written_;
        return isWritten;
    }
    const std::string text = console::outputIsTerminal() ? printableLines(results_) : results_;
    results_.clear();
    const auto size = static_cast<std::streamsize>(text.size());
    return stdout_->sputn(text.data(), size) == size && stdout_->pubsync() == 0;
}

}  // namespace workbench
