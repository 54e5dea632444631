#include "tests/workbench/workbench_fixture.h"

namespace test_support {
namespace {

class Serve : public Workbench {};

TEST_F(Serve, FolderOfTheUsersDataHasToBeThere) {
    expectFailure(run({"serve", "--data", path("nowhere")}), 2,
                  "tarnix-workbench: --data " + path("nowhere") + ": not a directory\n");
}

TEST_F(Serve, AddinHasToBeThere) {
    const ProgramResult result = run({"serve", "--addin", path("nowhere")});

    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(isOneLine(result.errors));
}

}  // namespace
}  // namespace test_support
