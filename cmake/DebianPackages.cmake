# The Debian packages: run time, development and debug symbols. `cpack -G DEB` in the build folder of the preset "package".
set(CPACK_PACKAGE_NAME "utilsdlltrelioframe")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_VENDOR "Tolvan")
set(CPACK_PACKAGE_CONTACT "Tolvan")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "libutilsdlltrelioframe${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# The icons are SVG images: their plug-ins are loaded at run time, no link names them.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt5svg5")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "fonts-noto-cjk")
set(CPACK_DEBIAN_RUNTIME_DEBUGINFO_PACKAGE ON)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "libutilsdlltrelioframe-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "libutilsdlltrelioframe${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), qtbase5-dev")
include(CPack)
