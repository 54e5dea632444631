#pragma once

#include "tests/support/addin_test.h"
#include "tests/support/written_texts.h"

#include "host/session/session.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace test_support {

using Texts = std::vector<std::string>;

/// Every host call of what the open BOM dialog does, refused once each: the add-in throws nothing
/// but what it is known to throw, what was written stays written, and neither the design nor the
/// settings get a text that stood in no cell, or half of one.
class DialogRefusal : public testing::Test {
protected:
    using Steps = std::function<void(host::Session&)>;

    /// Opens the dialog on a design with columns of that key and caption, and shows a tab.
    static void show(host::Session& session, const char* outline, const Texts& columns,
                     const char* tab);

    /// Refuses each call of `flow`. What `prepare` leaves of the table, the design and the settings
    /// is noted first.
    std::uint64_t sweep(const char* tableId, const Steps& prepare, const Steps& flow,
                        const Steps& check);

    /// @name What is looked at when a flow has ended
    /// @{
    void expectDesignAsBefore(const host::Session& session) const;
    void expectSettingsAsBefore(const host::Session& session) const;

    /// The cells still hold what they held, but for those of whose ids `leftOut` is a part;
    /// nothing is said of what shows and in which order.
    void expectCellsAsBefore(const host::Session& session, const char* tableId,
                             const std::string& leftOut) const;

    /// The design holds texts of the table, and no others but those that it had.
    void expectNothingStrange(const host::Session& session) const;

    static void expectOneOf(const std::string& text, const Texts& texts);
    /// @}

    /// The value of a text field of the dialog.
    static std::string valueOf(const host::Session& session, const std::string& id);

    static std::string settingsOf(const host::Session& session);

private:
    std::string designBefore_;
    std::string settingsBefore_;
    Texts cellsBefore_;
    std::optional<WrittenTexts> written_;
};

}  // namespace test_support
