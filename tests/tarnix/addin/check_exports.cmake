# The module exports its two entry points and nothing else.
#
#   cmake -DMODULE=<Tarnix.dll> -DTOOL=<nm, or objdump for a Windows module> -P check_exports.cmake
cmake_minimum_required(VERSION 3.25)

if(TOOL MATCHES "objdump")
    execute_process(COMMAND ${TOOL} -p ${MODULE} OUTPUT_VARIABLE all COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ".*\\[Ordinal/Name Pointer\\] Table[^\n]*\n" "" all "${all}")
    string(REGEX REPLACE "\n\n.*" "" all "${all}")
else()
    execute_process(COMMAND ${TOOL} -D --defined-only ${MODULE} OUTPUT_VARIABLE all
                    COMMAND_ERROR_IS_FATAL ANY)
endif()
string(REGEX MATCHALL "[^ \n]+\n" names "${all}\n")
list(TRANSFORM names STRIP)
list(SORT names)
if(NOT names STREQUAL "run;stop")
    message(FATAL_ERROR "exported: ${names}; expected: run;stop")
endif()
