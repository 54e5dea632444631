#include "tarnix/platform/locale.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <locale>
#include <stdexcept>
#include <string>

namespace tarnix::platform {
namespace {

TEST(CzechLocaleOnLinux, IsTheOneOfTheCxxLibraryToo) {
    useCzechLocale();
    const std::string name = std::locale().name();
    std::locale::global(std::locale::classic());

    EXPECT_EQ(name, "cs_CZ.UTF-8");
}

TEST(CzechLocaleOnLinux, LeavesTheBytesOfOtherLettersAlone) {
    useCzechLocale();
    const std::string lowered = lowerCase(
        "\xC5\xBD"
        "ELEZO");
    std::locale::global(std::locale::classic());

    EXPECT_EQ(lowered,
              "\xC5\xBD"
              "elezo");
}

/// What is thrown without the locale, and the locale that is set then.
std::string complaint() {
    try {
        useCzechLocale();
    } catch (const std::runtime_error& error) {
        return error.what() + std::string(" in ") + std::locale().name();
    }
    return "none";
}

// In a process of its own: what the C library allocates for the search, it does not free.
TEST(CzechLocaleOnLinux, IsABadNameWhereTheSystemDoesNotHaveIt) {
    EXPECT_EXIT(
        {
            // Where the C library looks for locales, and finds none.
            ::setenv("LOCPATH", "/nowhere", /*overwrite=*/1);
            const std::string text = complaint();
            std::fputs(text.c_str(), stderr);
            ::_exit(0);
        },
        testing::ExitedWithCode(0), "^bad locale name in C$");
}

}  // namespace
}  // namespace tarnix::platform
