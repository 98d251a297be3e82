# Compiler settings of every target of this project, on one interface target; nothing is set globally.
add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_17)
if(MSVC) # Visual Studio and clang-cl
    # Sources are UTF-8 without a byte order mark; __cplusplus has the value of the standard.
    target_compile_options(project_options INTERFACE /utf-8 /permissive- /Zc:__cplusplus /EHsc /W4
        $<$<BOOL:${UTILSDLL_WERROR}>:/WX>)
    target_compile_definitions(project_options INTERFACE NOMINMAX _CRT_SECURE_NO_WARNINGS)
else()
    target_compile_options(project_options INTERFACE
        -Wall -Wextra -Wshadow -Wold-style-cast -Wundef -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<BOOL:${UTILSDLL_WERROR}>:-Werror>)
endif()
target_compile_definitions(project_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_URL_CAST_FROM_STRING
    QT_DEPRECATED_WARNINGS_SINCE=0x050000)

# A unique symbol pins a shared library in memory for good; the libraries here have to unload.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
    target_compile_options(project_options INTERFACE -fno-gnu-unique)
endif()

include(Hardening)

if(UTILSDLL_SYMBOLS AND MSVC)
    target_compile_options(project_options INTERFACE /Zi)
    target_link_options(project_options INTERFACE /DEBUG /OPT:REF /OPT:ICF)
elseif(UTILSDLL_SYMBOLS)
    # Symbols for a release, which name no folder of the building machine.
    target_compile_options(project_options INTERFACE -g
        "-ffile-prefix-map=${PROJECT_BINARY_DIR}=build" "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=."
        "$<$<BOOL:${WIN64_SDK_DIR}>:-ffile-prefix-map=${WIN64_SDK_DIR}=win64-sdk>")
endif()

if(UTILSDLL_SANITIZE)
    target_compile_options(project_options INTERFACE
        -fsanitize=${UTILSDLL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(project_options INTERFACE -fsanitize=${UTILSDLL_SANITIZE})
endif()

# tolvan_precompile(TARGET [HEADERS <header>...] [FROM other]): precompiles Qt's headers for TARGET, or takes those
# of another target with the same compiler settings. Sources still include what they use: "strict-clang" builds all but
# the tests without this.
function(tolvan_precompile target)
    cmake_parse_arguments(arg "" "FROM" "HEADERS" ${ARGN})
    if(NOT UTILSDLL_PRECOMPILE)
        return()
    endif()
    if(arg_FROM)
        target_precompile_headers(${target} REUSE_FROM ${arg_FROM})
    else()
        target_precompile_headers(${target} PRIVATE <QtWidgets/QtWidgets> ${arg_HEADERS})
    endif()
endfunction()
