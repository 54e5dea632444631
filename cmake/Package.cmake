# What a designer installs: the folder `Tarnix/`, laid by `cmake --install <build> --component addin`
# and packed as a zip by `cpack`. It is the same folder for Fusion and for the stand-in host.
set(addin_source ${PROJECT_SOURCE_DIR}/tarnix)

install(TARGETS tarnix_module LIBRARY DESTINATION Tarnix COMPONENT addin)
get_target_property(delivered_files tarnix_module DELIVERED_FILES)
install(FILES ${PROJECT_BINARY_DIR}/Tarnix/Tarnix.manifest ${delivered_files}
        DESTINATION Tarnix COMPONENT addin)
install(DIRECTORY ${addin_source}/Resources DESTINATION Tarnix COMPONENT addin)

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
include(CPack)
