# Nothing is linked that the notices do not name.
#
#   cmake -DMODULE=<Tarnix.dll> -DNOTICES=<THIRD-PARTY-NOTICES.txt> -P check_notices.cmake
cmake_minimum_required(VERSION 3.25)

find_program(readelf readelf REQUIRED)
execute_process(COMMAND ${readelf} --dynamic --wide ${MODULE} OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
# A bracket would keep a list together.
string(REPLACE "[" "<" dynamic "${dynamic}")
string(REGEX MATCHALL "Shared library: <lib[a-z+]+" linked "${dynamic}")
list(TRANSFORM linked REPLACE "^Shared library: <" "")
file(READ ${NOTICES} notices)
# The C library is named in words; the stand-in host is ours.
list(REMOVE_ITEM linked libstandinhost libc libm)
foreach(library IN LISTS linked)
    string(FIND "${notices}" "${library}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "${NOTICES} does not name ${library}")
    endif()
endforeach()
list(LENGTH linked count)
if(count LESS 5)
    message(FATAL_ERROR "${MODULE}: only these libraries were found: ${linked}")
endif()
message("the notices name ${linked}")
