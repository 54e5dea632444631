#include "tests/tarnix/platform/shell_fixture.h"

#include "tarnix/platform/windows/shell_request.h"
#include "tests/support/temporary_folder.h"

#include <windows.h>

#include <algorithm>
#include <string>

namespace tarnix::platform {
namespace {

using WindowsShell = Shell;

TEST_F(WindowsShell, FailsForAFileThatIsNotThere) {
    const test_support::TemporaryFolder folder;
    EXPECT_FALSE(openWithShell(folder.windows("missing.xlsm")));
}

TEST_F(WindowsShell, FailsForAStringThatIsNotAnAddress) {
    EXPECT_FALSE(openWithShell("no address at all", ShellTarget::Address));
}

TEST_F(WindowsShell, CharactersOfTheCommandLineMeanNothingInAnAddress) {
    EXPECT_TRUE(openWithShell("http://a.example/$(touch)`false`;ab'd'*&|>z", ShellTarget::Address));
    // The browser of Wine escapes what an address cannot hold.
    const std::string address = opened();
    EXPECT_EQ(address.rfind("http://a.example/$(touch)", 0), 0U) << address;
    EXPECT_TRUE(address.ends_with("z\n")) << address;
    EXPECT_EQ(std::count(address.begin(), address.end(), '\n'), 1) << address;
}

/// A thread whose language is Czech (code page 1250) for a while.
class CzechThread : public testing::Test {
protected:
    CzechThread() { ::SetThreadLocale(MAKELCID(MAKELANGID(LANG_CZECH, SUBLANG_DEFAULT), 0)); }
    ~CzechThread() override { ::SetThreadLocale(before_); }

    /// A letter that is U+010D in the code page 1250, and another one in that of the system.
    const std::string text = "caf\xE8";

private:
    LCID before_ = ::GetThreadLocale();
};

TEST_F(CzechThread, SendsAnAddressInItsCodePageWithTheVerbOpen) {
    const ShellRequest request = shellRequest(text, ShellTarget::Address);
    EXPECT_EQ(request.text, L"caf\u010D");
    EXPECT_EQ(std::wstring(request.verb), L"open");
}

TEST_F(CzechThread, SendsAFolderInItsCodePageWithoutAVerb) {
    const ShellRequest request = shellRequest(text, ShellTarget::Folder);
    EXPECT_EQ(request.text, L"caf\u010D");
    EXPECT_EQ(request.verb, nullptr);
}

TEST_F(CzechThread, SendsAFileInTheCodePageOfTheSystemWithTheVerbOpen) {
    if (::GetACP() != 1252) {
        GTEST_SKIP() << "the code page of this system is another one";
    }
    const ShellRequest request = shellRequest(text, ShellTarget::File);
    EXPECT_EQ(request.text, L"caf\u00E8");
    EXPECT_EQ(std::wstring(request.verb), L"open");
}

}  // namespace
}  // namespace tarnix::platform
