# The workbench, installed: program, STEP reader and add-in in one folder that can be moved, with the
# samples, the documents, the man page and the completions.
#
# On Linux the programs are in lib/tarnix, because the program looks for the add-in beside its own
# folder; bin/ has a link to it.
if(WIN32)
    set(home .)
    set(documents doc)
    set(samples samples)
else()
    set(home lib/tarnix)
    set(documents share/doc/tarnix-workbench)
    set(samples share/tarnix/samples)
endif()

# Found beside the program. The module is loaded into a process that has the host already.
set_target_properties(tarnix_workbench PROPERTIES INSTALL_RPATH $ORIGIN)
install(TARGETS tarnix_workbench host
        RUNTIME DESTINATION ${home}/bin COMPONENT workbench
        LIBRARY DESTINATION ${home}/bin COMPONENT workbench
        ARCHIVE EXCLUDE_FROM_ALL DESTINATION lib COMPONENT development)
install_addin(${home} COMPONENT workbench)
install(FILES ${PROJECT_SOURCE_DIR}/samples/camera-slider.step
              ${PROJECT_SOURCE_DIR}/samples/planetary-gearbox.step
        DESTINATION ${samples} COMPONENT workbench)
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
              ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
        DESTINATION ${documents} COMPONENT workbench)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
        DESTINATION ${documents} COMPONENT workbench RENAME copyright)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${documents} COMPONENT workbench)

add_custom_target(installable DEPENDS tarnix_workbench tarnix_module)
if(WIN32)
    foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${library}
                DESTINATION ${home}/bin COMPONENT workbench OPTIONAL)
    endforeach()
    return()
endif()

install(TARGETS step_reader RUNTIME DESTINATION ${home}/bin COMPONENT workbench)
set(generated ${PROJECT_BINARY_DIR}/generated)
file(MAKE_DIRECTORY ${generated})
file(CREATE_LINK ../${home}/bin/tarnix-workbench ${generated}/tarnix-workbench SYMBOLIC)
install(FILES ${generated}/tarnix-workbench DESTINATION bin COMPONENT workbench)
install(PROGRAMS ${PROJECT_SOURCE_DIR}/packaging/list-assemblies
        DESTINATION share/tarnix COMPONENT workbench)

add_custom_command(
    OUTPUT ${generated}/tarnix-workbench.1 ${generated}/tarnix-workbench.bash
           ${generated}/_tarnix-workbench ${generated}/tarnix-workbench.fish
    COMMAND tarnix_workbench manual --output ${generated}/tarnix-workbench.1
    COMMAND tarnix_workbench completion bash --output ${generated}/tarnix-workbench.bash
    COMMAND tarnix_workbench completion zsh --output ${generated}/_tarnix-workbench
    COMMAND tarnix_workbench completion fish --output ${generated}/tarnix-workbench.fish
    DEPENDS tarnix_workbench
    COMMENT "Man page and completions" VERBATIM)
add_custom_target(workbench_documents ALL DEPENDS ${generated}/tarnix-workbench.1)
add_dependencies(installable workbench_documents)
install(FILES ${generated}/tarnix-workbench.1 DESTINATION share/man/man1 COMPONENT workbench)
install(FILES ${generated}/tarnix-workbench.bash DESTINATION share/bash-completion/completions
        COMPONENT workbench RENAME tarnix-workbench)
install(FILES ${generated}/_tarnix-workbench DESTINATION share/zsh/vendor-completions
        COMPONENT workbench)
install(FILES ${generated}/tarnix-workbench.fish DESTINATION share/fish/vendor_completions.d
        COMPONENT workbench)

# Which component is packed, and under which name, depends on the kind of package.
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/PackageKind.cmake)
set(CPACK_WORKBENCH_PROJECTS "${PROJECT_BINARY_DIR};Tarnix;workbench;/")
set(CPACK_WORKBENCH_NAME tarnix-workbench)
set(CPACK_PACKAGE_VENDOR "The Tarnix authors")
if(NOT TARNIX_SANITIZE)
    # The leak checker knows the one intended leak by a function's name.
    set(CPACK_STRIP_FILES ON)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Tarnix authors <tarnix@tarnix.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# The locale that the add-in opens local files in, and what opens files and addresses.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "locales, xdg-utils")
