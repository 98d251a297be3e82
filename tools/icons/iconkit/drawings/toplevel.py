"""Images of the icon folder itself: window furniture that the style sheets share, and the product's mark."""

CROSS_12 = "M3.5 3.5l5 5M8.5 3.5l-5 5"
CROSS_16 = "M5.5 5.5l5 5M10.5 5.5l-5 5"
MARK = """
O M7 4.5h6l3 12h-12z
f=accent r 2 8 16 2 1
f=accent r 9 10 2 6
"""


def dots(points, radius, layer="S "):
    return "\n".join(f"{layer}c {x} {y} {radius}" for x, y in points)


def draw(family):
    family.single("trelio_mark", 20, 20, MARK)
    family.single("size_grip", 14, 14, dots([(11, 3), (7, 7), (11, 7), (3, 11), (7, 11), (11, 11)], 1))
    for state, radius, layer in (("", 1, "S "), ("_hover", 1.5, "f=accent ")):
        places = (3, 8, 13, 18)
        family.single(f"splitter_grip_horizontal{state}", 4, 21, dots([(2, y) for y in places], radius, layer))
        family.single(f"splitter_grip_vertical{state}", 21, 4, dots([(x, 2) for x in places], radius, layer))
    family.states("toolbar_extension", 16, "M M4.5 4.5l3.5 3.5-3.5 3.5\nD M9 4.5l3.5 3.5-3.5 3.5", "normal hover")
    grip = [(x, y) for y in (3, 7, 11, 15, 19) for x in (3, 7)]
    family.single("toolbar_handle_horizontal", 10, 22, dots(grip, 1, "F "))
    family.single("toolbar_handle_vertical", 22, 10, dots([(y, x) for x, y in grip], 1, "F "))
    family.states("calendar_previous", 20, "A M12 5l-5 5 5 5", "normal hover", stroke=2)
    family.states("calendar_next", 20, "A M8 5l5 5-5 5", "normal hover", stroke=2)
    draw_closers(family)
    family.states("tab_scroll_left", 16, "M M9.5 3.5L5 8l4.5 4.5", "normal disabled")
    family.states("tab_scroll_right", 16, "M M6.5 3.5L11 8l-4.5 4.5", "normal disabled")
    family.single("menu_arrow", 8, 12, "M M2.5 2.5L6 6 2.5 9.5")
    family.single("menu_arrow_disabled", 8, 12, "s=glyph_disabled M2.5 2.5L6 6 2.5 9.5")
    family.single("menu_radio_mark", 16, 16, "S c 8 8 3")


def draw_closers(family):
    """Close, float and clear buttons; each reddens or lights on its own small plate."""
    family.single("tab_close", 16, 16, f"s=glyph_soft {CROSS_16}")
    family.single("tab_close_hover", 16, 16, f"f=danger c 8 8 7\ns=on_accent {CROSS_16}")
    family.single("tab_close_pressed", 16, 16, f"f=danger_deep c 8 8 7\ns=glyph_bright {CROSS_16}")
    family.single("dock_close", 12, 12, f"M {CROSS_12}")
    family.single("dock_close_hover", 12, 12, f"s=danger {CROSS_12}")
    float_window = "r 2.5 4.5 5 5 .75", "M5 2.5h3.5a1 1 0 0 1 1 1V7"
    for state, tone in (("", "glyph"), ("_hover", "accent_bright")):
        family.single(f"dock_float{state}", 12, 12, "\n".join(f"s={tone} {line}" for line in float_window))
    for state, plate, tone in (("", "glyph_faint", "ground"), ("_hover", "glyph", "ground_deep")):
        family.single(f"clear_text{state}", 16, 16, f"f={plate} c 8 8 6.5\ns={tone} M6 6l4 4M10 6l-4 4")
