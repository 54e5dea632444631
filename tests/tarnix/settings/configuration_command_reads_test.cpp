#include "tarnix/settings/configuration_command.h"
#include "tests/host/ui/host_test.h"
#include "tests/tarnix/platform/scratch_folder.h"
#include "tests/tarnix/settings/fake_module_path.h"

namespace tarnix {
namespace {

class ConfigurationReads : public host::HostTest {
protected:
    ConfigurationReads() { test::modulePath() = folder.windows("Tarnix.dll"); }

    ScratchFolder folder;
};

TEST_F(ConfigurationReads, AreOneForTheAddressAndOneForEachQuestionAboutIt) {
    const int before = test::modulePathQuestions();

    open(buildConfigurationDialog);

    EXPECT_EQ(test::modulePathQuestions() - before, 3);
    EXPECT_TRUE(host::uncaughtExceptions().empty());
}

}  // namespace
}  // namespace tarnix
