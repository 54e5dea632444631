# Writes SOURCE, which defines `web::pageTemplate` as what the file TEXT holds.
cmake_minimum_required(VERSION 3.25)

set(piece_size 8000)  # MSVC takes no literal of more than 16 kB
file(READ ${TEXT} text)
string(LENGTH "${text}" length)
set(pieces "")
set(at 0)
while(at LESS length)
    string(SUBSTRING "${text}" ${at} ${piece_size} piece)
    string(APPEND pieces "    R\"page(${piece})page\",\n")
    math(EXPR at "${at} + ${piece_size}")
endwhile()
file(WRITE ${SOURCE} "#include \"web/page_template.h\"

namespace web {
namespace {

constexpr const char* kPieces[] = {
${pieces}};

}  // namespace

std::string pageTemplate() {
    std::string page;
    for (const char* const piece : kPieces) {
        page += piece;
    }
    return page;
}

}  // namespace web
")
