# The web addresses that CMake accepts, and what it says of others.
#
#   cmake -DROOT=<root of the sources> -P check_web_addresses.cmake
cmake_minimum_required(VERSION 3.25)

function(expect name value words)
    execute_process(COMMAND ${CMAKE_COMMAND} "-D${name}=${value}" ${ARGN}
                            -P ${ROOT}/cmake/WebAddresses.cmake
                    RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
    string(REGEX REPLACE "[ \n]+" " " said "${said}")
    if(words STREQUAL "")
        if(NOT status EQUAL 0 OR NOT said STREQUAL "")
            message(FATAL_ERROR "${name}=${value} is not accepted: ${said}")
        endif()
    else()
        string(FIND "${said}" "${words}" place)
        if(place EQUAL -1)
            message(FATAL_ERROR "${name}=${value}: expected \"${words}\", got \"${said}\"")
        endif()
    endif()
endfunction()

set(form "but must be a web address without spaces")
set(ends "but must begin with http:// and end without a slash")
expect(TARNIX_SITE "http://tools.maker.com/tarnix" "")
expect(TARNIX_SITE "http://localhost:8000" "" -DTARNIX_FUSION_SDK=/sdk -DTARNIX_SUPPORT_PROVIDER=http://a.com)
expect(TARNIX_SITE "http://tools.maker.com/" "${ends}")
expect(TARNIX_SITE "https://tools.maker.com" "${ends}")
expect(TARNIX_SITE "tools.maker.com" "${form}")
expect(TARNIX_SITE "http://tools maker.com" "${form}")
expect(TARNIX_SITE "" "${form}")
expect(TARNIX_SUPPORT_PROVIDER "https://help.maker.com/?a=1&b=2" "")
expect(TARNIX_SUPPORT_PROVIDER "http://help.maker.com/\"x" "${form}")
expect(TARNIX_SUPPORT_PROVIDER "http://help.maker.com/" "TARNIX_SITE is \"http://www.tarnix.example\", which no"
       -DTARNIX_FUSION_SDK=/sdk)
message("the web addresses are checked")
