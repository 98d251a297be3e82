# Writes PaletteColours.h, the colours of palette.json and palette_high_contrast.json as a table.

set(palette_file "${CMAKE_CURRENT_LIST_DIR}/palette.json")
set(palette_contrast_file "${CMAKE_CURRENT_LIST_DIR}/palette_high_contrast.json")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${palette_file}" "${palette_contrast_file}")
file(READ "${palette_file}" palette_normal)
file(READ "${palette_contrast_file}" palette_contrast)
string(JSON palette_count LENGTH "${palette_normal}")
math(EXPR palette_last "${palette_count} - 1")
set(palette_rows "")
foreach(index RANGE ${palette_last})
    string(JSON name MEMBER "${palette_normal}" ${index})
    string(JSON normal GET "${palette_normal}" ${name})
    string(JSON contrast GET "${palette_contrast}" ${name})
    string(APPEND palette_rows "    {\"${name}\", \"${normal}\", \"${contrast}\"},\n")
endforeach()
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/generated/PaletteColours.h" @ONLY CONTENT [[
#pragma once
// Made from resources/palette.json and resources/palette_high_contrast.json.

namespace TOLVAN_NAMESPACE
{

/// A colour of the style sheets, as #RRGGBB, and its counterpart for a system in high contrast.
struct PaletteColour {
    const char* name;
    const char* normal;
    const char* highContrast;
};

constexpr PaletteColour paletteColours[] = {
@palette_rows@};

} // namespace TOLVAN_NAMESPACE
]])
