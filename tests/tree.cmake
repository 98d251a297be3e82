# Checks of the package and of the tree; the tools they need run on the building system.
set(package_check "${CMAKE_CURRENT_SOURCE_DIR}/package/check.sh" "${CMAKE_BINARY_DIR}")
if(CMAKE_CROSSCOMPILING)
    list(APPEND package_check "-DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE}" "-DWIN64_SDK_DIR=${WIN64_SDK_DIR}")
endif()
tolvan_register_test(check_package LABELS package TIMEOUT 300 COMMAND ${package_check})
if(NOT CMAKE_CROSSCOMPILING)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    tolvan_register_test(check_floors COMMAND
        Python3::Interpreter "${CMAKE_CURRENT_SOURCE_DIR}/checks/floors.py"
        "${CMAKE_SOURCE_DIR}/ExPluginShell/modules/utilsDll")
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_BUILD_TYPE STREQUAL "Release")
        # After a wanted change: exported_symbols.py LIBRARY LIST --update
        tolvan_register_test(check_exported_symbols COMMAND
            Python3::Interpreter "${CMAKE_CURRENT_SOURCE_DIR}/checks/exported_symbols.py"
            $<TARGET_FILE:UtilsDllTrelioFrame> "${CMAKE_CURRENT_SOURCE_DIR}/exported-symbols.txt")
    endif()
endif()
