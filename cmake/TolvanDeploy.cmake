# tolvan_deploy(TARGET)
#
# Copies what the program TARGET needs at run time beside it, after each build: this library and the companion logger; on
# Windows also the libraries of Qt, QuaZip, zlib and the compiler, and Qt's plug-ins for windows, styles and SVG images. On
# Unix these come from the system. Works in a cross build too.
function(tolvan_deploy target)
    set(beside "$<TARGET_FILE_DIR:${target}>")
    set(name "$<TARGET_FILE_NAME:Tolvan::UtilsDllTrelioFrame>")
    if(NOT WIN32)
        set(name "$<TARGET_SONAME_FILE_NAME:Tolvan::UtilsDllTrelioFrame>")
    endif()
    add_custom_command(TARGET ${target} POST_BUILD VERBATIM
        COMMAND ${CMAKE_COMMAND} -E copy_if_different "$<TARGET_FILE:Tolvan::UtilsDllTrelioFrame>"
            "${beside}/${name}"
        COMMAND ${CMAKE_COMMAND} -E copy_if_different
            "${UtilsDllTrelioFrame_LOGGER_DIR}/LoggerDllTrelioFrame.dll" "${beside}/")
    if(WIN32)
        _tolvan_deploy_windows(${target} "${beside}")
    else()
        set_property(TARGET ${target} APPEND PROPERTY BUILD_RPATH "$ORIGIN")
    endif()
endfunction()

# The first of these folders that has the file: the release itself, then the Windows build of Qt.
function(_tolvan_find_run_time result file)
    get_target_property(qt_core Qt5::Core IMPORTED_LOCATION_RELEASE)
    get_filename_component(qt_bin "${qt_core}" DIRECTORY)
    foreach(folder "${UtilsDllTrelioFrame_PREFIX}/bin" "${UtilsDllTrelioFrame_PREFIX}" "${qt_bin}" "${qt_bin}/..")
        if(EXISTS "${folder}/${file}")
            set(${result} "${folder}/${file}" PARENT_SCOPE)
            return()
        endif()
    endforeach()
    message(FATAL_ERROR "tolvan_deploy: ${file} is neither in the package nor beside Qt")
endfunction()

function(_tolvan_deploy_windows target beside)
    foreach(library Qt5Core Qt5Gui Qt5Widgets Qt5Network Qt5Xml Qt5Svg quazipTrelioFrame zlib1
            libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
        _tolvan_find_run_time(file "${library}.dll")
        add_custom_command(TARGET ${target} POST_BUILD VERBATIM
            COMMAND ${CMAKE_COMMAND} -E copy_if_different "${file}" "${beside}/")
    endforeach()
    foreach(plugin platforms/qwindows styles/qwindowsvistastyle imageformats/qsvg imageformats/qjpeg iconengines/qsvgicon)
        get_filename_component(folder "${plugin}" DIRECTORY)
        _tolvan_find_run_time(file "plugins/${plugin}.dll")
        add_custom_command(TARGET ${target} POST_BUILD VERBATIM
            COMMAND ${CMAKE_COMMAND} -E make_directory "${beside}/${folder}"
            COMMAND ${CMAKE_COMMAND} -E copy_if_different "${file}" "${beside}/${folder}/")
    endforeach()
endfunction()
