# Runs a test program of the add-in in a host that does as is documented at every point, and compares what fails
# there with the list of expected differences: a test that fails and is not listed is a fault, and so is one that is
# listed and passes.
#
#   cmake -DPROGRAM=[emulator;]program -DNAME=program -DLIST=differences.txt -P check_differences.cmake
#
# A line of the list is PROGRAM SUITE.TEST POINT, the point being the first that explains it; # begins a comment.
cmake_minimum_required(VERSION 3.25)
file(STRINGS ${LIST} lines REGEX "^${NAME} ")
set(expected "")
foreach(line IN LISTS lines)
    separate_arguments(words UNIX_COMMAND "${line}")
    list(LENGTH words count)
    if(NOT count EQUAL 3)
        message(FATAL_ERROR "${LIST}: expected PROGRAM SUITE.TEST POINT: ${line}")
    endif()
    list(GET words 1 test)
    list(APPEND expected ${test})
endforeach()

set(ENV{TARNIX_TEST_HOST_POINTS} all)
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE status)
# Semicolons and brackets of the output would be those of lists.
string(REGEX REPLACE "[][;]" " " output "${output}")
if(NOT output MATCHES "tests? from [0-9]+ test suites? ran")
    message(FATAL_ERROR "${NAME} ended before all tests ran, with ${status}:\n${output}\n${errors}")
endif()

function(collect result variable)
    string(REGEX MATCHALL " +${result} +[A-Za-z0-9_/]+\\.[A-Za-z0-9_/]+[^\n]* \\([0-9]+ ms\\)" matches "${output}")
    set(names "")
    foreach(match IN LISTS matches)
        string(REGEX REPLACE "^ +${result} +([A-Za-z0-9_/]+\\.[A-Za-z0-9_/]+).*" "\\1" name "${match}")
        list(APPEND names ${name})
    endforeach()
    set(${variable} ${names} PARENT_SCOPE)
endfunction()
collect(FAILED failed)
collect(OK passed)

set(faults 0)
foreach(test IN LISTS failed)
    if(NOT test IN_LIST expected)
        message("${NAME} ${test}: fails in the host as documented, and is not listed")
        math(EXPR faults "${faults} + 1")
    endif()
endforeach()
foreach(test IN LISTS expected)
    if(NOT test IN_LIST failed)
        message("${NAME} ${test}: is listed, and does not fail in the host as documented")
        math(EXPR faults "${faults} + 1")
    endif()
endforeach()
list(LENGTH failed failedCount)
list(LENGTH passed passedCount)
message("${NAME}: ${passedCount} tests pass in the host as documented, ${failedCount} differ")
if(faults GREATER 0)
    message(FATAL_ERROR "${faults} faults; see ${LIST}")
endif()
