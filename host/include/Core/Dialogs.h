#pragma once

#include <Core/Base.h>
#include <Core/Enums.h>

#include <string>
#include <vector>

namespace adsk::core {

/// The host's dialog for choosing files to open or to save. It can be shown any number of times.
class FileDialog : public Base {
public:
    static const char* classType();  ///< "adsk::core::FileDialog"

    /// Whether the user may choose several files, false at first.
    [[nodiscard]] virtual bool isMultiSelectEnabled() const = 0;
    /// Takes effect when the dialog is shown next.
    virtual bool isMultiSelectEnabled(bool value) = 0;

    /// The title of the dialog; the host's own while it is empty.
    [[nodiscard]] virtual std::string title() const = 0;
    /// Takes effect when the dialog is shown next.
    virtual bool title(const std::string& value) = 0;

    /// The file types offered, such as "Drawings (*.dxf;*.dwg);;All files (*.*)".
    [[nodiscard]] virtual std::string filter() const = 0;
    /// Not checked; an empty filter offers all files.
    virtual bool filter(const std::string& value) = 0;

    /// The file type that is offered first; 0 is the first one of `filter`.
    [[nodiscard]] virtual int filterIndex() const = 0;
    /// Not checked against the filter.
    virtual bool filterIndex(int value) = 0;

    /// Shows the dialog and waits for the user: `DialogOK` when files were chosen, `DialogCancel`
    /// otherwise.
    virtual DialogResults showOpen() = 0;

    /// Shows the dialog for a file to write, which need not exist, and waits for the user:
    /// `DialogOK` when one was chosen, `DialogCancel` otherwise. Nothing is written.
    virtual DialogResults showSave() = 0;

    /// The folder that the dialog begins in; empty for the one that was used last.
    [[nodiscard]] virtual std::string initialDirectory() const = 0;
    /// Not checked.
    virtual bool initialDirectory(const std::string& value) = 0;

    /// The name that the dialog begins with; empty at first.
    [[nodiscard]] virtual std::string initialFilename() const = 0;
    /// Not checked.
    virtual bool initialFilename(const std::string& value) = 0;

    /// The full paths of the files chosen last; empty after a cancelled dialog.
    [[nodiscard]] virtual std::vector<std::string> filenames() const = 0;

    /// The full path of the file chosen last, the first of several; empty after a cancelled dialog.
    [[nodiscard]] virtual std::string filename() const = 0;
};

/// The host's dialog for choosing a folder. It can be shown any number of times.
class FolderDialog : public Base {
public:
    static const char* classType();  ///< "adsk::core::FolderDialog"

    /// The title of the dialog; the host's own while it is empty.
    [[nodiscard]] virtual std::string title() const = 0;
    /// Takes effect when the dialog is shown next.
    virtual bool title(const std::string& value) = 0;

    /// The folder that the dialog begins in; empty for the one that was used last.
    [[nodiscard]] virtual std::string initialDirectory() const = 0;
    /// Not checked.
    virtual bool initialDirectory(const std::string& value) = 0;

    /// Shows the dialog and waits for the user: `DialogOK` when a folder was chosen, `DialogCancel`
    /// otherwise.
    virtual DialogResults showDialog() = 0;

    /// The full path of the folder chosen last; empty after a cancelled dialog.
    [[nodiscard]] virtual std::string folder() const = 0;
};

/// A bar that shows the progress of a long operation. It shows from its creation until it is hidden
/// or the last handle to it is gone; the module has to call `adsk::doEvents` for it to respond.
class ProgressDialog : public Base {
public:
    static const char* classType();  ///< "adsk::core::ProgressDialog"

    /// The caption of the cancel button, "Cancel" at first.
    [[nodiscard]] virtual std::string cancelButtonText() const = 0;
    /// Shown at once if the button is.
    virtual bool cancelButtonText(const std::string& value) = 0;

    /// Whether the window shows through, false at first.
    [[nodiscard]] virtual bool isBackgroundTranslucent() const = 0;
    /// Shown at once.
    virtual bool isBackgroundTranslucent(bool value) = 0;

    /// Whether the user can cancel the operation, false at first.
    [[nodiscard]] virtual bool isCancelButtonShown() const = 0;
    /// Shown at once.
    virtual bool isCancelButtonShown(bool value) = 0;

    /// The message as it was set, with its placeholders; empty at first.
    [[nodiscard]] virtual std::string message() const = 0;
    /// "%v", "%m" and "%p" are shown as the value, the maximum and the percentage.
    virtual bool message(const std::string& value) = 0;

    /// The current value, 0 at first.
    [[nodiscard]] virtual int progressValue() const = 0;
    /// Not limited to the range of `show`.
    virtual bool progressValue(int value) = 0;

    /// Whether the user has cancelled the operation, or the host has after waiting too long. The
    /// module has to poll it and stop; it stays true.
    [[nodiscard]] virtual bool wasCancelled() const = 0;

    /// Hides the dialog; `show` shows it again.
    virtual bool hide() = 0;

    /// Shows the dialog after `delay` seconds with a message and a range; the value becomes the
    /// minimum. This host ignores `title` and `delay`.
    virtual bool show(const std::string& title, const std::string& message, int minimumValue,
                      int maximumValue, int delay = 0) = 0;
};

}  // namespace adsk::core
