#include "tests/support/allocations.h"
#include "tests/tarnix/settings/settings_fixture.h"

#include <exception>
#include <functional>
#include <set>

namespace tarnix {
namespace {

/// Settings that are written while something fails.
class FailingWrite : public Settings {
protected:
    static constexpr const char* kCategories =
        "<category name=\"httpHelpdesk\"><www>http://old.example/</www></category>"
        "<category name=\"iProperty\"><i id=\"a\"><d>1</d></i></category>"
        "<category name=\"bomItems\"><i id=\"b\"><d>2</d></i></category>";

    /// Writes again and again, each time from the same settings, with the first, the second, ...
    /// allocation failing until none is left to fail. What was in the file after a write that
    /// threw, each content once.
    std::set<std::string> leftByFailures(const std::function<void()>& write) {
        std::set<std::string> contents;
        for (long nth = 1; nth < 100000; ++nth) {
            writeSettings(kCategories);
            bool hasRaised = false;
            bool hasFailed = false;
            {
                const test_support::FailingAllocation failing(nth);
                try {
                    write();
                } catch (const std::exception&) {
                    hasRaised = true;
                } catch (const _com_error&) {
                    hasRaised = true;
                }
                hasFailed = failing.hasFailed();
            }
            if (!hasFailed) {
                failures = nth - 1;
                return contents;
            }
            if (hasRaised) {
                contents.insert(stored());
            }
        }
        return {"no end"};
    }

    /// The root with all that it held before.
    static std::set<std::string> unchanged() {
        return {std::string("<configuration nameOfApplication=\"Tarnix\">") + kCategories +
                "</configuration>"};
    }

    long failures = 0;
};

TEST_F(FailingWrite, OfTheHelpdeskUrlLeavesTheFileAsItWas) {
    EXPECT_EQ(leftByFailures([] { writeHelpdeskUrl("http://new.example/a/longer/address"); }),
              unchanged());
    EXPECT_GT(failures, 10);
}

TEST_F(FailingWrite, OfTheCustomPropertiesLeavesTheFileAsItWas) {
    EXPECT_EQ(leftByFailures([] {
                  replaceItems("iProperty", {"QEMA_Colour;Colour", "QEMA_Size;Size"},
                               MissingCategory::LeaveOut);
              }),
              unchanged());
    EXPECT_GT(failures, 10);
}

TEST_F(FailingWrite, OfTheColumnsLeavesTheFileAsItWas) {
    EXPECT_EQ(leftByFailures([] { replaceItems("bomItems", {"QEMA_Mass;Weight"}); }), unchanged());
    EXPECT_GT(failures, 10);
}

TEST_F(FailingWrite, OfTheHelpdeskUrlThrowsAfterACategoryWithoutAnElement) {
    writeSettings(
        "<category name=\"httpHelpdesk\"><www>http://old.example/</www></category>"
        "<category name=\"httpHelpdesk\"/>");
    const std::string before = folder.read(kFile);
    EXPECT_EQ(comError([] { writeHelpdeskUrl("http://new.example/"); }), E_POINTER);
    EXPECT_EQ(folder.read(kFile), before);
}

TEST_F(FailingWrite, OfTheHelpdeskUrlThrowsForACategoryWithoutAnAttribute) {
    writeSettings(
        "<category name=\"httpHelpdesk\"><www>http://old.example/</www></category><category/>");
    const std::string before = folder.read(kFile);
    EXPECT_EQ(comError([] { writeHelpdeskUrl("http://new.example/"); }), E_POINTER);
    EXPECT_EQ(folder.read(kFile), before);
}

}  // namespace
}  // namespace tarnix
