# tolvan_add_version_resource(TARGET DESCRIPTION [VERSION major.minor.build.revision])
#
# Gives a Windows program or library a version resource, by default with the version of the project. Other systems'
# files carry none.
function(tolvan_add_version_resource target description)
    if(NOT WIN32)
        return()
    endif()
    cmake_parse_arguments(arg "" "VERSION" "" ${ARGN})
    if(NOT arg_VERSION)
        set(arg_VERSION ${PROJECT_VERSION})
    endif()
    set(resource_version ${arg_VERSION})
    string(REPLACE "." "," resource_version_words ${arg_VERSION})
    set(resource_description ${description})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
        set(resource_type 1) # VFT_APP
        set(resource_file ${target}.exe)
    else()
        set(resource_type 2) # VFT_DLL
        set(resource_file ${target}.dll)
    endif()
    configure_file(
        ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/VersionResource.rc.in
        ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
endfunction()
