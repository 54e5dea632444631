#pragma once

#include <map>
#include <string>
#include <string_view>

/// Writes STEP as plain text, without any CAD library: what the samples hold is known to the digit,
/// comes out the same on every run, and is no work of the library that reads it back.
namespace samples {

/// The data section of a STEP file, entity by entity.
class StepText {
public:
    /// Adds an entity such as "PLANE('',#12)" and returns its reference, such as "#13". An entity
    /// of the same text is not written twice; use `addOwn` for what has to be a thing of its own.
    std::string add(const std::string& entity);

    /// Adds an entity even where one of the same text exists.
    std::string addOwn(const std::string& entity);

    /// From here on nothing written so far is used again: bodies share no edges and no points.
    void separate() { known_.clear(); }

    /// The whole file: header, data, end. The time stamp is fixed.
    [[nodiscard]] std::string file(std::string_view name) const;

private:
    std::string data_;
    int last_ = 0;
    std::map<std::string, std::string> known_;
};

/// A string literal: quotes doubled, and characters beyond ASCII escaped as the standard has it.
std::string literal(std::string_view utf8);

/// A real, rounded to so many decimals: what the last digits of a sine are must not matter.
std::string real(double value, int decimals = 9);

}  // namespace samples
