# Runs check_resources.cmake on the planted faults. The two names that differ in case alone are made here:
# a repository that held both could not be checked out on Windows or macOS.
#
#   cmake -DPLANTED=<folder> -DOUT=<scratch folder> -P check_planted_resources.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${OUT})
file(COPY ${PLANTED}/ DESTINATION ${OUT})
file(COPY ${PLANTED}/tarnix/Resources/Whole/16x16.png DESTINATION ${OUT}/tarnix/resources/whole)
execute_process(COMMAND ${CMAKE_COMMAND} -DROOT=${OUT} -DTEXTS=${OUT}/resource_texts.txt
                        -P ${CMAKE_CURRENT_LIST_DIR}/check_resources.cmake
                COMMAND_ERROR_IS_FATAL ANY)
