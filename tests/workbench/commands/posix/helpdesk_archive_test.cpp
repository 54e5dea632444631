#include "tests/workbench/helpdesk_fixture.h"

#include <algorithm>
#include <cstdlib>
#include <random>

namespace fs = std::filesystem;

TEST_F(Helpdesk, EndsOnlyWhenTheArchiveIsWhole) {
    // Noise that takes longer to pack than the second that the add-in waits.
    std::mt19937 random(1);
    std::string noise(60'000'000, '\0');
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
    fs::create_directories(support());
    test_support::writeFile(support() / "noise", noise);

    const auto result = helpdesk({"zip"});

    EXPECT_EQ(result.status, 0) << result.errors;
    const std::string archive = support() / "helpdesk.zip";
    EXPECT_GT(fs::file_size(archive), noise.size());
    EXPECT_EQ(std::system(("unzip -tqq '" + archive + "'").c_str()), 0);
}
