#pragma once

#include <Core/Base.h>
#include <Core/Enums.h>

#include <string>
#include <vector>

namespace adsk::core {

/// The host's dialog for choosing files.
class FileDialog : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual bool isMultiSelectEnabled() const = 0;
    virtual bool isMultiSelectEnabled(bool value) = 0;

    [[nodiscard]] virtual std::string title() const = 0;
    virtual bool title(const std::string& value) = 0;

    /// The kinds of files offered, such as "Drawings (*.dxf;*.dwg);;All files (*.*)".
    [[nodiscard]] virtual std::string filter() const = 0;
    virtual bool filter(const std::string& value) = 0;

    /// The kind that is offered first; 0 is the first one of `filter`.
    [[nodiscard]] virtual int filterIndex() const = 0;
    virtual bool filterIndex(int value) = 0;

    /// Shows the dialog and waits for the user.
    virtual DialogResults showOpen() = 0;

    /// The chosen files, full paths.
    [[nodiscard]] virtual std::vector<std::string> filenames() const = 0;

    /// The chosen file; the first of several.
    [[nodiscard]] virtual std::string filename() const = 0;
};

/// A bar that shows how far a long operation has come.
class ProgressDialog : public Base {
public:
    static const char* classType();

    /// "Cancel" at first.
    [[nodiscard]] virtual std::string cancelButtonText() const = 0;
    virtual bool cancelButtonText(const std::string& value) = 0;

    /// False at first.
    [[nodiscard]] virtual bool isBackgroundTranslucent() const = 0;
    virtual bool isBackgroundTranslucent(bool value) = 0;

    /// False at first.
    [[nodiscard]] virtual bool isCancelButtonShown() const = 0;
    virtual bool isCancelButtonShown(bool value) = 0;

    /// "%v", "%m" and "%p" in it stand for the value, the maximum and the percentage.
    [[nodiscard]] virtual std::string message() const = 0;
    virtual bool message(const std::string& value) = 0;

    [[nodiscard]] virtual int progressValue() const = 0;
    virtual bool progressValue(int value) = 0;

    [[nodiscard]] virtual bool wasCancelled() const = 0;
    virtual bool hide() = 0;

    /// Shows the bar after `delay` seconds.
    virtual bool show(const std::string& title, const std::string& message, int minimumValue,
                      int maximumValue, int delay = 0) = 0;
};

}  // namespace adsk::core
