#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace step {

/// The texts of products and materials, and the contexts of styles, read from the bytes of a STEP
/// file.
///
/// Open CASCADE turns texts that are no UTF-8 into something else before it shows them, and
/// different names into the same; so the bytes themselves are looked at here. Of contexts it does
/// not read those that name an instance.
class Part21Texts {
public:
    Part21Texts() = default;

    /// Reads the simple instances of PRODUCT, DESCRIPTIVE_REPRESENTATION_ITEM and
    /// CONTEXT_DEPENDENT_OVER_RIDING_STYLED_ITEM.
    explicit Part21Texts(std::string_view file);

    /// The text of a parameter (0 is the first) of the instance `#label`, cleaned, as UTF-8; none
    /// when there is no such instance here. A parameter that is not a string reads as empty.
    [[nodiscard]] std::optional<std::string> text(int label, std::size_t parameter) const;

    /// The labels that the style `#label` names as its contexts, in the order of the file.
    [[nodiscard]] std::vector<int> contextsOf(int label) const;

private:
    std::unordered_map<int, std::vector<std::string>> instances_;
    std::unordered_map<int, std::vector<int>> contexts_;
};

}  // namespace step
