#include "tarnix/settings/configuration_command.h"
#include "tests/host/ui/host_test.h"
#include "tests/support/temporary_folder.h"
#include "tests/tarnix/settings/fake_module_path.h"

namespace tarnix {
namespace {

class ConfigurationReads : public host::HostTest {
protected:
    ConfigurationReads() { test::modulePath() = folder.windows("Tarnix.dll"); }

    test_support::TemporaryFolder folder;
};

TEST_F(ConfigurationReads, AreOneForTheAddressAndOneForEachQuestionAboutIt) {
    const int before = test::modulePathQuestions();

    open(buildConfigurationDialog);

    EXPECT_EQ(test::modulePathQuestions() - before, 3);
    EXPECT_TRUE(host::uncaughtExceptions().empty());
}

}  // namespace
}  // namespace tarnix
