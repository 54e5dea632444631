# The committed icons and images are what the drawings render to: rendered again, each file is the same.
#
#   cmake -DROOT=<folder> -DOUT=<folder to render into> -P check_icons.cmake
#
# Another version of the renderer may shade an edge otherwise, so only the one that made them is asked.
cmake_minimum_required(VERSION 3.25)
set(made_with "2.54")

find_program(renderer rsvg-convert)
if(NOT renderer)
    message("SKIPPED: rsvg-convert is missing (Debian: librsvg2-bin)")
    return()
endif()
execute_process(COMMAND ${renderer} --version OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
if(NOT version MATCHES " ${made_with}\\.")
    message("SKIPPED: made with librsvg ${made_with}, here is ${version}")
    return()
endif()

file(REMOVE_RECURSE ${OUT})
execute_process(COMMAND ${ROOT}/scripts/render-icons ${OUT} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE committed RELATIVE ${ROOT}/tarnix ${ROOT}/tarnix/Resources/*)
file(GLOB_RECURSE rendered RELATIVE ${OUT} ${OUT}/Resources/*)
if(NOT committed STREQUAL rendered)
    message(FATAL_ERROR "other files:\n  committed ${committed}\n  rendered ${rendered}")
endif()
foreach(file IN LISTS committed)
    file(SHA256 ${ROOT}/tarnix/${file} old)
    file(SHA256 ${OUT}/${file} new)
    if(NOT old STREQUAL new)
        message(SEND_ERROR "${file}: the drawing renders to another picture; run scripts/render-icons")
    endif()
endforeach()
list(LENGTH committed count)
message("${count} files rendered again, all the same")
