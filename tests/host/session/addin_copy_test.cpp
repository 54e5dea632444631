#include "host/session/addin_copy.h"

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include "host/import/step_import.h"
#include "host/session/session_error.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using test_support::readFile;
using test_support::writeFile;

namespace {

class AddinCopy : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(installed() / "Resources");
        writeFile(installed() / "Sample.dll", "code 1");
        writeFile(installed() / "Sample.manifest", "{}");
        writeFile(installed() / "Resources" / "16x16.png", "picture 1");
    }

    [[nodiscard]] fs::path installed() const { return folder.path() / "installed" / "Sample"; }
    [[nodiscard]] fs::path home() const { return folder.path() / "home"; }

    host::AddinFiles copy() { return host::copyAddin(host::findAddin(installed()), home()); }

    /// What `findAddin` says of the installed folder.
    [[nodiscard]] std::string complaint() const {
        try {
            host::findAddin(installed());
        } catch (const host::SessionError& error) {
            return error.what();
        }
        return "none";
    }

    test_support::TemporaryFolder folder;
};

}  // namespace

TEST_F(AddinCopy, FolderManifestAndModuleShareOneName) {
    const host::AddinFiles addin = host::findAddin(installed());

    EXPECT_EQ(addin.name, "Sample");
    EXPECT_EQ(addin.module().filename(), "Sample.dll");
    EXPECT_EQ(addin.manifest().filename(), "Sample.manifest");
}

TEST_F(AddinCopy, AFolderGivenWithASlashAtItsEndIsTheSame) {
    EXPECT_EQ(host::findAddin(installed() / "").name, "Sample");
}

TEST_F(AddinCopy, AMissingManifestIsNamed) {
    fs::remove(installed() / "Sample.manifest");

    EXPECT_NE(complaint().find("Sample.manifest is missing"), std::string::npos) << complaint();
}

TEST_F(AddinCopy, AMissingModuleIsNamed) {
    fs::remove(installed() / "Sample.dll");

    EXPECT_NE(complaint().find("Sample.dll is missing"), std::string::npos) << complaint();
}

TEST_F(AddinCopy, AnIconIsFoundWhateverTheCaseInWhichTheModuleSpellsIt) {
    const host::AddinFiles addin = copy();
    const fs::path icon = home() / "Sample" / "Resources" / "16x16.png";

    EXPECT_TRUE(fs::equivalent(addin.resource("././Resources/16x16.png"), icon));
    EXPECT_TRUE(fs::equivalent(addin.resource("resources/16X16.PNG"), icon));
}

TEST_F(AddinCopy, AMissingIconIsNamed) {
    try {
        static_cast<void>(copy().resource("Resources/Spare.png"));
        FAIL() << "found an icon that is missing";
    } catch (const host::ImportError& error) {
        EXPECT_NE(std::string(error.what()).find("Spare.png"), std::string::npos) << error.what();
    }
}

TEST_F(AddinCopy, HoldsEverythingOfTheFolder) {
    const host::AddinFiles addin = copy();

    EXPECT_EQ(addin.folder, home() / "Sample");
    EXPECT_EQ(readFile(addin.module()), "code 1");
    EXPECT_EQ(readFile(addin.folder / "Resources" / "16x16.png"), "picture 1");
}

TEST_F(AddinCopy, AModuleThatDiffersIsBroughtUpToDateWhateverItsTime) {
    const host::AddinFiles addin = copy();
    writeFile(installed() / "Sample.dll", "code 2");
    fs::last_write_time(installed() / "Sample.dll",
                        fs::last_write_time(addin.module()) - std::chrono::hours(1));

    copy();

    EXPECT_EQ(readFile(addin.module()), "code 2");
}

TEST_F(AddinCopy, AnUnchangedModuleIsLeftAlone) {
    const host::AddinFiles addin = copy();
    const auto longAgo = fs::last_write_time(addin.module()) - std::chrono::hours(1);
    fs::last_write_time(addin.module(), longAgo);

    copy();

    EXPECT_EQ(fs::last_write_time(addin.module()), longAgo);
}

TEST_F(AddinCopy, ANewerPictureIsTakenOver) {
    const host::AddinFiles addin = copy();
    const fs::path picture = installed() / "Resources" / "16x16.png";
    writeFile(picture, "picture 2");
    fs::last_write_time(picture, fs::last_write_time(addin.module()) + std::chrono::hours(1));

    copy();

    EXPECT_EQ(readFile(addin.folder / "Resources" / "16x16.png"), "picture 2");
}

TEST_F(AddinCopy, WhatStandsInTheCopyAloneStays) {
    const host::AddinFiles addin = copy();
    writeFile(addin.folder / "Sample_configuration.xml", "settings");

    copy();

    EXPECT_EQ(readFile(addin.folder / "Sample_configuration.xml"), "settings");
}
