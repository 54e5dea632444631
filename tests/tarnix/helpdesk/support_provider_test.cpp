#include "tests/support/case_name.h"
#include "tests/support/files.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace test_support {
namespace {

using namespace adsk::core;

const std::string kRefused = "Support provider (0): The URL you entered can not be opened\n";

class SupportProvider : public HelpdeskTest {
protected:
    /// Makes this the address of the support provider.
    void choose(const std::string& address) {
        configure({});
        std::string document = readFile(settingsFile());
        const std::size_t begin = document.find("<www>") + 5;
        document.replace(begin, document.find("</www>") - begin, address);
        writeFile(settingsFile(), document);
    }

    void restartWithShell(host::shell_requests::Policy policy) {
        host::SessionOptions with = addinOptions();
        with.shell = policy;
        restart(with);
        ASSERT_TRUE(run());
    }

    [[nodiscard]] const std::vector<std::string>& opened() const {
        return session->openedByShell();
    }
};

TEST_F(SupportProvider, IsTheDefaultOneAtFirst) {
    press("openHelpdesk");
    EXPECT_EQ(opened(), std::vector<std::string>{"http://helpdesk.tarnix.example/"});
    EXPECT_EQ(host::shell_requests::recordedKinds(),
              std::vector<StandInTarget>{StandInTarget::Address});
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportProvider, IsTheOneOfTheSettings) {
    choose("http://other.example/a?b=c");
    press("openHelpdesk");
    EXPECT_EQ(opened(), std::vector<std::string>{"http://other.example/a?b=c"});
}

using Policy = host::shell_requests::Policy;

/// An address that is not opened: the one that is asked for, and what answers.
struct Unopened {
    const char* name;
    Policy policy;
    const char* address;
};

class UnopenedSupportProvider : public SupportProvider,
                                public testing::WithParamInterface<Unopened> {};

TEST_P(UnopenedSupportProvider, IsReported) {
    restartWithShell(GetParam().policy);
    choose(GetParam().address);
    press("openHelpdesk");
    EXPECT_EQ(opened(), std::vector<std::string>{GetParam().address});
    EXPECT_EQ(shownMessages(), kRefused);
    EXPECT_EQ(uncaughtExceptions(), "");
}

INSTANTIATE_TEST_SUITE_P(Each, UnopenedSupportProvider,
                         testing::Values(Unopened{.name = "ThatTheSessionRefuses",
                                                  .policy = Policy::RecordFail,
                                                  .address = "http://helpdesk.tarnix.example/"},
                                         Unopened{.name = "WithAnEmptyAddressThatTheSessionRefuses",
                                                  .policy = Policy::RecordFail,
                                                  .address = ""},
                                         Unopened{.name = "WithAnEmptyAddressThatTheSystemRefuses",
                                                  .policy = Policy::RecordOpen,
                                                  .address = ""},
                                         Unopened{.name = "WithAnAddressThatTheSystemCannotOpen",
                                                  .policy = Policy::RecordOpen,
                                                  .address = "unheard-of://a.example/"}),
                         caseName);

TEST_F(SupportProvider, IsAskedForWithTheAddressUnchanged) {
    choose("http://other.example/$(touch x)`touch y`;\"z\" %20'|&gt;");
    press("openHelpdesk");
    EXPECT_EQ(opened(),
              std::vector<std::string>{"http://other.example/$(touch x)`touch y`;\"z\" %20'|>"});
}

TEST_F(SupportProvider, IsNotOpenedInAWorkspaceWithoutTheConfigurationControl) {
    session->activateWorkspace("FusionRenderEnvironment");
    press("openHelpdesk");
    EXPECT_TRUE(opened().empty());
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportProvider, IsNotOpenedWithoutAWorkspace) {
    host::gate::reset();
    // The first question is that of the hook on starting commands.
    host::gate::refuse("UserInterface::activeWorkspace", 2);
    press("openHelpdesk");
    EXPECT_TRUE(opened().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

class UserGuide : public HelpdeskTest {
protected:
    /// A file beside the module, in the module's terms.
    [[nodiscard]] std::string besideModule(const std::string& name) const {
        std::string text = (moduleFolder() / name).string();
        std::replace(text.begin(), text.end(), '/', '\\');
        return text;
    }

    static void speak(int language) {
        Application::get()->preferences()->generalPreferences()->userLanguage(
            static_cast<UserLanguages>(language));
    }
};

TEST_F(UserGuide, IsTheEnglishOneInEnglish) {
    press("openHelp");
    EXPECT_EQ(session->openedByShell(),
              std::vector<std::string>{besideModule("Tarnix_UsersGuide.pdf")});
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserGuide, IsTheCzechOneInCzech) {
    speak(2);
    press("openHelp");
    EXPECT_EQ(session->openedByShell(),
              std::vector<std::string>{besideModule("Tarnix_UzivatelskaPrirucka.pdf")});
}

TEST_F(UserGuide, IsTheEnglishOneInTheLanguagesBesideCzech) {
    speak(1);
    press("openHelp");
    speak(3);
    press("openHelp");
    EXPECT_EQ(session->openedByShell(),
              (std::vector<std::string>{besideModule("Tarnix_UsersGuide.pdf"),
                                        besideModule("Tarnix_UsersGuide.pdf")}));
}

TEST_F(UserGuide, ThatCannotBeOpenedIsNotReported) {
    host::SessionOptions with = addinOptions();
    with.shell = host::shell_requests::Policy::RecordFail;
    restart(with);
    ASSERT_TRUE(run());
    press("openHelp");
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

class UserGuideWithout : public UserGuide, public testing::WithParamInterface<const char*> {};

TEST_P(UserGuideWithout, ThrowsAPlainExceptionAndOpensNothing) {
    host::gate::reset();
    host::gate::refuse(GetParam(), 1);
    press("openHelp");
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_TRUE(session->openedByShell().empty());
}

INSTANTIATE_TEST_SUITE_P(EachCall, UserGuideWithout,
                         testing::Values("Application::preferences",
                                         "Preferences::generalPreferences"));

/// The add-in below a folder with a module's ending in its name.
class UserGuideBelowAnotherEnding : public UserGuide {
protected:
    [[nodiscard]] host::SessionOptions options() const override {
        host::SessionOptions below = addinOptions();
        below.scratchRoot /= "old.dll.d";
        return below;
    }
};

TEST_F(UserGuideBelowAnotherEnding, HasTheSuffixInThePlaceOfTheFirstOne) {
    press("openHelp");
    ASSERT_EQ(session->openedByShell().size(), 1U);
    const std::string module = besideModule("Tarnix.dll");
    const std::string parent = module.substr(0, module.find("\\old.dll.d\\"));
    const std::string rest = module.substr(parent.size() + std::string("\\old.dll").size());
    EXPECT_EQ(session->openedByShell().front(), parent + "\\old_UsersGuide.pdf" + rest);
    EXPECT_TRUE(rest.ends_with("\\Tarnix.dll")) << rest;
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
