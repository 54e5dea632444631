# The package, as a designer gets it: installed, packed, unpacked in a folder with spaces and letters
# beyond ASCII, and loaded from there by the workbench.
#
#   cmake -DBUILD=<build folder> -DOUT=<scratch folder> -DNAME=<folder's name> -DWORKBENCH=<program>
#         -DEXPECTED=<list of files> -DVERSION=<of the project> -DDESCRIPTION=<likewise>
#         -P check_package.cmake
#
# WORKBENCH may be a list: an emulator and the program.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${OUT})
file(MAKE_DIRECTORY ${OUT})

execute_process(COMMAND cpack -G ZIP -B ${OUT} --config ${BUILD}/CPackConfig.cmake
                WORKING_DIRECTORY ${OUT} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(GLOB packages ${OUT}/*.zip)
list(LENGTH packages count)
if(NOT count EQUAL 1)
    message(FATAL_ERROR "expected one package, found: ${packages}")
endif()

set(place "${OUT}/${NAME}")
file(ARCHIVE_EXTRACT INPUT ${packages} DESTINATION "${place}")

# Every icon is checked against the sources elsewhere; here the folders count, and that no two names are
# one where letters' case does not matter.
file(GLOB_RECURSE files RELATIVE "${place}" "${place}/*")
string(TOLOWER "${files}" lower_files)
list(LENGTH lower_files packed)
list(REMOVE_DUPLICATES lower_files)
list(LENGTH lower_files distinct)
if(NOT distinct EQUAL packed)
    message(FATAL_ERROR "names in the package differ in case alone: ${files}")
endif()
list(FILTER files EXCLUDE REGEX "^Tarnix/Resources/")
list(SORT files)
file(STRINGS ${EXPECTED} expected)
if(NOT files STREQUAL expected)
    message(FATAL_ERROR "the package holds ${files}, expected ${expected}")
endif()
foreach(icon Resources/BOM/Combine.png Resources/Properties/32x32@2x.png Resources/_Buy/16x16.png)
    if(NOT EXISTS "${place}/Tarnix/${icon}")
        message(FATAL_ERROR "the package lacks ${icon}")
    endif()
endforeach()

# The host shows who made the add-in, and offers to edit those that do not say no.
file(READ "${place}/Tarnix/Tarnix.manifest" manifest)
# The id is the add-in's for good: with another one the host takes it for another add-in. Sources to
# edit are named by "sourcewindows" and "sourcemac"; the package has none, and so no such fields.
set(fields 0)
foreach(field "autodeskProduct=Fusion360" "type=addin" "id=8c5c2f7e-3b6a-4d0f-9a57-6e1d0c4b92f3"
              "author=The Tarnix authors" "version=${VERSION}" "editEnabled=OFF" "runOnStartup=ON"
              "supportedOS=windows" "description={}")
    string(REGEX MATCH "^([^=]+)=(.*)$" _ "${field}")
    set(key ${CMAKE_MATCH_1})
    set(expected_value "${CMAKE_MATCH_2}")
    if(key STREQUAL "description")
        # An object by language, of which the empty one serves all.
        set(expected_value "${DESCRIPTION}")
        string(JSON languages LENGTH "${manifest}" description)
        string(JSON value ERROR_VARIABLE fault GET "${manifest}" description "")
        if(NOT languages EQUAL 1)
            message(FATAL_ERROR "manifest: the description is in ${languages} languages, expected one")
        endif()
    else()
        string(JSON value ERROR_VARIABLE fault GET "${manifest}" ${key})
    endif()
    if(NOT value STREQUAL expected_value)
        message(FATAL_ERROR "manifest: ${key} is '${value}', expected '${expected_value}' ${fault}")
    endif()
    math(EXPR fields "${fields} + 1")
endforeach()
string(JSON length LENGTH "${manifest}")
if(NOT length EQUAL fields)
    message(FATAL_ERROR "manifest: ${length} fields, expected ${fields}: ${manifest}")
endif()

file(WRITE "${place}/design.design.json" [[
{"format": "standin-host-design", "version": 1, "name": "Packed", "unit": "mm", "components": [
 {"name": "Packed", "partNumber": "Packed",
  "children": [{"component": 1, "instance": 1}, {"component": 1, "instance": 2}]},
 {"name": "Bolt", "partNumber": "M8", "material": {"name": "Steel", "density": 0.5},
  "geometry": {"area": 6, "volume": 1, "min": [0, 0, 0], "max": [1, 1, 1]}}]}
]])
# The module that is loaded is the user's copy, which lies in that folder as well; under Wine it lies
# in the prefix, whatever the environment says.
set(ENV{XDG_DATA_HOME} "${place}/data")
execute_process(COMMAND ${WORKBENCH} bom design.design.json --addin Tarnix --out . --column Quantity --keep-columns
                WORKING_DIRECTORY "${place}" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(READ "${place}/design-TarnixBOM.csv" csv)
string(REPLACE "\r" "" csv "${csv}")
# Two bolts of half a kilogram are one line of one kilogram.
set(expected_csv "Pos.;Part Number;BOM Structure;Quantity;\n1;M8;Produce;2;\n\n;Total mass of structure BOM [kg]: ;1.000\n")
if(NOT csv STREQUAL expected_csv)
    message(FATAL_ERROR "exported:\n${csv}\nexpected:\n${expected_csv}")
endif()

# "Open Help" opens a file that is there, in the host's language. Under Wine its path is one of Windows.
list(REMOVE_ITEM WORKBENCH "")
list(LENGTH WORKBENCH words)
if(words GREATER 1) # an emulator and the program
    set(user_drive ${BUILD}/wine-prefix/drive_c)
    if(DEFINED ENV{WINEPREFIX})
        set(user_drive $ENV{WINEPREFIX}/drive_c)
    endif()
endif()
foreach(guide "en=Tarnix_UsersGuide.pdf" "cs=Tarnix_UzivatelskaPrirucka.pdf")
    string(REGEX MATCH "^(..)=(.*)$" _ "${guide}")
    set(language ${CMAKE_MATCH_1})
    set(name ${CMAKE_MATCH_2})
    execute_process(COMMAND ${WORKBENCH} helpdesk guide --addin Tarnix --language ${language}
                    WORKING_DIRECTORY "${place}" COMMAND_ERROR_IS_FATAL ANY
                    OUTPUT_VARIABLE said ERROR_VARIABLE said)
    if(NOT said MATCHES "Not opened: ([^\r\n]*${name})")
        message(FATAL_ERROR "helpdesk guide does not open ${name}: ${said}")
    endif()
    string(REPLACE "\\" "/" opened "${CMAKE_MATCH_1}")
    string(REGEX REPLACE "^[Cc]:" "${user_drive}" opened "${opened}")
    string(REGEX REPLACE "^[Zz]:" "" opened "${opened}")
    if(NOT EXISTS "${opened}")
        message(FATAL_ERROR "the guide that Open Help opens is not there: ${opened}")
    endif()
endforeach()
if(words GREATER 1)
    message("the package loads from '${NAME}'")
    return()
endif()
file(GLOB_RECURSE kept RELATIVE "${place}/data" "${place}/data/*")
foreach(file Tarnix.dll Tarnix_configuration.xml)
    if(NOT "${kept}" MATCHES "/Tarnix/${file}(;|$)")
        message(FATAL_ERROR "no ${file} beside the loaded module: ${kept}")
    endif()
endforeach()
message("the package loads from '${NAME}'")
