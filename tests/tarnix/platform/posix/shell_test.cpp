#include "tests/tarnix/platform/shell_fixture.h"

#include "tests/support/temporary_folder.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>

namespace tarnix::platform {
namespace {

class PosixShell : public Shell {
protected:
    ~PosixShell() override { ::setenv("PATH", path.c_str(), 1); }

    /// Puts a script in the place of the recorder.
    void replaceOpener(const std::string& script) {
        writeProgram("xdg-open", script);
        ::setenv("PATH", (folder.path().string() + ":" + path).c_str(), 1);
    }

    void writeProgram(const std::string& name, const std::string& script) const {
        folder.write(name, "#!/bin/sh\n" + script + "\n");
        ::chmod((folder.path() / name).c_str(), 0755);
    }

    const std::string path = environment("PATH");
    test_support::TemporaryFolder folder;
};

TEST_F(PosixShell, PathIsOpenedInTheSystemsTerms) {
    EXPECT_TRUE(openWithShell("\\home\\user\\Tarnix\\TarnixBOM.xlsm"));
    EXPECT_EQ(opened(), "/home/user/Tarnix/TarnixBOM.xlsm\n");
}

TEST_F(PosixShell, BackslashOfAnAddressStays) {
    EXPECT_TRUE(openWithShell("http://a.example/b\\c"));
    EXPECT_EQ(opened(), "http://a.example/b\\c\n");
}

TEST_F(PosixShell, CharactersOfTheCommandLineMeanNothing) {
    EXPECT_TRUE(openWithShell("\\a b\\;$(touch x)`touch y` \"c\" 'd' *&|>z%20.xlsm"));
    EXPECT_EQ(opened(), "/a b/;$(touch x)`touch y` \"c\" 'd' *&|>z%20.xlsm\n");
}

TEST_F(PosixShell, CharactersOfTheCommandLineMeanNothingInAnAddress) {
    const std::string address =
        "http://a.example/$(touch " + folder.path().string() + "/x)`false`;a b\"c\"'d'*&|>z%20";
    EXPECT_TRUE(openWithShell(address, ShellTarget::Address));
    EXPECT_EQ(opened(), address + "\n");
    EXPECT_FALSE(folder.has("x"));
}

TEST_F(PosixShell, LeavesNoChildToCollect) {
    EXPECT_TRUE(openWithShell("http://a.example/"));
    EXPECT_EQ(opened(), "http://a.example/\n");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(PosixShell, DoesNotWaitForTheProgram) {
    ASSERT_EQ(::mkfifo((folder.path() / "gate").c_str(), 0600), 0);
    // The script goes on only when the test lets it, which is after the call has come back.
    replaceOpener("read line < '" + (folder.path() / "gate").string() + "'\n" +
                  "echo \"$line\" >> '" + list + "'");
    EXPECT_TRUE(openWithShell("http://a.example/"));
    EXPECT_EQ(openedSoFar(), "");
    std::ofstream(folder.path() / "gate") << "let go\n";
    EXPECT_EQ(opened(), "let go\n");
}

TEST_F(PosixShell, FailsForWhatTheOpenerDoesNotOpenAfterAWhile) {
    replaceOpener("sleep 0.3\nexit 4");
    EXPECT_FALSE(openWithShell("http://a.example/"));
}

TEST_F(PosixShell, OpenerThatFailsLeavesNoChildToCollect) {
    replaceOpener("exit 4");
    EXPECT_FALSE(openWithShell("http://a.example/"));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(PosixShell, FailsWhereThereIsNoOpener) {
    writeProgram("setsid", "exec /usr/bin/setsid \"$@\"");
    writeProgram("sh", "exec /bin/sh \"$@\"");
    ::setenv("PATH", folder.path().c_str(), 1);
    EXPECT_FALSE(openWithShell("http://a.example/"));
}

TEST_F(PosixShell, FailsForWhatTheOpenerWouldTakeForAnOption) {
    EXPECT_FALSE(openWithShell("--version"));
    EXPECT_EQ(openedSoFar(), "");
}

}  // namespace
}  // namespace tarnix::platform
