# Read by cpack.
if(NOT CPACK_PACKAGING_INSTALL_PREFIX STREQUAL "/usr")
    message(FATAL_ERROR "Packages are made of a build for /usr: cmake --workflow --preset package")
endif()
