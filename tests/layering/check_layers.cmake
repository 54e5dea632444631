# Who may include whom, checked over the sources below ROOT.
#
#   cmake -DROOT=<folder> -P check_layers.cmake
#
# Each rule is a folder, what its includes may not be, and why. A violation is one line, file and
# include; any makes the check fail.
cmake_minimum_required(VERSION 3.25)

set(system_headers
    "windows\\.h|comdef\\.h|objbase\\.h|shellapi\\.h|msxml2?\\.h|comutil\\.h|direct\\.h|io\\.h"
    "unistd\\.h|dlfcn\\.h|fcntl\\.h|spawn\\.h|sys/.*|libxml/.*|xcb/.*|zip\\.h|png\\.h")
string(REPLACE ";" "|" system_headers "${system_headers}")

# folder | forbidden include | except in | reason
set(rules
    "tarnix|(host|workbench|tests|bench)/.*||the add-in knows the published API alone"
    "tarnix|${system_headers}|tarnix/platform|the system is asked in platform/ alone"
    "tarnix|StandIn/.*|tarnix/platform/hosted|only what a session answers asks the loading process"
    "tarnix|(nlohmann|rapidjson)/.*||the add-in has no third-party library"
    "tarnix/text|tarnix/(addin|bom|properties|settings|helpdesk|commands|platform)/.*||text/ depends on nothing"
    "tarnix/platform|tarnix/(addin|bom|properties|settings|helpdesk|commands|text)/.*||platform/ depends on nothing"
    "tarnix/settings|tarnix/(bom|properties|helpdesk|commands)/.*||settings/ serves the others"
    "tarnix/properties|tarnix/bom/.*||properties/ and bom/ share only the property store"
    "tarnix/bom|tarnix/properties/.*|property_store.h|properties/ and bom/ share only the property store"
    "tarnix/bom/model|tarnix/bom/(tabs|behaviour)/.*||the model uses neither tabs nor behaviour"
    "tarnix/bom/tabs|tarnix/bom/behaviour/.*||tabs may use the model alone"
    "tarnix/(bom|properties|helpdesk|commands|settings)|tarnix/addin/.*|tarnix/addin/state.h|no command knows addin/ beyond app and ui"
    "tarnix/commands|tarnix/(bom|properties|settings|helpdesk)/.*|tarnix/settings/web_addresses.h|the small commands need the platform, text/ and the addresses of their pages"
    "tarnix/helpdesk|tarnix/(bom|properties|commands)/.*||the helpdesk has nothing to do with the design"
    "tarnix|parts/.*||the add-in knows the published API alone"
    "host|(tarnix|parts|workbench|tests|bench)/.*||the host knows nothing of an add-in"
    "host/include|host/.*||the public API shows no implementation"
    "host/base|host/(design|import|cloud|ui|application|session)/.*||base/ is the first step of the host's ladder"
    "host/design|host/(import|cloud|ui|application|session)/.*||design/ knows base/ alone"
    "host/import|host/(cloud|ui|application|session)/.*||import/ knows base/ and design/ alone"
    "host/cloud|host/(ui|application|session)/.*||cloud/ knows nothing of the screen"
    "host/ui|host/(application|session)/.*||ui/ knows neither the application nor the user"
    "host/application|host/session/.*||the application does not know who uses it"
    "parts|(tarnix|workbench|tests|bench)/.*||parts/ knows plain designs and nothing that shows or reads them"
    "parts|host/.*|host/base/base64.h,host/design/design_data.h,host/design/shape_invariants.h,host/design/shape_data.h,host/design/transform.h|parts/ knows plain designs and nothing that shows or reads them"
    "parts|(Core|Fusion)/.*||parts/ knows plain designs and nothing that shows or reads them"
    "workbench/cli|workbench/(commands|serve|dialogs|output)/.*|workbench/cli/main.cpp|cli/ serves the others, only the program lists the commands"
    "workbench/output|workbench/(commands|serve|dialogs)/.*||output/ writes what it is given"
    "workbench/dialogs|workbench/(commands|serve)/.*||dialogs/ does not know which command asks for it"
    "workbench/serve|workbench/(commands|dialogs)/.*||serve/ knows no add-in in particular"
    "workbench|(tarnix|tests|bench)/.*||the workbench reaches the add-in as a module alone"
    "workbench|host/.*|host/session/,host/base/folder_lock.h,host/base/utf8_path.h,host/design/atomic_file.h,host/design/design_data.h,host/design/design_file.h,host/design/design_measures.h,host/design/reading_error.h,host/design/reading_limits.h,host/design/reading_warning.h,host/design/shape_data.h,host/import/content_hash.h,host/import/design_source.h,host/import/file_check.h,host/import/read_design.h,host/import/read_shapes.h,host/import/read_tree.h,host/import/reading_cache.h|the workbench talks to the session, and to plain designs, files and paths")

set(violations 0)

function(check_file file)
    file(RELATIVE_PATH name ${ROOT} ${file})
    file(STRINGS ${file} lines REGEX "^ *#")
    foreach(line IN LISTS lines)
        if(line MATCHES "^ *# *include *[<\"]([^>\"]+)[>\"]")
            set(included ${CMAKE_MATCH_1})
            foreach(rule IN LISTS rules)
                # The forbidden part holds "|" itself: the first field and the last two are cut off.
                string(REGEX MATCH "^([^|(]*(\\([^)]*\\))?[^|]*)\\|(.*)\\|([^|]*)\\|([^|]*)$" _ "${rule}")
                set(folder ${CMAKE_MATCH_1})
                set(forbidden ${CMAKE_MATCH_3})
                set(exception "${CMAKE_MATCH_4}")
                set(reason ${CMAKE_MATCH_5})
                if(NOT name MATCHES "^${folder}/" OR NOT included MATCHES "^(${forbidden})$")
                    continue()
                endif()
                string(REPLACE "," ";" exceptions "${exception}")
                set(excepted FALSE)
                foreach(each IN LISTS exceptions)
                    string(FIND "${name}" "${each}" in_file)
                    string(FIND "${included}" "${each}" in_include)
                    if(in_file GREATER -1 OR in_include GREATER -1)
                        set(excepted TRUE)
                    endif()
                endforeach()
                if(excepted)
                    continue()
                endif()
                message("${name}: includes ${included}: ${reason}")
                math(EXPR violations "${violations} + 1")
            endforeach()
        elseif(line MATCHES "^ *# *(if|ifdef|ifndef)[ (]" AND name MATCHES "^tarnix/"
               AND NOT name MATCHES "^tarnix/platform/")
            message("${name}: '${line}': the systems differ in platform/ alone")
            math(EXPR violations "${violations} + 1")
        endif()
    endforeach()
    if(name MATCHES "^host/")
        file(STRINGS ${file} named REGEX "QEMA_|QM_TX_|QM_HD_|[Tt]arnix")
        foreach(line IN LISTS named)
            message("${name}: '${line}': the host knows nothing of an add-in")
            math(EXPR violations "${violations} + 1")
        endforeach()
    endif()
    if(name MATCHES "^workbench/serve/")
        file(STRINGS ${file} named REGEX "QEMA_|QM_TX_|QM_HD_")
        foreach(line IN LISTS named)
            message("${name}: '${line}': serve/ knows no add-in in particular")
            math(EXPR violations "${violations} + 1")
        endforeach()
    endif()
    set(violations ${violations} PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE files ${ROOT}/tarnix/*.h ${ROOT}/tarnix/*.cpp ${ROOT}/host/*.h ${ROOT}/host/*.cpp
     ${ROOT}/parts/*.h ${ROOT}/parts/*.cpp ${ROOT}/workbench/*.h ${ROOT}/workbench/*.cpp)
list(LENGTH files count)
if(count EQUAL 0)
    message(FATAL_ERROR "no sources below ${ROOT}")
endif()
foreach(file IN LISTS files)
    check_file(${file})
endforeach()
if(violations GREATER 0)
    message(FATAL_ERROR "${violations} violations in ${count} files")
endif()
message("${count} files keep the layers")
