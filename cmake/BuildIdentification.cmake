# The build's own identification strings, as the start-up lines of the log give them. A release build sets them.
set(UTILSDLL_PRODUCT_VERSION "${PROJECT_VERSION}") # the version of the package, the log and the About box
set(UTILSDLL_CE_VERSION "10.0.12.220711210" CACHE STRING "CE version; the last number is the build stamp")
set(UTILSDLL_BUILD_BRANCH "HEAD" CACHE STRING "Name of the source branch")
set(UTILSDLL_BUILD_HASH "377e5e6a6" CACHE STRING "First nine hexadecimal digits of the source revision")
configure_file(
    "${CMAKE_CURRENT_LIST_DIR}/BuildIdentification.h.in"
    "${PROJECT_BINARY_DIR}/generated/BuildIdentification.h" @ONLY)
