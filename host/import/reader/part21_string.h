#pragma once

#include "host/import/reader/text_encoding.h"

#include <string>
#include <string_view>
#include <vector>

namespace step {

/// Reads the string literals of one STEP file: the escapes that the standard knows, and the bytes
/// that writers leave in them (see text_encoding.h). All literals that matter are shown to it
/// first.
class StringReader {
public:
    /// Takes note of a literal, without its outer quotes, before anything is read.
    void consider(std::string_view literal);

    /// The literal as UTF-8, as spelt in the file; use `cleaned` for what is shown.
    [[nodiscard]] std::string read(std::string_view literal) const;

    /// Decides on the encodings, by all strings considered so far.
    void decideEncodings();

private:
    std::vector<std::string> raw_;
    std::vector<std::string> escaped_;
    Encoding rawEncoding_ = Encoding::Latin1;
    Encoding escapedEncoding_ = Encoding::Latin1;
};

}  // namespace step
