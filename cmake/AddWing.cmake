# tolvan_add_wing([IN_ORDER] [KNOWS wing...] [UNITS name...] [PUBLIC name...] [UMBRELLAS name...])
#
# Adds the units of the wing in the current folder to the library. This call is the only place where a unit is named: the
# installed headers are taken from it, and tests/checks/house.py reads it for the include rules and for the table in the
# README of the library.
#   UNITS      units whose header NAME.h lies in the library's top folder (then it is public) or here (then it is
#              internal), or which have no header
#   PUBLIC     units whose public header NAME.h, or forwarding header NAME, lies here
#   UMBRELLAS  public headers of the top folder that only include others; the library itself does not include them
#   KNOWS      the wings whose units may be included here, besides this one
#   IN_ORDER   a unit of this wing may include only units named before it
# A unit's source is NAME.cpp, or NAME_win.cpp and NAME_unix.cpp; it may also be a header alone. A file that belongs to no
# named unit is an error, and so is a name without a file.
function(tolvan_add_wing)
    cmake_parse_arguments(arg "IN_ORDER" "" "KNOWS;UNITS;PUBLIC;UMBRELLAS" ${ARGN})
    get_filename_component(wing "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    get_filename_component(library "${CMAKE_CURRENT_SOURCE_DIR}" DIRECTORY)
    set(named "")
    foreach(unit IN LISTS arg_UNITS arg_PUBLIC arg_UMBRELLAS)
        set(files "")
        foreach(suffix "" .h .cpp _win.cpp _unix.cpp)
            if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${unit}${suffix}")
                list(APPEND files "${unit}${suffix}")
            endif()
        endforeach()
        list(APPEND named ${files})
        if(unit IN_LIST arg_PUBLIC)
            foreach(header "${unit}.h" "${unit}")
                if(header IN_LIST files)
                    set_property(GLOBAL APPEND PROPERTY TOLVAN_PUBLIC_HEADERS "${wing}/${header}")
                endif()
            endforeach()
        elseif(EXISTS "${library}/${unit}.h")
            target_sources(UtilsDllObjects PRIVATE "${library}/${unit}.h")
            set_property(GLOBAL APPEND PROPERTY TOLVAN_PUBLIC_HEADERS "${unit}.h")
        elseif(NOT files)
            message(FATAL_ERROR "${wing}: the unit ${unit} has no file")
        endif()
        if(WIN32)
            list(FILTER files EXCLUDE REGEX "_unix\\.cpp$")
        else()
            list(FILTER files EXCLUDE REGEX "_win\\.cpp$")
        endif()
        list(TRANSFORM files PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
        target_sources(UtilsDllObjects PRIVATE ${files})
    endforeach()

    file(GLOB present RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" CONFIGURE_DEPENDS "*.h" "*.cpp")
    list(REMOVE_ITEM present ${named})
    if(present)
        message(FATAL_ERROR "${wing}: no unit is named for ${present}; see ${CMAKE_CURRENT_SOURCE_DIR}/CMakeLists.txt")
    endif()
endfunction()
