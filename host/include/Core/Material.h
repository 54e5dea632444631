#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

/// A physical material of the design. All components made of it share it.
class Material : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;
};

}  // namespace adsk::core
