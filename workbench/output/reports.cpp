#include "workbench/output/reports.h"

#include "workbench/output/display_text.h"

#include "host/base/utf8_path.h"

#include <iostream>

namespace workbench {

void reportSaved(std::ostream& stream, const std::filesystem::path& file) {
    stream << "Saved: " << printable(host::toUtf8(file)) << "\n";
}

void reportShellRequests(std::ostream& stream, const std::vector<std::string>& targets,
                         bool mayOpen) {
    for (const std::string& target : targets) {
        stream << "The add-in asked to open " << printable(target)
               << (mayOpen ? "\n" : "; use --open to let it\n");
    }
}

void reportMessages(const std::vector<host::Message>& messages, std::size_t since) {
    for (std::size_t i = since; i < messages.size(); ++i) {
        std::cerr << "the add-in says: " << printable(messages[i].text) << "\n";
    }
}

void reportWarnings(const std::vector<host::ReadingWarning>& warnings) {
    for (const host::ReadingWarning& warning : warnings) {
        std::cerr << "warning: " << printable(warning.line()) << "\n";
    }
}

}  // namespace workbench
