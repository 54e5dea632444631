#pragma once

#include "tarnix/settings/settings_document.h"
#include "tests/tarnix/platform/xml_fixture.h"
#include "tests/tarnix/settings/fake_module_path.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarnix {

using platform::comError;
using Items = std::vector<std::string>;

/// Makes these the items of a category in the stored document.
inline void replaceItems(const std::string& categoryName, const Items& items,
                         MissingCategory missing = MissingCategory::Create) {
    replaceCategoryItems(
        categoryName, [&items] { return items; }, missing);
}

/// Tests of the settings of a module that lies in the test's folder. COM is ready, as it
/// is on a host's thread.
class Settings : public testing::Test {
protected:
    Settings() {
        platform::initializeCom();
        test::modulePath() = folder.windows("Tarnix.dll");
    }

    /// Puts a document in place that has these children of its root.
    void writeSettings(std::string_view categories) {
        folder.write(kFile,
                     "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                     "<configuration nameOfApplication=\"Tarnix\">" +
                         std::string(categories) + "</configuration>\r\n");
    }

    /// The root of the stored document with all that it holds.
    [[nodiscard]] std::string stored() const { return platform::rootOf(folder.read(kFile)); }

    static constexpr const char* kFile = "Tarnix_configuration.xml";

    test_support::TemporaryFolder folder;
};

}  // namespace tarnix
