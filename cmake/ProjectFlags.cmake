# The one place for compiler and linker flags: every target of ours links `project_flags`.
add_library(project_flags INTERFACE)
target_include_directories(project_flags INTERFACE ${PROJECT_SOURCE_DIR})

if(MSVC)
    # Exceptions leave the exported functions, so /EHs and not /EHsc. What is included in angle brackets
    # is the system's (gdiplus.h has warnings at /W4) or the vendor's, and not ours to mend.
    target_compile_options(project_flags INTERFACE /W4 /EHs /utf-8 /permissive-
                                                   /external:anglebrackets /external:W0)
    # The last one: `_wfopen` is deprecated there in favour of a function of MSVC's own.
    target_compile_definitions(project_flags INTERFACE NOMINMAX UNICODE _UNICODE _CRT_SECURE_NO_WARNINGS)
else()
    target_compile_options(project_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                                                   -Wnon-virtual-dtor -Woverloaded-virtual)
endif()

if(WIN32 AND NOT MSVC)
    target_compile_definitions(project_flags INTERFACE NOMINMAX UNICODE _UNICODE
                                                       _WIN32_WINNT=0x0A00)
    # Exceptions and type information cross from the module to its host: one shared runtime.
    target_link_options(project_flags INTERFACE -shared-libgcc)
endif()

# Some hundred programs are linked: a fast linker where there is one. It knows no Windows programs.
find_program(TARNIX_FAST_LINKER mold)
if(TARNIX_FAST_LINKER AND NOT WIN32)
    target_link_options(project_flags INTERFACE -fuse-ld=mold)
endif()

if(TARNIX_SANITIZE)
    target_compile_options(project_flags INTERFACE -fsanitize=address,undefined
                                                   -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
    target_link_options(project_flags INTERFACE -fsanitize=address,undefined)
endif()

if(TARNIX_FUZZ)
    target_compile_options(project_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Parses the large headers of a target once for all its sources, which still include what they use: the
# linter reads them without.
#
#   precompile_headers(target <header> ...)
function(precompile_headers target)
    target_precompile_headers(${target} PRIVATE ${ARGN} <algorithm> <filesystem> <functional> <map> <memory>
                                                <optional> <string> <utility> <vector>)
    # GCC 12 finds bounds broken inside std::string that are not, and no longer takes the library's
    # headers for the system's once they come precompiled.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow
                                                 -Wno-stringop-overread)
    endif()
endfunction()

# A compiler cache where there is one. What it is told to overlook is what precompiled headers change
# without changing what is compiled.
find_program(TARNIX_COMPILER_CACHE ccache)
if(TARNIX_COMPILER_CACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${TARNIX_COMPILER_CACHE})
endif()
