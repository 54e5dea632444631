#pragma once

#include "host/base/api_names.h"

#include <Core/Base.h>

#include <cstdint>

namespace host::ui {

/// What the user interface asks of the model that the application shows.
///
/// The application implements it, so that the user interface need not know documents.
class ActiveModel {
public:
    /// Whether this is the root component of the active document's design.
    [[nodiscard]] virtual bool isRootComponent(const core::Ptr<core::Base>& entity) const = 0;

    /// How often the active document's model was changed.
    [[nodiscard]] virtual std::uint64_t editsOfModel() const = 0;

protected:
    ~ActiveModel() = default;
};

}  // namespace host::ui
