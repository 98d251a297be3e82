# Protection that the compiler and the linker offer, for every target; tests/checks/hardening.py checks the result. A
# sanitizer has checks of its own that do not go with FORTIFY.
# On Windows mingw's stack protector and FORTIFY would add another run-time library, and its control-flow guard does not exist.
if(MSVC) # address randomisation and data execution prevention are this linker's defaults
    target_compile_options(project_options INTERFACE /guard:cf)
    target_link_options(project_options INTERFACE /guard:cf /HIGHENTROPYVA)
    return()
endif()
if(NOT WIN32)
    target_compile_options(project_options INTERFACE -fstack-protector-strong)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
        target_compile_options(project_options INTERFACE -fcf-protection)
    endif()
    if(NOT UTILSDLL_SANITIZE)
        target_compile_options(project_options INTERFACE $<$<CONFIG:Release>:-U_FORTIFY_SOURCE>
            $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
    endif()
endif()
if(WIN32)
    # No time of linking in the file: two builds of the same sources are the same.
    target_link_options(project_options INTERFACE
        -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va -Wl,--no-insert-timestamp)
else()
    target_link_options(project_options INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
