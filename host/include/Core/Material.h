#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

/// A physical material of the design. All components made of it share it.
class Material : public Base {
public:
    static const char* classType();  ///< "adsk::core::Material"

    /// The name as the material library or the file gives it; may be empty.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Changes the name for all components made of it.
    virtual bool name(const std::string& value) = 0;
};

}  // namespace adsk::core
