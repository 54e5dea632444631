#pragma once

#include "host/base/object.h"

#include <Core/Dialogs.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The file dialogs that a module shows, recorded and answered in place of the user.
namespace host {

/// The full names of the files that the user picks; none where the dialog is closed without any.
using PickedFiles = std::optional<std::vector<std::string>>;

/// What a dialog asks for.
enum class FileDialogKind { Open, Save, Folder };

/// A dialog as it was shown.
struct FileDialogShown {
    std::string title;
    std::string filter;
    int filterIndex = 0;
    bool multiSelect = false;
    PickedFiles picked;
    FileDialogKind kind = FileDialogKind::Open;
    std::string initialDirectory;
    std::string initialFilename;

    bool operator==(const FileDialogShown&) const = default;
};

namespace ui {

/// The file dialogs of one host, a part of its state.
struct FileDialogLog {
    std::vector<FileDialogShown> shown;                      ///< oldest first
    std::deque<PickedFiles> answers;                         ///< of the dialogs to come
    std::function<PickedFiles(const FileDialogShown&)> ask;  ///< where no answer waits
};

/// A dialog is closed without a file where nothing answers it. Several files for a dialog that
/// takes one are a misuse, and the first is picked.

class FileDialogObject final : public Object<core::FileDialog> {
public:
    [[nodiscard]] bool isMultiSelectEnabled() const override {
        return get<"isMultiSelectEnabled">(state_.multiSelect);
    }
    bool isMultiSelectEnabled(bool value) override {
        return set<"isMultiSelectEnabled">(state_.multiSelect, value);
    }
    [[nodiscard]] std::string title() const override { return get<"title">(state_.title); }
    bool title(const std::string& value) override { return set<"title">(state_.title, value); }
    [[nodiscard]] std::string filter() const override { return get<"filter">(state_.filter); }
    bool filter(const std::string& value) override { return set<"filter">(state_.filter, value); }
    [[nodiscard]] int filterIndex() const override {
        return get<"filterIndex">(state_.filterIndex);
    }
    bool filterIndex(int value) override { return set<"filterIndex">(state_.filterIndex, value); }
    core::DialogResults showOpen() override;
    core::DialogResults showSave() override;
    [[nodiscard]] std::string initialDirectory() const override {
        return get<"initialDirectory">(state_.initialDirectory);
    }
    bool initialDirectory(const std::string& value) override {
        return set<"initialDirectory">(state_.initialDirectory, value);
    }
    [[nodiscard]] std::string initialFilename() const override {
        return get<"initialFilename">(state_.initialFilename);
    }
    bool initialFilename(const std::string& value) override {
        return set<"initialFilename">(state_.initialFilename, value);
    }
    [[nodiscard]] std::vector<std::string> filenames() const override;
    [[nodiscard]] std::string filename() const override;

private:
    FileDialogShown state_;
};

class FolderDialogObject final : public Object<core::FolderDialog> {
public:
    FolderDialogObject() { state_.kind = FileDialogKind::Folder; }

    [[nodiscard]] std::string title() const override { return get<"title">(state_.title); }
    bool title(const std::string& value) override { return set<"title">(state_.title, value); }
    [[nodiscard]] std::string initialDirectory() const override {
        return get<"initialDirectory">(state_.initialDirectory);
    }
    bool initialDirectory(const std::string& value) override {
        return set<"initialDirectory">(state_.initialDirectory, value);
    }
    core::DialogResults showDialog() override;
    [[nodiscard]] std::string folder() const override;

private:
    FileDialogShown state_;
};

}  // namespace ui
}  // namespace host
