#include "tarnix/platform/locale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>

namespace tarnix::platform {
namespace {

class CzechLocale : public testing::Test {
protected:
    ~CzechLocale() override {
        std::locale::global(std::locale::classic());
        std::setlocale(LC_ALL, "C");
    }
};

TEST_F(CzechLocale, HoldsForTheWholeProcess) {
    useCzechLocale();

    EXPECT_EQ(std::string(std::localeconv()->decimal_point), ",");
}

TEST_F(CzechLocale, CanBeMadeAgain) {
    useCzechLocale();
    useCzechLocale();

    EXPECT_EQ(std::string(std::localeconv()->decimal_point), ",");
}

TEST_F(CzechLocale, LowersTheCaseOfLetters) {
    useCzechLocale();

    EXPECT_EQ(lowerCase("C:\\Users\\Jan\\PART-12_B.STEP"), "c:\\users\\jan\\part-12_b.step");
}

TEST_F(CzechLocale, LeavesAnEmptyStringEmpty) {
    useCzechLocale();

    EXPECT_EQ(lowerCase(""), "");
}

}  // namespace
}  // namespace tarnix::platform
