#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

/// A device that took the place of a file would be lost to every program: here a pipe with a name.
namespace {

using test_support::ProgramResult;

class DeviceAsOutput : public test_support::Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        ASSERT_EQ(::mkfifo(device().c_str(), 0600), 0);
    }

    void TearDown() override { EXPECT_TRUE(std::filesystem::is_fifo(device())); }

    [[nodiscard]] std::string device() const { return path("device.json"); }
};

TEST_F(DeviceAsOutput, IsNotReplacedByAList) {
    expectFailure(run({"parts", design("Bolt"), "--output", device()}), 2,
                  "tarnix-workbench: --output " + device() + ": it exists and is not a file\n");
}

TEST_F(DeviceAsOutput, IsNotReplacedByADesign) {
    const ProgramResult saved = run({"bom", design("Bolt"), "--save", device()});

    EXPECT_EQ(saved.status, 5);
    EXPECT_TRUE(test_support::isOneLine(saved.errors)) << saved.errors;
    EXPECT_NE(saved.errors.find(device()), std::string::npos) << saved.errors;
}

}  // namespace
