# Installs the library in two components: "runtime" is what a host needs to run, "development" what a module needs to be
# built. find_package(UtilsDllTrelioFrame) gives the target Tolvan::UtilsDllTrelioFrame and the function tolvan_deploy.
include(CMakePackageConfigHelpers)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/UtilsDllTrelioFrame")

install(TARGETS UtilsDllTrelioFrame EXPORT UtilsDllTrelioFrameTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
# The library looks for the logger beside itself first, on every platform.
set(UTILSDLL_LOGGER_DIR "${CMAKE_INSTALL_LIBDIR}")
if(WIN32)
    set(UTILSDLL_LOGGER_DIR "${CMAKE_INSTALL_BINDIR}")
endif()
install(TARGETS LoggerDllTrelioFrame LIBRARY DESTINATION "${UTILSDLL_LOGGER_DIR}" COMPONENT runtime)

get_property(public_headers GLOBAL PROPERTY TOLVAN_PUBLIC_HEADERS)
foreach(header IN LISTS public_headers)
    get_filename_component(folder "${header}" DIRECTORY)
    install(FILES "ExPluginShell/modules/utilsDll/${header}" COMPONENT development
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/utilsDll/${folder}")
endforeach()

install(EXPORT UtilsDllTrelioFrameTargets NAMESPACE Tolvan:: DESTINATION ${package_dir} COMPONENT development)
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
    "${CMAKE_CURRENT_LIST_DIR}/TolvanDeploy.cmake"
    DESTINATION ${package_dir} COMPONENT development)
if(NOT WIN32)
    file(RELATIVE_PATH PKG_CONFIG_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    configure_file("${CMAKE_CURRENT_LIST_DIR}/UtilsDllTrelioFrame.pc.in"
        "${PROJECT_BINARY_DIR}/package/UtilsDllTrelioFrame.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/package/UtilsDllTrelioFrame.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endif()

install(FILES "${PROJECT_SOURCE_DIR}/THIRD-PARTY.md"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/UtilsDllTrelioFrame" COMPONENT runtime)
if(UTILSDLL_LICENCES)
    install(CODE "
        set(DESTINATION \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/doc/UtilsDllTrelioFrame/licences\")
        set(WINDOWS \"${WIN32}\")
        set(SDK \"${WIN64_SDK_DIR}\")
        include(\"${CMAKE_CURRENT_LIST_DIR}/InstallLicences.cmake\")" COMPONENT runtime)
endif()

if(PROJECT_IS_TOP_LEVEL)
    include(DebianPackages)
endif()
