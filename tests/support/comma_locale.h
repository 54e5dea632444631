#pragma once

#include <clocale>
#include <locale>
#include <string>

namespace test_support {

/// The whole process writes 1234567.5 as 1.234.567,5 for as long as this lives: the C++ library by
/// a locale of its own, the C library by the system's Czech one.
class CommaLocale {
public:
    CommaLocale() : before_(std::locale::global(std::locale(std::locale::classic(), new Comma))) {
        if (std::setlocale(LC_ALL, "cs_CZ.UTF-8") == nullptr) {
            std::setlocale(LC_ALL, "Czech");
        }
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() {
        std::locale::global(before_);
        std::setlocale(LC_ALL, "C");
    }

    /// False where the system has no Czech locale.
    [[nodiscard]] static bool isSystems() {
        return std::string(std::localeconv()->decimal_point) == ",";
    }

private:
    class Comma : public std::numpunct<char> {
    protected:
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::locale before_;
};

}  // namespace test_support
