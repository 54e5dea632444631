#pragma once

#include <cstddef>
#include <string>

/// Changes to the text of a STEP file that the samples' generator wrote.
namespace drafts {

/// The reference of the `which`-th entity of this kind, counted from 0.
std::string labelOf(const std::string& text, const std::string& kind, std::size_t which = 0);

/// The number in such a reference.
int numberOf(const std::string& label);

/// Puts something else in the place of what first begins, from `start` on, and then ends like this.
void damage(std::string& text, const std::string& begin, const std::string& end,
            const std::string& other, std::size_t start = 0);

/// The text with more entities in its data section.
std::string withEntities(std::string text, const std::string& entities);

}  // namespace drafts
