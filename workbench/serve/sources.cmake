# The host as a page in the browser, for `workbench_core`. Included: the embedded files are sources of that library.

# What is served from the program itself: the built page, which is committed, and the pages of palettes.
function(embed_files function root)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${function}.cpp)
    set(embed ${CMAKE_CURRENT_SOURCE_DIR}/serve/embed_files.cmake)
    list(JOIN ARGN "|" files)
    add_custom_command(
        OUTPUT ${source}
        COMMAND ${CMAKE_COMMAND} -D FUNCTION=${function} -D ROOT=${root} -D FILES=${files} -D SOURCE=${source} -P ${embed}
        DEPENDS ${ARGN} ${embed}
        COMMENT "Embedding ${function}" VERBATIM)
    # In a batch the two would have names in common.
    set_source_files_properties(${source} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    target_sources(workbench_core PRIVATE ${source})
endfunction()
file(GLOB page CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/web/dist/host.*)
file(GLOB_RECURSE site CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/site/*)
embed_files(pageFiles ${PROJECT_SOURCE_DIR}/web/dist ${page})
embed_files(siteFiles ${PROJECT_SOURCE_DIR}/site ${site})

target_sources(workbench_core PRIVATE
    cli/${system}/stop_signals.cpp
    serve/action.cpp serve/addin_pictures.cpp serve/changes.cpp serve/connection_threads.cpp serve/data_folder.cpp
    serve/design_digest.cpp serve/event_log.cpp serve/event_stream.cpp serve/http_server.cpp serve/limited_server.cpp
    serve/main_queue.cpp serve/model_bytes.cpp serve/pages.cpp serve/${system}/connection_stream.cpp serve/${system}/open_connections.cpp
    serve/palette_pages.cpp serve/request_guard.cpp serve/serve.cpp serve/served_host.cpp
    serve/served_questions.cpp serve/served_state.cpp serve/state_json.cpp)
# The HTTP library's header has macros of its own.
set_source_files_properties(serve/connection_threads.cpp serve/http_server.cpp serve/limited_server.cpp
                            serve/${system}/connection_stream.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
target_compile_definitions(workbench_core PRIVATE TARNIX_SITE="${TARNIX_SITE}")
target_link_libraries(workbench_core PRIVATE http_library)
