# Writes SOURCE, which defines the function FUNCTION of served_files.h with the files FILES, separated by "|", below ROOT.
cmake_minimum_required(VERSION 3.25)

set(piece_size 8000)  # MSVC takes no literal of more than 16 kB
string(REPLACE "|" ";" files "${FILES}")
set(entries "")
foreach(file IN LISTS files)
    file(RELATIVE_PATH name ${ROOT} ${file})
    file(READ ${file} text)
    string(LENGTH "${text}" length)
    set(at 0)
    while(at LESS length)
        string(SUBSTRING "${text}" ${at} ${piece_size} piece)
        string(APPEND entries "    {\"${name}\", R\"served(${piece})served\"},\n")
        math(EXPR at "${at} + ${piece_size}")
    endwhile()
endforeach()
file(WRITE ${SOURCE} "#include \"workbench/serve/served_files.h\"

#include <vector>

namespace workbench::serve {
namespace {

struct Piece {
    const char* file;
    const char* text;
};

const std::vector<Piece>& pieces() {
    static const std::vector<Piece> all = {
${entries}    };
    return all;
}

ServedFiles joined() {
    ServedFiles files;
    for (const Piece& each : pieces()) {
        files[each.file] += each.text;
    }
    return files;
}

}  // namespace

const ServedFiles& ${FUNCTION}() {
    static const ServedFiles files = joined();
    return files;
}

}  // namespace workbench::serve
")
