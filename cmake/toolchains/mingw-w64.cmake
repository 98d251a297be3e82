# 64-bit Windows with Debian's cross compiler, against the unpacked archive of Qt, QuaZip and zlib.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The folder is searched (and unpacked) once per build folder; -DWIN64_SDK_DIR=... names another one.
if(NOT WIN64_SDK_DIR)
    execute_process(
        COMMAND ${CMAKE_CURRENT_LIST_DIR}/../../tools/win64/find-sdk.sh
        OUTPUT_VARIABLE WIN64_SDK_DIR OUTPUT_STRIP_TRAILING_WHITESPACE
        RESULT_VARIABLE find_sdk_result)
    if(NOT find_sdk_result EQUAL 0)
        message(FATAL_ERROR "The Windows build of Qt was not found (see above).")
    endif()
    set(WIN64_SDK_DIR "${WIN64_SDK_DIR}" CACHE PATH "Unpacked Windows build of Qt, QuaZip and zlib")
endif()
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES WIN64_SDK_DIR)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${WIN64_SDK_DIR})
list(APPEND CMAKE_PREFIX_PATH ${WIN64_SDK_DIR})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/../../tools/win64/run-test.sh
    --sdk ${WIN64_SDK_DIR} --build ${CMAKE_BINARY_DIR})
