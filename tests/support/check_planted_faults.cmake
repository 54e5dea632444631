# Runs the tests that have to fail, and fails itself when one passes or fails for something else. What they
# print is shown then alone: a run of the suite that counts failures would count theirs.
#
#   cmake -DPROGRAM="<emulator;>program" -P check_planted_faults.cmake
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE result)

function(expect count what)
    string(REGEX MATCHALL "${what}" found "${output}")
    list(LENGTH found number)
    if(NOT number EQUAL count)
        message(FATAL_ERROR "'${what}' is there ${number} times and not ${count}:\n${output}\n${errors}")
    endif()
endfunction()

if(NOT result EQUAL 1)
    message(FATAL_ERROR "ended with ${result} and not with 1:\n${output}\n${errors}")
endif()
expect(1 "4 FAILED TESTS")
expect(3 "misused, and not named by the test")
expect(1 "thrown, and not named by the test")
