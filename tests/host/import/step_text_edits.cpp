#include "tests/host/import/step_text_edits.h"

#include <stdexcept>

namespace drafts {

std::string labelOf(const std::string& text, const std::string& kind, std::size_t which) {
    std::size_t end = text.find("=" + kind + "(");
    for (std::size_t skipped = 0; skipped < which && end != std::string::npos; ++skipped) {
        end = text.find("=" + kind + "(", end + 1);
    }
    if (end == std::string::npos) {
        throw std::out_of_range(kind);
    }
    const std::size_t begin = text.rfind('#', end);
    return text.substr(begin, end - begin);
}

int numberOf(const std::string& label) { return std::stoi(label.substr(1)); }

void damage(std::string& text, const std::string& begin, const std::string& end,
            const std::string& other, std::size_t start) {
    const std::size_t from = text.find(begin, start);
    const std::size_t to = text.find(end, from);
    if (from == std::string::npos || to == std::string::npos) {
        throw std::out_of_range(begin);
    }
    text.replace(from, to + end.size() - from, other);
}

std::string withEntities(std::string text, const std::string& entities) {
    return text.insert(text.rfind("ENDSEC;"), entities);
}

}  // namespace drafts
