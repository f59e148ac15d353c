# Four Debian packages, the library's named after its soname. cpack makes them in a build for /usr, which the preset
# "package" configures: made of another one, the files would lie where nothing finds them.
set(CPACK_GENERATOR DEB)
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_SOURCE_DIR}/RefuseOtherPrefix.cmake")
    include(CPack)
    return()
endif()
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL library dev tools doc)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")

set(source_name orderparamtable-mini)
set(library_package liborderparamtable-mini${PROJECT_VERSION_MAJOR})
set(dev_package liborderparamtable-mini-dev)
set(tools_package orderparamtable-mini-tools)
set(doc_package orderparamtable-mini-doc)
set(debian_revision 1)
set(debian_version "${PROJECT_VERSION}-${debian_revision}")

set(CPACK_PACKAGE_NAME ${source_name})
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "Order Panel Team <orderpanel@example.org>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${debian_revision})
set(CPACK_DEBIAN_PACKAGE_SOURCE ${source_name})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")

file(STRINGS debian/changelog latest_change LIMIT_COUNT 1)
if(NOT latest_change MATCHES "^${source_name} \\(${debian_version}\\) ")
    message(FATAL_ERROR "packaging/debian/changelog does not begin with version ${debian_version}")
endif()
orderparam_compress(debian/changelog changelog.Debian.gz)

# orderparam_package(COMPONENT NAME SECTION SUMMARY): what is particular to one package. Its overrides of lintian carry
# their reasons.
function(orderparam_package component name section summary)
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    file(READ debian/description/common described)
    file(READ debian/description/${component} described_itself)
    set(CPACK_COMPONENT_${key}_DESCRIPTION "${summary}\n${described}\n${described_itself}" PARENT_SCOPE)
    install(FILES debian/copyright "${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component})
    file(READ debian/lintian/common overrides)
    if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/debian/lintian/${component}")
        file(READ debian/lintian/${component} own_overrides)
        string(APPEND overrides "${own_overrides}")
    endif()
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/overrides/${name}" "${overrides}")
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/overrides/${name}"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" COMPONENT ${component})
endfunction()

orderparam_package(library ${library_package} libs "order-parameter tables of a trading client, shared library")
orderparam_package(dev ${dev_package} libdevel "order-parameter tables of a trading client, development files")
orderparam_package(tools ${tools_package} devel "order-parameter tables of a trading client, workbench and replay")
orderparam_package(doc ${doc_package} doc "order-parameter tables of a trading client, documentation")

# Libraries: whoever links one depends on this version or a later one of the same soname.
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/shlibs"
    "libOrderParamTable_mini ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION})\n"
    "liborderparam_reference ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_BINARY_DIR}/shlibs" "${CMAKE_CURRENT_SOURCE_DIR}/debian/triggers")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_MULTIARCH same) # left out by cpack before 3.31, as the others below

set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${library_package} (= ${debian_version}), qtbase5-dev, libboost-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "${doc_package}")
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEV_PACKAGE_MULTIARCH same)

set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${library_package} (= ${debian_version})")
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS fonts-noto-cjk)

set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DOC_PACKAGE_MULTIARCH foreign)

include(CPack)
