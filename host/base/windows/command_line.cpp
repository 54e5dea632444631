#include "host/base/windows/command_line.h"

#include "host/base/utf8_path.h"

namespace host {
namespace {

std::wstring quoted(const std::wstring& argument) {
    std::wstring result = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : argument) {
        // Backslashes count only where a quotation mark follows.
        result += c == L'"' ? std::wstring(backslashes + 1, L'\\') : L"";
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        result += c;
    }
    return result + std::wstring(backslashes, L'\\') + L"\"";
}

}  // namespace

std::wstring commandLine(const std::filesystem::path& program,
                         const std::vector<std::string>& arguments) {
    std::wstring line = quoted(program.native());
    for (const std::string& argument : arguments) {
        line += L" " + quoted(fromUtf8(argument).native());
    }
    return line;
}

}  // namespace host
