#include "tarnix/platform/text_file.h"

#include "tarnix/platform/posix/paths.h"

namespace tarnix::platform {

void TextFile::open(const std::string& path, std::ios::openmode mode) {
    stream_.clear();
    stream_.open(nativePath(path), std::ios::out | std::ios::binary | mode);
}

void TextFile::open(const std::string& path) { open(path, std::ios::trunc); }

void TextFile::openToAppend(const std::string& path) { open(path, std::ios::app); }

void TextFile::write(std::string_view text) {
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        stream_ << text.substr(0, end) << "\r\n";
        text.remove_prefix(end + 1);
    }
    stream_ << text;
}

void TextFile::endLine() {
    write("\n");
    stream_.flush();
}

void TextFile::close() { stream_.close(); }

}  // namespace tarnix::platform
