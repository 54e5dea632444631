# The icons and images beside the module against the texts by which the sources name them.
#
#   cmake -DROOT=<folder> -DTEXTS=<list> [-DCOMMANDS=<header>] -P check_resources.cmake
#
# TEXTS lists the resource paths that the add-in passes to the host, as they are spelled; COMMANDS has those
# of the commands. A fault is one line; any makes the check fail:
#   - a text in the sources that is not listed, or a listed one that no source names;
#   - a file that a text needs and that is missing, or has another size: letters are compared as the
#     host does on Windows, where "resources" and "Resources" are one folder;
#   - a file that no text needs;
#   - two files whose names differ in case alone: only one of them would survive a checkout on Windows.
cmake_minimum_required(VERSION 3.25)

set(faults 0)
macro(fault text)
    message("${text}")
    math(EXPR faults "${faults} + 1")
endmacro()

# The size of a PNG as "WIDTHxHEIGHT", from its first chunk; "no PNG" for anything else.
function(png_size file result)
    file(READ ${file} head LIMIT 24 HEX)
    set(size "no PNG")
    if(head MATCHES "^89504e470d0a1a0a0000000d49484452(........)(........)$")
        math(EXPR width "0x${CMAKE_MATCH_1}")
        math(EXPR height "0x${CMAKE_MATCH_2}")
        set(size ${width}x${height})
    endif()
    set(${result} ${size} PARENT_SCOPE)
endfunction()

# The resource paths in the literals of sources, each once.
function(paths_in sources result)
    set(paths "")
    foreach(source IN LISTS sources)
        file(READ ${source} content)
        string(REGEX MATCHALL "\"[./]*[Rr]esources/[^\"\n]*\"" texts "${content}")
        list(APPEND paths ${texts})
    endforeach()
    string(REPLACE "\"" "" paths "${paths}")
    list(REMOVE_DUPLICATES paths)
    set(${result} ${paths} PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE sources ${ROOT}/tarnix/*.h ${ROOT}/tarnix/*.cpp)
paths_in("${sources}" named)

file(STRINGS ${TEXTS} listed)
paths_in("${COMMANDS}" of_commands)
list(APPEND listed ${of_commands})
foreach(text IN LISTS named)
    if(NOT text IN_LIST listed)
        fault("\"${text}\": named in the sources, not known as a resource")
    endif()
endforeach()

file(GLOB_RECURSE files RELATIVE ${ROOT}/tarnix ${ROOT}/tarnix/Resources/* ${ROOT}/tarnix/resources/*)
string(TOLOWER "${files}" lower_files)
set(used "")
foreach(text IN LISTS listed)
    if(NOT text IN_LIST named)
        fault("\"${text}\": no source names it")
    endif()
    string(REPLACE "./" "" path ${text})
    if(path MATCHES "\\.png$")
        set(needed "${path}=16x16")
    else()
        set(needed "${path}/16x16.png=16x16" "${path}/16x16@2x.png=32x32"
                   "${path}/32x32.png=32x32" "${path}/32x32@2x.png=64x64")
    endif()
    foreach(pair IN LISTS needed)
        string(REGEX MATCH "^(.*)=(.*)$" _ ${pair})
        set(file ${CMAKE_MATCH_1})
        set(expected ${CMAKE_MATCH_2})
        string(TOLOWER ${file} lower)
        list(APPEND used ${lower})
        list(FIND lower_files ${lower} place)
        if(place EQUAL -1)
            fault("${file}: missing")
            continue()
        endif()
        list(GET files ${place} file)
        png_size(${ROOT}/tarnix/${file} size)
        if(NOT size STREQUAL expected)
            fault("${file}: ${size}, should be ${expected}")
        endif()
    endforeach()
endforeach()

set(merged "")
foreach(file IN LISTS files)
    string(TOLOWER ${file} lower)
    if(NOT lower IN_LIST used)
        fault("${file}: no text needs it")
    endif()
    if(lower IN_LIST merged)
        fault("${file}: another file has this name on Windows")
    endif()
    list(APPEND merged ${lower})
endforeach()

list(LENGTH listed texts)
list(LENGTH files count)
if(texts EQUAL 0 OR count EQUAL 0)
    message(FATAL_ERROR "nothing to check below ${ROOT}")
endif()
if(faults GREATER 0)
    message(FATAL_ERROR "${faults} faults in ${count} files")
endif()
message("${texts} texts, ${count} files, no fault")
