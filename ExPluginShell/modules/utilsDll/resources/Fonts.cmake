# The nine fonts come from Debian's font packages; THIRD-PARTY.md names their licences. Where a family isn't packaged,
# one of a similar design takes its place under the file name that callers know. README.md lists the family names.

set(font_root "/usr/share/fonts" CACHE PATH "Folder of the installed fonts: Debian's, or one that holds all the files")
set(roboto "${font_root}/truetype/roboto/unhinted/RobotoTTF")
set(open_sans "${font_root}/truetype/open-sans")
set(quicksand "${font_root}/truetype/quicksand")
set(cantarell "${font_root}/opentype/cantarell")

foreach(font
    "Roboto-Light.ttf|${roboto}/Roboto-Light.ttf"
    "Roboto-Regular.ttf|${roboto}/Roboto-Regular.ttf"
    "Roboto-Medium.ttf|${roboto}/Roboto-Medium.ttf"
    "Roboto-Bold.ttf|${roboto}/Roboto-Bold.ttf"
    "OpenSans-Light.ttf|${open_sans}/OpenSans-Light.ttf"
    "MavenPro-Regular.ttf|${quicksand}/Quicksand-Regular.ttf"
    "MavenPro-Medium.ttf|${quicksand}/Quicksand-Medium.ttf"
    "MavenProLight-300.otf|${cantarell}/Cantarell-Light.otf"
    "Segoe+UI.ttf|${open_sans}/OpenSans-Regular.ttf")
    string(REGEX MATCH "^(.+)[|](.+)$" unused "${font}")
    set(name "${CMAKE_MATCH_1}")
    set(file "${CMAKE_MATCH_2}")
    if(NOT EXISTS "${file}")
        get_filename_component(file "${file}" NAME)
        set(file "${font_root}/${file}")
    endif()
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "The font ${file} is not installed: run tools/install-deps.sh build")
    endif()
    tolvan_stage_copy(userinterface fonts/${name} "${file}")
endforeach()
