#include "tarnix/text/numbers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

// The library of this system reads numbers as the C standard has it, with exact rounding; that of
// mingw does not, so this comparison is made here alone.
namespace tarnix {
namespace {

/// What reading a text comes to: the bits of the number, or what was thrown.
struct Outcome {
    std::uint64_t bits = 0;
    const char* thrown = "";

    bool operator==(const Outcome&) const = default;
};

constexpr const char* kInvalid = "invalid";
constexpr const char* kOutOfRange = "out of range";

template <class Number>
Outcome outcome(Number (*parse)(const std::string&), const std::string& text) {
    try {
        const Number number = parse(text);
        Outcome read;
        std::memcpy(&read.bits, &number, sizeof number);
        return read;
    } catch (const std::invalid_argument&) {
        return {.thrown = kInvalid};
    } catch (const std::out_of_range&) {
        return {.thrown = kOutOfRange};
    }
}

int libraryInt(const std::string& text) { return std::stoi(text); }
double libraryDouble(const std::string& text) { return std::stod(text); }

/// Texts that look like numbers, and texts that nearly do.
class Texts {
public:
    explicit Texts(unsigned seed) : state_(seed) {}

    std::string next() {
        switch (below(40)) {
            case 0:
                return rim();
            case 1:
            case 2:
                return digits(11) + letters("", "x", " mm", ".");
            case 3:
                return soup();
            case 4:
            case 5:
                return hexadecimal();
            default:
                return start() + letters("1", "7", "0", "") + digits(6) +
                       letters("", ".", "", ",") + digits(10) + exponent();
        }
    }

private:
    unsigned below(unsigned count) {
        state_ = state_ * 6'364'136'223'846'793'005ULL + 1'442'695'040'888'963'407ULL;
        return static_cast<unsigned>(state_ >> 33U) % count;
    }

    std::string letters(const char* a, const char* b, const char* c, const char* d) {
        const char* const all[] = {a, b, c, d};
        return all[below(4)];
    }

    std::string digits(unsigned most) {
        std::string text;
        for (unsigned count = below(most); count > 0; --count) {
            text += static_cast<char>('0' + (below(3) == 0 ? 0 : below(10)));
        }
        return text;
    }

    std::string start() { return letters("", " ", "\t\n", "") + letters("", "-", "+", ""); }

    std::string exponent() {
        return below(2) == 0 ? ""
                             : letters("e", "E", "e", "p") + letters("", "-", "+", "+-") +
                                   std::to_string(below(340));
    }

    /// Where the range of an int or of a double ends.
    std::string rim() {
        if (below(2) == 0) {
            return letters("214748364", "-214748364", "21474836", "+214748364") + digits(3);
        }
        return letters("2.22507385850720", "4.94065645841246544176", "1.79769313486231",
                       "2.225073858507201") +
               digits(8) + letters("e-308", "e-324", "e308", "e-308");
    }

    /// No more than 52 bits where the range ends: of a subnormal number that has just one more than
    /// 53, the system's library does not see the loss.
    std::string hexadecimal() {
        const bool atRim = below(8) == 0;
        std::string text = start() + letters("0x", "0X", "0x", "0x.");
        for (unsigned count = below(atRim ? 14 : 19); count > 0; --count) {
            text += "0123456789abcdefABCDEF.f0"[below(25)];
        }
        return text + letters("p", "P", "", "p") + letters("", "-", "+", "-") +
               std::to_string(atRim ? 1020 + below(60) : below(30));
    }

    /// Characters that mean something in a number, in any order.
    std::string soup() {
        std::string text;
        for (unsigned count = below(9); count > 0; --count) {
            text += "0123456789+-.eExXpPinfaINFNan,_ \t"[below(34)];
        }
        return letters("", "in", "na", "") + text;
    }

    std::uint64_t state_;
};

constexpr unsigned kSeed = 20'261;
constexpr int kTexts = 1'000'000;

TEST(NumbersAgainstLibrary, AMillionTextsAreReadAsTheLibraryReadsThem) {
    Texts texts(kSeed);
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = texts.next();
        const bool isSame = outcome(parseInt, text) == outcome(libraryInt, text) &&
                            outcome(parseDouble, text) == outcome(libraryDouble, text);
        if (!isSame) {
            FAIL() << text;
        }
    }
}

}  // namespace
}  // namespace tarnix
