#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include "tests/support/files.h"

#include "host/base/utf8_path.h"
#include "host/session/environment.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace test_support {
namespace {

const host::environment::Text kDisplay = fs::path("DISPLAY").native();

}  // namespace

HelpdeskTest::HelpdeskTest() : display_(host::environment::variable(kDisplay)) {
    host::environment::setVariable(kDisplay, std::nullopt);
}

HelpdeskTest::~HelpdeskTest() { host::environment::setVariable(kDisplay, display_); }

fs::path HelpdeskTest::supportFolder() const { return session->folder() / "temp" / "Helpdesk"; }

std::string HelpdeskTest::supportFolderText() const {
    std::string text = supportFolder().string() + "\\";
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

void HelpdeskTest::put(const std::string& name, const std::string& content) const {
    writeFile(supportFolder() / name, content);
}

bool HelpdeskTest::has(const std::string& name) const { return fs::exists(supportFolder() / name); }

std::string HelpdeskTest::contentOf(const std::string& name) const {
    return readFile(supportFolder() / name);
}

std::string HelpdeskTest::shownMessages() const {
    std::string lines;
    for (const host::Message& message : session->messages()) {
        lines += message.title + " (" + std::to_string(message.icon) + "): " + message.text + "\n";
    }
    return lines;
}

std::string treeOf(const fs::path& folder, const fs::path& except) {
    std::vector<std::string> lines;
    for (fs::recursive_directory_iterator entry(folder), end; entry != end; ++entry) {
        if (entry->path() == except) {
            entry.disable_recursion_pending();
            continue;
        }
        const auto rights = static_cast<unsigned>(entry->status().permissions());
        lines.push_back(host::toUtf8(entry->path()) + " " + std::to_string(rights) + " " +
                        (entry->is_regular_file() ? readFile(entry->path()) : ""));
    }
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

}  // namespace test_support
