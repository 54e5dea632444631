#include "workbench/serve/design_digest.h"

#include <cstddef>
#include <string_view>

namespace workbench::serve {
namespace {

/// FNV-1a.
class Digest {
public:
    void addBytes(const void* bytes, std::size_t count) {
        constexpr std::uint64_t kPrime = 0x100000001b3;
        const auto* const each = static_cast<const unsigned char*>(bytes);
        for (std::size_t i = 0; i < count; ++i) {
            value_ = (value_ ^ each[i]) * kPrime;
        }
    }

    template <class Number>
    void add(Number number) {
        addBytes(&number, sizeof number);
    }

    void addText(std::string_view text) {
        add(text.size());
        addBytes(text.data(), text.size());
    }

    [[nodiscard]] std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xcbf29ce484222325;
};

void addChild(Digest& digest, const host::OccurrenceData& child) {
    digest.add(child.component);
    digest.add(child.instance);
    digest.add(child.absent);
    for (const double cell : child.transform.cells) {
        digest.add(cell);
    }
}

}  // namespace

std::uint64_t digestOf(const host::DesignData& design) {
    Digest digest;
    for (const host::ComponentData& component : design.components) {
        digest.addText(component.name);
        digest.addText(component.material ? component.material->name : "");
        digest.add(component.geometry.get());
        digest.add(component.children.size());
        for (const host::OccurrenceData& child : component.children) {
            addChild(digest, child);
        }
    }
    return digest.value();
}

}  // namespace workbench::serve
