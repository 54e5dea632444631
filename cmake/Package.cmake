# What is installed and packed.
#
#   cmake --install <build>                     the workbench as a tree that can be moved (Workbench.cmake)
#   cmake --install <build> --component addin   the folder `Tarnix/` that a designer puts into Fusion
#   cpack                                       that folder as a zip
#   cpack -G DEB, cpack -G TGZ                  the workbench as a Debian package, as an archive
set(addin_source ${PROJECT_SOURCE_DIR}/tarnix)

# The folder of the add-in below `place`. It is the same for Fusion and for the stand-in host.
function(install_addin place)
    get_target_property(delivered_files tarnix_module DELIVERED_FILES)
    install(TARGETS tarnix_module LIBRARY DESTINATION ${place}/Tarnix ${ARGN})
    install(FILES ${PROJECT_BINARY_DIR}/Tarnix/Tarnix.manifest ${delivered_files}
            DESTINATION ${place}/Tarnix ${ARGN})
    install(DIRECTORY ${addin_source}/Resources DESTINATION ${place}/Tarnix ${ARGN})
endfunction()

install_addin(. COMPONENT addin EXCLUDE_FROM_ALL)

if(TARNIX_FUSION_SDK)
    set(package_host fusion)
elseif(WIN32)
    set(package_host standin-windows)
else()
    set(package_host standin-linux)
endif()
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME Tarnix-${PROJECT_VERSION}-${package_host})
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};Tarnix;addin;/")
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_VERBATIM_VARIABLES ON)
if(NOT TARNIX_FUSION_SDK)
    include(Workbench)
endif()
include(CPack)
