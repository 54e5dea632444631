#pragma once

#include "host/ui/inputs/command_input_object.h"

#include <string>

namespace host::ui {

class ImageCommandInputObject final : public CommandInputObject<core::ImageCommandInput> {
public:
    ImageCommandInputObject(const InputOrigin& origin, const std::string& imageFile)
        : CommandInputObject(origin, InputKind::Image), imageFile_(shared(imageFile)) {}

    [[nodiscard]] std::string imageFile() const override {
        return getShared<"imageFile">(imageFile_);
    }
    bool imageFile(const std::string& value) override {
        return setShared<"imageFile">(imageFile_, value);
    }

private:
    const std::string* imageFile_;  ///< of the command's pool
};

}  // namespace host::ui
