# Run at installation: copies the licence texts of everything inside the product from the packages it was built with.
# DESTINATION, WINDOWS and SDK are set by the caller.
set(packages libqt5core5a libqt5svg5 libquazip1-qt5-1 zlib1g libspdlog-dev libfmt-dev qttranslations5-l10n
    fonts-roboto-unhinted fonts-open-sans fonts-quicksand fonts-cantarell libstdc++6)
if(WINDOWS)
    list(APPEND packages gcc-mingw-w64-base mingw-w64-common)
endif()
foreach(package IN LISTS packages)
    set(text "/usr/share/doc/${package}/copyright")
    if(NOT EXISTS "${text}")
        message(FATAL_ERROR "The licence text of ${package} is missing: ${text}")
    endif()
    configure_file("${text}" "${DESTINATION}/${package}.txt" COPYONLY)
endforeach()
# Debian's files refer to these for the common texts.
foreach(text Apache-2.0 GPL-3 LGPL-2.1 LGPL-3)
    configure_file("/usr/share/common-licenses/${text}" "${DESTINATION}/${text}.txt" COPYONLY)
endforeach()
if(WINDOWS)
    file(GLOB texts "${SDK}/LICENSES/*.txt")
    file(COPY ${texts} DESTINATION "${DESTINATION}")
endif()
