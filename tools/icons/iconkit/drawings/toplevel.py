"""Images of the icon folder itself: window furniture that the style sheets share, and the product's mark."""

CROSS_12 = "M M3 3l6 6\nM M9 3l-6 6"
MARK = """
B M6.5 4.5h7l3 12h-13z
M M6.5 4.5h7l3 12h-13z
D M2.5 8.5h15
D M10 8.5v8
"""


def dots(points, radius):
    return "\n".join(f"S c {x} {y} {radius}" for x, y in points)


def draw(family):
    family.single("trelio_mark", 20, 20, MARK)
    family.single("size_grip", 14, 14, dots([(11, 3), (7, 7), (11, 7), (3, 11), (7, 11), (11, 11)], 1))
    for name, points in (("horizontal", [(2, 6), (2, 11), (2, 16)]), ("vertical", [(6, 2), (11, 2), (16, 2)])):
        width, height = (4, 22) if name == "horizontal" else (22, 4)
        points = points + [((2, 21 - 1) if name == "horizontal" else (20, 2))]
        family.single(f"splitter_grip_{name}", width, height, dots(points, 1))
        family.single(f"splitter_grip_{name}_hover", width, height, dots(points, 1.5).replace("S ", "f=accent "))
    family.states("toolbar_extension", 16, "M M4.5 4.5l3.5 3.5-3.5 3.5\nD M9 4.5l3.5 3.5-3.5 3.5", "normal hover")
    grip = [(x, y) for y in (3, 7, 11, 15, 19) for x in (3, 7)]
    family.single("toolbar_handle_horizontal", 10, 22, dots(grip, 1).replace("S ", "F "))
    family.single("toolbar_handle_vertical", 22, 10, dots([(y, x) for x, y in grip], 1).replace("S ", "F "))
    family.states("calendar_previous", 20, "M M12 5l-5 5 5 5", "normal hover", stroke=2)
    family.states("calendar_next", 20, "M M8 5l5 5-5 5", "normal hover", stroke=2)
    draw_closers(family)
    family.states("tab_scroll_left", 16, "M M9.5 3.5L5 8l4.5 4.5", "normal disabled")
    family.states("tab_scroll_right", 16, "M M6.5 3.5L11 8l-4.5 4.5", "normal disabled")
    family.single("menu_arrow", 8, 12, "M M2.5 2.5L6 6 2.5 9.5")
    family.single("menu_arrow_disabled", 8, 12, "s=glyph_disabled M2.5 2.5L6 6 2.5 9.5")
    family.single("menu_radio_mark", 16, 16, "S c 8 8 3")


def draw_closers(family):
    """Close, float and clear buttons; each reddens or lights on its own small plate."""
    family.single("tab_close", 16, 16, "s=glyph_soft M5.5 5.5l5 5\ns=glyph_soft M10.5 5.5l-5 5")
    family.single("tab_close_hover", 16, 16, "f=danger c 8 8 7\ns=on_accent M5.5 5.5l5 5\ns=on_accent M10.5 5.5l-5 5")
    family.single("tab_close_pressed", 16, 16, "f=danger_deep c 8 8 7\ns=glyph_bright M5.5 5.5l5 5\ns=glyph_bright M10.5 5.5l-5 5")
    family.single("dock_close", 12, 12, CROSS_12)
    family.single("dock_close_hover", 12, 12, CROSS_12.replace("M M", "s=danger M"))
    float_window = "r 1.5 4.5 6 6 1", "M4.5 2.5v-.5a.5.5 0 0 1 .5-.5h5a.5.5 0 0 1 .5.5v5a.5.5 0 0 1-.5.5h-.5"
    for state, tone in (("", "glyph"), ("_hover", "accent_bright")):
        family.single(f"dock_float{state}", 12, 12, "\n".join(f"s={tone} {line}" for line in float_window))
    for state, plate, tone in (("", "glyph_faint", "ground"), ("_hover", "glyph", "ground_deep")):
        family.single(f"clear_text{state}", 16, 16,
                      f"f={plate} c 8 8 6.5\ns={tone} M6 6l4 4\ns={tone} M10 6l-4 4")
