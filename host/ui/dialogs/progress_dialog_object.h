#pragma once

#include "host/base/clock.h"
#include "host/base/object.h"
#include "host/ui/host_setup.h"

#include <Core/Dialogs.h>

#include <string>
#include <vector>

/// The progress dialogs that a module has.
namespace host {

/// A dialog as the user would read it.
struct Progress {
    std::string text;  ///< with the numbers in the places of "%v", "%m" and "%p"
    int value = 0;
    std::string cancelButton;  ///< empty where it has none
    bool cancelled = false;
    bool translucent = false;  ///< what is below it shines through

    bool operator==(const Progress&) const = default;
};

namespace ui {

class ProgressDialogObject;

/// The progress dialogs of one host, a part of its state.
struct ProgressDialogs {
    std::vector<ProgressDialogObject*> held;       ///< those that a module holds, the newest last
    double longestWait = HostSetup().longestWait;  ///< in seconds
};

/// The newest progress dialog that a module holds and has not hidden; null without one.
ProgressDialogObject* newestProgressDialog();

/// Cancels the dialogs that have waited too long, whether or not they have a button for it.
void endLongWaits();

class ProgressDialogObject final : public Object<core::ProgressDialog> {
public:
    ProgressDialogObject();
    ProgressDialogObject(const ProgressDialogObject&) = delete;
    ProgressDialogObject& operator=(const ProgressDialogObject&) = delete;
    ~ProgressDialogObject() override;

    [[nodiscard]] std::string cancelButtonText() const override {
        return get<"cancelButtonText">(cancelButtonText_);
    }
    bool cancelButtonText(const std::string& value) override {
        return set<"cancelButtonText">(cancelButtonText_, value);
    }
    [[nodiscard]] bool isBackgroundTranslucent() const override {
        return get<"isBackgroundTranslucent">(translucent_);
    }
    bool isBackgroundTranslucent(bool value) override {
        return set<"isBackgroundTranslucent">(translucent_, value);
    }
    [[nodiscard]] bool isCancelButtonShown() const override {
        return get<"isCancelButtonShown">(cancelButtonShown_);
    }
    bool isCancelButtonShown(bool value) override {
        return set<"isCancelButtonShown">(cancelButtonShown_, value);
    }
    [[nodiscard]] std::string message() const override { return get<"message">(message_); }
    bool message(const std::string& value) override { return set<"message">(message_, value); }
    [[nodiscard]] int progressValue() const override { return get<"progressValue">(value_); }
    bool progressValue(int value) override { return set<"progressValue">(value_, value); }
    [[nodiscard]] bool wasCancelled() const override { return get<"wasCancelled">(cancelled_); }
    bool hide() override;
    bool show(const std::string& title, const std::string& message, int minimumValue,
              int maximumValue, int delay) override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] Progress seen() const;
    [[nodiscard]] bool isHidden() const { return hidden_; }
    [[nodiscard]] bool hasCancelButton() const { return cancelButtonShown_; }
    [[nodiscard]] double madeAt() const { return madeAt_; }
    void cancel() { cancelled_ = true; }
    /// @}

private:
    std::string cancelButtonText_ = "Cancel";
    bool translucent_ = false;
    bool cancelButtonShown_ = false;
    std::string message_;
    int value_ = 0;
    int minimum_ = 0;
    int maximum_ = 100;
    double madeAt_ = clock::now();
    bool cancelled_ = false;
    bool hidden_ = false;
};

}  // namespace ui
}  // namespace host
