# Installs the CMake package: find_package(UtilsDllTrelioFrame) gives Tolvan::UtilsDllTrelioFrame.
include(CMakePackageConfigHelpers)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/UtilsDllTrelioFrame")

install(TARGETS UtilsDllTrelioFrame EXPORT UtilsDllTrelioFrameTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
get_property(public_headers GLOBAL PROPERTY TOLVAN_PUBLIC_HEADERS)
foreach(header IN LISTS public_headers)
    get_filename_component(folder "${header}" DIRECTORY)
    install(FILES "ExPluginShell/modules/utilsDll/${header}"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/utilsDll/${folder}")
endforeach()
install(EXPORT UtilsDllTrelioFrameTargets NAMESPACE Tolvan:: DESTINATION ${package_dir})

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/UtilsDllTrelioFrameConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/package/UtilsDllTrelioFrameConfig.cmake"
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/package/UtilsDllTrelioFrameConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/package/UtilsDllTrelioFrameConfig.cmake"
    "${PROJECT_BINARY_DIR}/package/UtilsDllTrelioFrameConfigVersion.cmake"
    DESTINATION ${package_dir})
if(TARGET LoggerDllTrelioFrame)
    # Looked for beside the library first, so it is installed there on every platform.
    install(TARGETS LoggerDllTrelioFrame LIBRARY
        DESTINATION $<IF:$<BOOL:${WIN32}>,${CMAKE_INSTALL_BINDIR},${CMAKE_INSTALL_LIBDIR}>)
endif()
