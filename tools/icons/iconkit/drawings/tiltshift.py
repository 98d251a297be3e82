"""Tilt-shift: the two blur shapes (24 pixels), their marks on the picture, and the blur slider."""

from .. import svg
from ..palette import colour
from .corrections import ALL_STATES, picture_dot, picture_mark

LINEAR = """
B r 3 8.5 18 7
M M2.5 8.5h19
M M2.5 15.5h19
F c 12 12 1.5
D M4.5 4.5h2
D M11 4.5h2
D M17.5 4.5h2
D M4.5 19.5h2
D M11 19.5h2
D M17.5 19.5h2
"""
RADIAL = """
O c 12 12 5.5
F c 12 12 1.5
D M9.3 3.4a9 9 0 0 1 5.4 0
D M20.6 9.3a9 9 0 0 1 0 5.4
D M14.7 20.6a9 9 0 0 1-5.4 0
D M3.4 14.7a9 9 0 0 1 0-5.4
"""
TURN = "M4.5 15a7.5 7.5 0 0 1 15 0M1.7 12.2L4.5 15l2.8-2.8M16.7 12.2l2.8 2.8 2.8-2.8"
POINTER = """
f=ground_deep M1 3.5a2.5 2.5 0 0 1 2.5-2.5h7A2.5 2.5 0 0 1 13 3.5v7L7 17l-6-6.5z
f={} M2 3.5A1.5 1.5 0 0 1 3.5 2h7A1.5 1.5 0 0 1 12 3.5v6.6l-5 5.4-5-5.4z
"""


def draw(family):
    family.states("tiltshift/tiltshift_linear", 24, LINEAR, ALL_STATES)
    family.states("tiltshift/tiltshift_radial", 24, RADIAL, ALL_STATES)
    family.single("tiltshift/tiltshift_centre_handle", 24, 24,
                  picture_mark("c 12 12 8", 2, 4) + picture_mark("M12 9v6M9 12h6", 2, 4))
    family.single("tiltshift/tiltshift_rotation_handle", 24, 24, picture_mark(TURN, 2, 4) + picture_dot(12, 15))
    family.single("tiltshift/tiltshift_focus_line", 24, 7, picture_mark("M3.5 3.5h5M15.5 3.5h5", 1.5, 3.5))
    for state, tone, mark in (("", "glyph", ""), ("_hover", "glyph_bright", "f=accent c 7 7.5 2"),
                              ("_pressed", "accent", "f=on_accent c 7 7.5 2"), ("_disabled", "glyph_disabled", "")):
        family.single(f"tiltshift/slider/tiltshift_slider_handle{state}", 14, 18, POINTER.format(tone) + mark)
    family.single("tiltshift/slider/tiltshift_slider_sharp", 16, 16, "O c 8 8 5.5\nF c 8 8 2")
    soft = svg.radial("a", [(0, colour("glyph"), 1), (0.35, colour("glyph"), 0.75), (1, colour("glyph"), 0)], 8, 8, 8)
    family.single("tiltshift/slider/tiltshift_slider_blurred", 16, 16, "f=url(#a) c 8 8 8", definitions=soft)
