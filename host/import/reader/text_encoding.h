#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Texts of STEP files come in the encodings that their writers happened to use. The standard knows
/// escapes for ISO 8859-1 and Unicode; real files also hold UTF-8 as it is, and the bytes of the
/// code page of the machine that wrote them.
///
/// A single string is too short to decide; all strings of a file that are not UTF-8 are judged
/// together:
///
/// - Windows-1251 when all bytes above 127 are Cyrillic letters or the punctuation that goes with
///   them, none touches an ASCII letter, no small letter is followed by a capital, and at least two
///   letters are together;
/// - else GBK when the bytes above 127 are in whole Chinese characters everywhere, at least two
///   of them together;
/// - else ISO 8859-1, which reads any byte, so that different texts stay different.
namespace step {

enum class Encoding { Utf8, Latin1, Cyrillic, Gbk };

/// True when the bytes are well-formed UTF-8.
bool isUtf8(std::string_view bytes);

/// The encoding in which texts that are no UTF-8 were written, by the rule above.
Encoding guessEncoding(const std::vector<std::string>& texts);

/// The encoding of bytes that were escaped one by one: GBK by the rule above, else ISO 8859-1,
/// which is what the escape means. Each entry is one row of escaped bytes.
Encoding guessEscapedEncoding(const std::vector<std::string>& rows);

/// The bytes as UTF-8. What does not fit the encoding is read as ISO 8859-1.
std::string toUtf8(std::string_view bytes, Encoding encoding);

/// Reads bytes of part 1 to 16 of ISO 8859, as UTF-8; as part 1 where the system lacks the part.
std::string fromIso8859(std::string_view bytes, int part);

/// Appends a code point as UTF-8; U+FFFD for one that no string may hold (surrogates,
/// non-characters).
void appendCharacter(std::string& text, char32_t point);

/// A text fit to be shown: control characters become spaces, non-characters U+FFFD, and spaces at
/// both ends go. The argument is UTF-8.
std::string cleaned(std::string_view text);

}  // namespace step
