#include "host/base/unit_expression.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string_view>

namespace host {
namespace {

struct Unit {
    std::string_view name;
    Quantity one;
};

constexpr double kInch = 2.54;
constexpr double kDegree = std::numbers::pi / 180;

constexpr std::array<Unit, 20> kUnits = {{
    {"mm", {.value = 0.1, .length = 1}},
    {"cm", {.value = 1, .length = 1}},
    {"m", {.value = 100, .length = 1}},
    {"km", {.value = 1e5, .length = 1}},
    {"micron", {.value = 1e-4, .length = 1}},
    {"um", {.value = 1e-4, .length = 1}},
    {"in", {.value = kInch, .length = 1}},
    {"\"", {.value = kInch, .length = 1}},
    {"ft", {.value = 12 * kInch, .length = 1}},
    {"'", {.value = 12 * kInch, .length = 1}},
    {"yd", {.value = 36 * kInch, .length = 1}},
    {"mi", {.value = 63360 * kInch, .length = 1}},
    {"mil", {.value = kInch / 1000, .length = 1}},
    {"deg", {.value = kDegree, .angle = 1}},
    {"rad", {.value = 1, .angle = 1}},
    {"grad", {.value = std::numbers::pi / 200, .angle = 1}},
    {"kg", {.value = 1, .mass = 1}},
    {"g", {.value = 1e-3, .mass = 1}},
    {"lbmass", {.value = 0.45359237, .mass = 1}},
    {"ozmass", {.value = 0.45359237 / 16, .mass = 1}},
}};

using Function = double (*)(double);

struct NamedFunction {
    std::string_view name;
    Function function;
    bool takesAngle = false;
    bool returnsAngle = false;
};

constexpr std::array<NamedFunction, 13> kFunctions = {{
    {"abs", [](double x) { return std::abs(x); }},
    {"floor", [](double x) { return std::floor(x); }},
    {"ceil", [](double x) { return std::ceil(x); }},
    {"round", [](double x) { return std::round(x); }},
    {"exp", [](double x) { return std::exp(x); }},
    {"ln", [](double x) { return std::log(x); }},
    {"log", [](double x) { return std::log10(x); }},
    {"sin", [](double x) { return std::sin(x); }, /*takesAngle=*/true},
    {"cos", [](double x) { return std::cos(x); }, /*takesAngle=*/true},
    {"tan", [](double x) { return std::tan(x); }, /*takesAngle=*/true},
    {"asin", [](double x) { return std::asin(x); }, false, /*returnsAngle=*/true},
    {"acos", [](double x) { return std::acos(x); }, false, /*returnsAngle=*/true},
    {"atan", [](double x) { return std::atan(x); }, false, /*returnsAngle=*/true},
}};

template <class Table>
const auto* findNamed(const Table& table, std::string_view name) {
    for (const auto& each : table) {
        if (each.name == name) return &each;
    }
    return static_cast<const typename Table::value_type*>(nullptr);
}

Quantity product(const Quantity& left, const Quantity& right, int sign) {
    return {.value = sign > 0 ? left.value * right.value : left.value / right.value,
            .length = left.length + sign * right.length,
            .angle = left.angle + sign * right.angle,
            .mass = left.mass + sign * right.mass};
}

bool isSpace(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return (c >= '0' && c <= '9') || c == '.'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// One expression, from its first character to its last.
class Parser {
public:
    Parser(std::string_view text, const Quantity& unit) : text_(text), unit_(unit) {}

    Quantity whole() {
        Quantity result = sum();
        skipSpaces();
        if (at_ < text_.size()) {
            refuse("not expected");
        }
        return result;
    }

private:
    // A user's formula is short; a deeper one would only exhaust the stack.
    static constexpr int kMostLevels = 200;

    Quantity sum() {
        if (++level_ > kMostLevels) refuse("nested too deeply");
        Quantity result = term();
        while (const char sign = take("+-")) {
            const Quantity right = term();
            result = sumOf(result, right, sign == '+' ? 1 : -1);
        }
        --level_;
        return result;
    }

    Quantity sumOf(Quantity left, Quantity right, int sign) {
        if (left.isPlain() != right.isPlain()) {
            Quantity& plain = left.isPlain() ? left : right;
            plain = product(plain, unit_, 1);
        }
        if (!left.hasDimensionsOf(right)) refuse("the units before and after the sign differ");
        left.value += sign * right.value;
        return left;
    }

    Quantity term() {
        Quantity result = factor();
        while (const char sign = take("*/")) {
            const Quantity right = factor();
            if (sign == '/' && right.value == 0) refuse("a division by zero");
            result = product(result, right, sign == '*' ? 1 : -1);
        }
        return result;
    }

    Quantity factor() {
        if (++level_ > kMostLevels) refuse("nested too deeply");
        const char sign = take("+-");
        Quantity result = sign != 0 ? factor() : power();
        if (sign == '-') result.value = -result.value;
        --level_;
        return result;
    }

    Quantity power() {
        const Quantity base = primary();
        return take("^") != 0 ? raised(base, factor()) : base;
    }

    Quantity raised(const Quantity& base, const Quantity& exponent) {
        const double power = exponent.value;
        const bool whole = power == std::floor(power) && std::abs(power) < 100;
        if (!exponent.isPlain() || (!base.isPlain() && !whole)) refuse("no such power");
        const int times = whole ? static_cast<int>(power) : 0;
        return {.value = std::pow(base.value, power),
                .length = base.length * times,
                .angle = base.angle * times,
                .mass = base.mass * times};
    }

    Quantity primary() {
        skipSpaces();
        if (take("(") != 0) {
            const Quantity inner = sum();
            close();
            return inner;
        }
        if (at_ < text_.size() && isDigit(text_[at_])) return number();
        return named();
    }

    /// A number and the unit that follows it: "2 cm^2".
    Quantity number() {
        Quantity result;
        const auto [end, error] =
            std::from_chars(text_.data() + at_, text_.data() + text_.size(), result.value);
        if (error != std::errc()) refuse("no number");
        at_ = static_cast<std::size_t>(end - text_.data());
        skipSpaces();
        const std::size_t before = at_;
        const Unit* unit = findNamed(kUnits, name());
        if (unit == nullptr) {
            at_ = before;
            return result;
        }
        const Quantity one = take("^") != 0 ? raised(unit->one, factor()) : unit->one;
        return product(result, one, 1);
    }

    Quantity named() {
        const std::size_t before = at_;
        const std::string_view found = name();
        if (found == "PI") return {.value = std::numbers::pi};
        if (found == "sqrt" && take("(") != 0) return root();
        if (const NamedFunction* function = findNamed(kFunctions, found)) return applied(*function);
        if (const Unit* unit = findNamed(kUnits, found)) return unit->one;
        at_ = before;
        refuse(found.empty() ? "a value is missing" : "unknown");
    }

    Quantity root() {
        const Quantity of = sum();
        close();
        if (of.value < 0 || of.length % 2 != 0 || of.angle % 2 != 0 || of.mass % 2 != 0) {
            refuse("no such root");
        }
        return {.value = std::sqrt(of.value),
                .length = of.length / 2,
                .angle = of.angle / 2,
                .mass = of.mass / 2};
    }

    Quantity applied(const NamedFunction& function) {
        if (take("(") == 0) refuse("a parenthesis is missing");
        const Quantity of = sum();
        close();
        const bool isAngle = function.takesAngle && of.hasDimensionsOf({.angle = 1});
        if (!of.isPlain() && !isAngle) refuse("the function takes no such unit");
        return {.value = function.function(of.value), .angle = function.returnsAngle ? 1 : 0};
    }

    void close() {
        if (take(")") == 0) refuse("a parenthesis is missing");
    }

    std::string_view name() {
        const std::size_t from = at_;
        if (at_ < text_.size() && (text_[at_] == '"' || text_[at_] == '\'')) {
            ++at_;
        } else {
            while (at_ < text_.size() && isLetter(text_[at_])) ++at_;
        }
        return text_.substr(from, at_ - from);
    }

    /// The next character if it is one of these, 0 otherwise.
    char take(std::string_view these) {
        skipSpaces();
        if (at_ >= text_.size() || these.find(text_[at_]) == std::string_view::npos) return 0;
        return text_[at_++];
    }

    void skipSpaces() {
        while (at_ < text_.size() && isSpace(text_[at_])) ++at_;
    }

    [[noreturn]] void refuse(const std::string& why) const {
        const std::string rest(text_.substr(at_));
        throw ExpressionError("\"" + std::string(text_) + "\": " + why +
                              (rest.empty() ? " at the end" : " at \"" + rest + "\""));
    }

    std::string_view text_;
    Quantity unit_;
    std::size_t at_ = 0;
    int level_ = 0;
};

}  // namespace

Quantity unitQuantity(const std::string& unit) {
    if (unit.empty()) return {.value = 1};
    return Parser(unit, {.value = 1}).whole();
}

double evaluateExpression(const std::string& expression, const std::string& unit) {
    const Quantity one = unitQuantity(unit);
    Quantity result = Parser(expression, one).whole();
    if (result.isPlain()) {
        result = product(result, one, 1);
    }
    if (!result.hasDimensionsOf(one) || !std::isfinite(result.value)) {
        throw ExpressionError("\"" + expression + "\" is no value in \"" + unit + "\"");
    }
    return result.value;
}

std::string formatQuantity(double value, const std::string& unit, bool showUnit) {
    constexpr int kDecimals = 3;
    // Whatever the locale: it is read again as an expression.
    std::array<char, 400> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value / unitQuantity(unit).value,
                      std::chars_format::fixed, kDecimals);
    std::string number(text.data(), end);
    if (unit.empty()) {
        number.erase(number.find_last_not_of('0') + 1);
        number.erase(number.find_last_not_of('.') + 1);
    }
    return showUnit && !unit.empty() ? number + " " + unit : number;
}

}  // namespace host
