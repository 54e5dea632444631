#include "tarnix/platform/text_file.h"

#include "tarnix/platform/windows/code_page.h"

namespace tarnix::platform {

// The runtime's text mode turns each line end into CR LF.
void TextFile::open(const std::string& path, std::ios::openmode mode) {
    stream_.clear();
    stream_.open(fromCodePage(path).c_str(), std::ios::out | mode);
}

void TextFile::open(const std::string& path) { open(path, std::ios::trunc); }

void TextFile::openToAppend(const std::string& path) { open(path, std::ios::app); }

void TextFile::write(std::string_view text) { stream_ << text; }

void TextFile::endLine() {
    write("\n");
    stream_.flush();
}

void TextFile::close() { stream_.close(); }

}  // namespace tarnix::platform
