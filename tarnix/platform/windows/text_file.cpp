#include "tarnix/platform/text_file.h"

#include "tarnix/platform/windows/code_page.h"

namespace tarnix::platform {

// The runtime's text mode turns each line end into CR LF.
void TextFile::open(const std::string& path) {
    stream_.clear();
    stream_.open(fromCodePage(path).c_str(), std::ios::out | std::ios::trunc);
}

void TextFile::write(std::string_view text) { stream_ << text; }

void TextFile::close() { stream_.close(); }

}  // namespace tarnix::platform
