# Resource bundles inside a library.
#
# A bundle is described by .qrc files. Its entries are gathered ("staged") in a folder of the build tree that is laid out
# like the bundle, the resource compiler packs them into one binary file, and the assembler takes that file up as it is:
# no compiler ever sees the payload as source text, which would take gigabytes of memory. With UTILSDLL_BUNDLES_BY_RCC, for
# compilers without that assembler, the resource compiler writes the payload into an object file.
#
# Everything here runs on the building machine, so a cross build works in the same way.

find_package(Python3 REQUIRED COMPONENTS Interpreter)
foreach(tool lrelease lconvert lupdate)
    string(TOUPPER ${tool} variable)
    find_program(${variable}_EXECUTABLE NAMES ${tool}-qt${UTILSDLL_QT} ${tool}
        HINTS /usr/lib/qt${UTILSDLL_QT}/bin "${UTILSDLL_QT_TOOLS}" NO_CMAKE_FIND_ROOT_PATH)
    if(NOT ${variable}_EXECUTABLE)
        message(FATAL_ERROR "${tool} of Qt ${UTILSDLL_QT} is missing (Debian packages qttools5-dev-tools, "
            "qt6-l10n-tools): the translations need it")
    endif()
endforeach()

set(TOLVAN_BUNDLE_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}")

# tolvan_stage_copy(BUNDLE RELATIVE-PATH SOURCE-FILE): one entry that is a file already.
function(tolvan_stage_copy bundle path source)
    set(staged "${CMAKE_CURRENT_BINARY_DIR}/${bundle}/${path}")
    add_custom_command(OUTPUT "${staged}" DEPENDS "${source}"
        COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${staged}" VERBATIM)
    set_property(DIRECTORY APPEND PROPERTY TOLVAN_STAGED_${bundle} "${staged}")
endfunction()

# tolvan_stage_made(BUNDLE PATH COMMAND command... [DEPENDS file...]): one entry that a program makes; the
# command is run with the staged file's path as its last argument.
function(tolvan_stage_made bundle path)
    cmake_parse_arguments(arg "" "" "COMMAND;DEPENDS" ${ARGN})
    set(staged "${CMAKE_CURRENT_BINARY_DIR}/${bundle}/${path}")
    get_filename_component(folder "${staged}" DIRECTORY)
    add_custom_command(OUTPUT "${staged}" DEPENDS ${arg_DEPENDS}
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
        COMMAND ${arg_COMMAND} "${staged}"
        COMMENT "Making ${path}" VERBATIM)
    set_property(DIRECTORY APPEND PROPERTY TOLVAN_STAGED_${bundle} "${staged}")
endfunction()

# tolvan_add_bundle(TARGET BUNDLE SYMBOL QRC file... [DEPENDS file...]): packs what was staged for BUNDLE, as the QRC
# files describe it, and adds it to TARGET under the symbols SYMBOLTree, SYMBOLNames and SYMBOLData.
function(tolvan_add_bundle target bundle symbol)
    cmake_parse_arguments(arg "" "" "QRC;DEPENDS" ${ARGN})
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${bundle}")
    get_property(entries DIRECTORY PROPERTY TOLVAN_STAGED_${bundle})
    # The resource compiler looks for entries beside the description.
    set(descriptions)
    foreach(qrc IN LISTS arg_QRC)
        get_filename_component(name "${qrc}" NAME)
        if(NOT qrc STREQUAL "${folder}/${name}")
            add_custom_command(OUTPUT "${folder}/${name}" DEPENDS "${qrc}"
                COMMAND "${CMAKE_COMMAND}" -E copy "${qrc}" "${folder}/${name}" VERBATIM)
        endif()
        list(APPEND descriptions "${folder}/${name}")
    endforeach()
    # An entry is stored compressed where that saves a quarter of it (the resource compiler's own limit is 70 percent).
    set(packing --format-version 1 --compress-algo zlib --compress 9 --threshold 25)
    if(UTILSDLL_BUNDLES_BY_RCC)
        _tolvan_fill_object(${bundle} ${symbol} "${packing}" "${descriptions}" ${entries} ${arg_DEPENDS})
        return()
    endif()
    set(packed "${CMAKE_CURRENT_BINARY_DIR}/${bundle}.rcc")
    add_custom_command(OUTPUT "${packed}" DEPENDS ${descriptions} ${entries} ${arg_DEPENDS}
        COMMAND Qt${UTILSDLL_QT}::rcc --binary ${packing} -o "${packed}" ${descriptions}
        COMMENT "Packing the ${bundle} bundle" VERBATIM)
    set(assembly "${CMAKE_CURRENT_BINARY_DIR}/${bundle}.S")
    add_custom_command(OUTPUT "${assembly}" DEPENDS "${packed}" "${TOLVAN_BUNDLE_SCRIPTS}/EmbedBundle.cmake"
        COMMAND "${CMAKE_COMMAND}" "-DPACKED=${packed}" "-DSYMBOL=${symbol}" "-DASSEMBLY=${assembly}" "-DWINDOWS=${WIN32}"
            -P "${TOLVAN_BUNDLE_SCRIPTS}/EmbedBundle.cmake" VERBATIM)
    set_source_files_properties("${assembly}" PROPERTIES OBJECT_DEPENDS "${packed}")
    target_sources(${target} PRIVATE "${assembly}")
endfunction()

# The first pass of the resource compiler makes a source with a place for the payload, the second one fills that place in the
# object file. The object files are listed in the global property TOLVAN_BUNDLE_OBJECTS.
function(_tolvan_fill_object bundle symbol packing descriptions)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${bundle}_bundle.cpp")
    add_custom_command(OUTPUT "${source}" DEPENDS ${descriptions} ${ARGN}
        COMMAND Qt${UTILSDLL_QT}::rcc ${packing} --name ${symbol} --pass 1 -o "${source}" ${descriptions}
        COMMENT "Packing the ${bundle} bundle" VERBATIM)
    add_library(${symbol} OBJECT "${source}")
    target_link_libraries(${symbol} PRIVATE Qt${UTILSDLL_QT}::Core project_options)
    set_target_properties(${symbol} PROPERTIES
        AUTOMOC OFF POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    set(object "${CMAKE_CURRENT_BINARY_DIR}/${bundle}_bundle${CMAKE_CXX_OUTPUT_EXTENSION}")
    add_custom_command(OUTPUT "${object}" DEPENDS ${symbol} $<TARGET_OBJECTS:${symbol}> ${ARGN}
        COMMAND Qt${UTILSDLL_QT}::rcc ${packing} --name ${symbol} --pass 2 --temp "$<TARGET_OBJECTS:${symbol}>"
            -o "${object}" ${descriptions} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY TOLVAN_BUNDLE_OBJECTS "${object}")
endfunction()
