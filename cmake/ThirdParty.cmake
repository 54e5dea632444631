# Libraries of the stand-in host, the workbench and the tests. The add-in uses none of them.
#
# The system's packages serve both platforms: what consists of headers is shared as it is, and
# GoogleTest is built from its packaged sources for Windows. Open CASCADE and libxml2 are native only.
if(CMAKE_CROSSCOMPILING)
    # Only the folders named here may be seen: the system's own headers are not for this compiler.
    set(third_party_include ${PROJECT_BINARY_DIR}/third_party)
    file(MAKE_DIRECTORY ${third_party_include})
    foreach(folder nlohmann rapidjson CLI toml++)
        file(CREATE_LINK /usr/include/${folder} ${third_party_include}/${folder} SYMBOLIC)
    endforeach()
    add_library(json_headers INTERFACE)
    target_include_directories(json_headers SYSTEM INTERFACE ${third_party_include})
    add_library(cli_headers ALIAS json_headers)
    add_library(toml_headers ALIAS json_headers)
    set(BUILD_GMOCK OFF)
    set(INSTALL_GTEST OFF)
    add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
else()
    find_package(nlohmann_json REQUIRED)
    add_library(json_headers ALIAS nlohmann_json::nlohmann_json)
    find_package(CLI11 REQUIRED)
    add_library(cli_headers ALIAS CLI11::CLI11)
    find_path(toml_include toml++/toml.h REQUIRED)
    add_library(toml_headers INTERFACE)
    target_include_directories(toml_headers SYSTEM INTERFACE ${toml_include})
    find_package(GTest REQUIRED)
    find_package(LibXml2 REQUIRED)
    # The packaged library is built with all it supports, on which the layout of its classes depends.
    find_path(HTTPLIB_INCLUDE httplib.h REQUIRED)
    find_library(HTTPLIB_LIBRARY cpp-httplib REQUIRED)
    find_package(Threads REQUIRED)
    add_library(http_library INTERFACE)
    target_include_directories(http_library SYSTEM INTERFACE ${HTTPLIB_INCLUDE})
    target_compile_definitions(http_library INTERFACE CPPHTTPLIB_OPENSSL_SUPPORT CPPHTTPLIB_ZLIB_SUPPORT CPPHTTPLIB_BROTLI_SUPPORT)
    target_link_libraries(http_library INTERFACE ${HTTPLIB_LIBRARY} Threads::Threads)
endif()

# The compiler's runtime lies beside the Windows programs: all of them and the module share it.
if(MINGW)
    file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
                        OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
        file(COPY_FILE ${found} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${library} ONLY_IF_DIFFERENT)
    endforeach()
endif()
