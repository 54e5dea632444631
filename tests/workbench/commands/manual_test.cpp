#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <string>

using test_support::ProgramResult;

using ManualCommand = test_support::Workbench;

TEST_F(ManualCommand, HasEachCommandEachOptionAndEachExitStatus) {
    const ProgramResult result = run({"manual"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output.rfind(".TH TARNIX\\-WORKBENCH 1 \"\" \"tarnix\\-workbench ", 0), 0U)
        << result.output;
    for (const char* each :
         {".SS \\fBbom\\fR \\fIFILE\\fR [\\fIOPTION\\fR ...]\n",
          "\\fB\\-\\-max\\-seconds\\fR \\fISECONDS\\fR\n", "One of: text, json.\n",
          "\\fB\\-\\-sort\\fR \\fICOLUMN[:desc]\\fR\n",
          ".SH EXIT STATUS\n.TP\n\\fB0\\fR\nsuccess.\n", "\\fB5\\fR\na result cannot be written.\n",
          ".SS \\fBuser\\-properties add\\fR \\fINAME\\fR"}) {
        EXPECT_NE(result.output.find(each), std::string::npos) << each << result.output;
    }
}

TEST_F(ManualCommand, IsWrittenIntoAFile) {
    const ProgramResult result = run({"manual", "--output", path("page.1")});

    EXPECT_EQ(result.output, "");
    EXPECT_EQ(test_support::readFile(host::fromUtf8(path("page.1"))), run({"manual"}).output);
}
