# A header for each class, as the vendor's manual has them, for sources that include classes one by
# one.
#
#   make_class_headers(INCLUDE folder LIST file OUTPUT folder)
#
# Each line of LIST is a path such as "Core/Application/Application.h". A header of two lines is made
# there below OUTPUT; it includes the header in INCLUDE/Core or INCLUDE/Fusion that declares the class.
# Lines and classes have to correspond.

# The classes that a header declares: those that begin a line and are neither templates nor only named.
function(classes_of header result)
    file(READ ${header} text)
    string(REPLACE ";" "," text "${text}")
    string(REGEX REPLACE "template <[^\n]*>\nclass" "template" text "${text}")
    string(REGEX MATCHALL "\nclass [A-Za-z0-9]+ [^\n,]*{" lines "${text}")
    list(TRANSFORM lines REPLACE "\nclass ([A-Za-z0-9]+) .*" "\\1")
    set(${result} ${lines} PARENT_SCOPE)
endfunction()

function(make_class_headers)
    cmake_parse_arguments(PARSE_ARGV 0 HEADERS "" "INCLUDE;LIST;OUTPUT" "")
    file(STRINGS ${HEADERS_LIST} paths REGEX "^[A-Z]")
    set(faults "")
    foreach(path IN LISTS paths)
        get_filename_component(class ${path} NAME_WE)
        set(path_of_${class} ${path})
    endforeach()
    file(GLOB headers RELATIVE ${HEADERS_INCLUDE} ${HEADERS_INCLUDE}/Core/*.h ${HEADERS_INCLUDE}/Fusion/*.h)
    foreach(header IN LISTS headers)
        classes_of(${HEADERS_INCLUDE}/${header} classes)
        foreach(class IN LISTS classes)
            if(NOT DEFINED path_of_${class})
                string(APPEND faults "\n  ${header}: the class ${class} has no line")
                continue()
            endif()
            list(REMOVE_ITEM paths ${path_of_${class}})
            file(CONFIGURE OUTPUT ${HEADERS_OUTPUT}/${path_of_${class}}
                 CONTENT "#pragma once\n#include <${header}>\n" @ONLY)
        endforeach()
        if(NOT CMAKE_SCRIPT_MODE_FILE)
            set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${HEADERS_INCLUDE}/${header})
        endif()
    endforeach()
    foreach(path IN LISTS paths)
        string(APPEND faults "\n  ${path}: no header declares this class, or another line has it already")
    endforeach()
    if(NOT CMAKE_SCRIPT_MODE_FILE)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${HEADERS_LIST})
    endif()
    if(faults)
        message(FATAL_ERROR "${HEADERS_LIST} and the classes differ:${faults}")
    endif()
endfunction()
