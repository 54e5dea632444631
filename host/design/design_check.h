#pragma once

#include "host/design/design_data.h"
#include "host/design/reading_error.h"
#include "host/design/reading_limits.h"

#include <cstddef>

/// What a design has to fulfil before a document is made of it, wherever it comes from.
namespace host {

/// A design that cannot be opened; the text names the place and what would be right.
class DesignError : public ReadingError {
public:
    using ReadingError::ReadingError;
};

/// How many occurrences a design may have, those in context counted one by one.
inline constexpr std::size_t kMaximumOccurrences = 1'000'000;

/// Throws `DesignError` for a design without a root component, with a child that is no component,
/// an assembly that contains itself, more occurrences or levels than allowed, two uses of a
/// component under one number, two attributes of one name, or numbers that measure nothing.
///
/// Its cost grows with the components and their children, not with the occurrences in context.
void checkDesign(const DesignData& data);

/// The occurrences of a design that fulfils `checkDesign`, those in context counted one by one.
std::size_t countOccurrences(const DesignData& data);

/// The depth of the assembly tree: 0 without occurrences.
std::size_t countLevels(const DesignData& data);

}  // namespace host
