#pragma once

#include "host/base/object.h"

#include <Core/Dialogs.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The file dialogs that a module shows, kept and answered in place of a person.
namespace host {

/// The full names of the files that a person picks; none where the dialog is closed without.
using PickedFiles = std::optional<std::vector<std::string>>;

/// A dialog as it was shown.
struct FileDialogShown {
    std::string title;
    std::string filter;
    int filterIndex = 0;
    bool multiSelect = false;
    PickedFiles picked;

    bool operator==(const FileDialogShown&) const = default;
};

/// What was shown since the host started, oldest first.
const std::vector<FileDialogShown>& fileDialogs();

/// Answers the next file dialog that nobody answered yet. Several files for a dialog that takes one
/// are listed as a misuse, and the first is picked.
void answerNextFileDialog(PickedFiles files);

/// Asks `ask` for the answer of each dialog that has none waiting; null asks nobody, and the dialog
/// is closed without a file. `ask` runs while the module waits.
void askForFiles(std::function<PickedFiles(const FileDialogShown&)> ask);

namespace ui {

class FileDialogObject final : public Object<core::FileDialog> {
public:
    [[nodiscard]] bool isMultiSelectEnabled() const override {
        return get<"FileDialog::isMultiSelectEnabled">(state_.multiSelect);
    }
    bool isMultiSelectEnabled(bool value) override {
        return set<"FileDialog::isMultiSelectEnabled">(state_.multiSelect, value);
    }
    [[nodiscard]] std::string title() const override {
        return get<"FileDialog::title">(state_.title);
    }
    bool title(const std::string& value) override {
        return set<"FileDialog::title">(state_.title, value);
    }
    [[nodiscard]] std::string filter() const override {
        return get<"FileDialog::filter">(state_.filter);
    }
    bool filter(const std::string& value) override {
        return set<"FileDialog::filter">(state_.filter, value);
    }
    [[nodiscard]] int filterIndex() const override {
        return get<"FileDialog::filterIndex">(state_.filterIndex);
    }
    bool filterIndex(int value) override {
        return set<"FileDialog::filterIndex">(state_.filterIndex, value);
    }
    core::DialogResults showOpen() override;
    [[nodiscard]] std::vector<std::string> filenames() const override;
    [[nodiscard]] std::string filename() const override;

private:
    FileDialogShown state_;
};

/// Forgets dialogs, answers and whom to ask.
void resetFileDialogs();

}  // namespace ui
}  // namespace host
