"""Tools of the geometric corrections (24 pixels), their handles, and the small signs of applied corrections."""

from .. import svg

ALL_STATES = "normal hover pressed checked disabled"
TOGGLE_STATES = "normal hover checked disabled"

SPARKLE = "F M19 2.5l1 2.5 2.5 1-2.5 1-1 2.5-1-2.5-2.5-1 2.5-1z"
UPRIGHT = "M8.5 5.5h7l4 14h-15z"
QUADRANGLE = "M5.5 7.5l12-3 2 13-15 2z"

PERSPECTIVE = {
    "automatic": "B M7.5 5.5h6l5 14h-14z\nM M12.5 5.5H8.2L4.5 19.5h15L16.5 11\n" + SPARKLE,
    "lines": """
O r 3.5 3.5 17 17 2
D M10.3 6.5L7.2 17.5
D M13.7 6.5l3.1 11
""",
    "rectangle": f"""
B {QUADRANGLE}
M M7.6 7l7.8-2
M M17.8 6.6l1.4 8.8
M M17.3 17.8l-10.5 1.4
M M5.4 9.6l-.7 7.8
D c 5.5 7.5 2
D c 17.5 4.5 2
D c 19.5 17.5 2
D c 4.5 19.5 2
""",
}
KEYSTONING = f"""
O {UPRIGHT}
D M5 2.5L2.5 5 5 7.5
D M19 2.5L21.5 5 19 7.5
"""
HORIZON = """
B M3.9 12.5h16.4l.8 3.7L5.4 19.5z
M M2.9 7.8L18.6 4.5l2.5 11.7L5.4 19.5z
D M1.5 12.5h21
"""
ANAMORPHOSE_WIDTH = """
O e 12 12 3.5 8.5
D M6 8.5L2.5 12 6 15.5
D M18 8.5l3.5 3.5-3.5 3.5
"""

# 16 pixels: an outline with a second tone, as the tools have, with less in it.
SIGNS = {
    "keystoning": "O M5.5 3.5h5l3 9h-11z",
    "horizon": """
B M2.8 8.5h10.7l.5 2.3L3.6 13z
M M2 5l10.4-2.2 1.6 8L3.6 13z
D M1 8.5h14
""",
    "distortion": """
O M3 3Q8 1 13 3 15 8 13 13 8 15 3 13 1 8 3 3z
D M2.5 8h11
D M8 2.5v11
""",
    "anamorphosis": "O e 8 8 2.75 5.5\nD M2.5 6v4\nD M13.5 6v4",
    "tilt_shift": """
B r 2 6 12 4
M M1.5 5.5h13
M M1.5 10.5h13
D M4.5 2.5h7
D M4.5 13.5h7
""",
    "crop": """
B r 4.5 4.5 7 7
M M4.5 1.5v9a1 1 0 0 0 1 1h9
M M1.5 4.5h9a1 1 0 0 1 1 1v9
""",
}


def quarter_turn(content):
    return svg.turned(content, "rotate(90 12 12)")


def picture_mark(shape, core, outline):
    """A mark that lies on the picture: light, with a dark rim that keeps it visible on light pictures."""
    return f"""
s=ground_deep/{outline}/.85 {shape}
s=glyph_bright/{core} {shape}
"""


def picture_dot(x, y):
    return f"f=ground_deep/.85 c {x} {y} 2.5\nf=glyph_bright c {x} {y} 1.5\n"


def draw(family):
    for name, drawing in PERSPECTIVE.items():
        family.states(f"perspective/perspective_{name}", 24, drawing, TOGGLE_STATES)
    family.states("keystoning/keystoning_vertical", 24, KEYSTONING, TOGGLE_STATES)
    family.states("keystoning/keystoning_horizontal", 24, KEYSTONING, TOGGLE_STATES, change=quarter_turn)
    family.states("horizon/horizon_line", 24, HORIZON, ALL_STATES)
    family.single("horizon/horizon_handle", 20, 20, picture_mark("c 10 10 6", 2, 4) + picture_dot(10, 10))
    family.states("anamorphose/anamorphose_width", 24, ANAMORPHOSE_WIDTH, ALL_STATES)
    family.states("anamorphose/anamorphose_height", 24, ANAMORPHOSE_WIDTH, ALL_STATES, change=quarter_turn)
    family.single("crop/crop_handle_corner", 24, 24, picture_mark("M4.5 19.5v-15h15", 3, 5))
    family.single("crop/crop_handle_edge", 24, 11, picture_mark("M3.5 5.5h17", 3, 5))
    for name, drawing in SIGNS.items():
        family.single(f"correctionInfo/{name}_not_applied", 16, 16, drawing)
        family.add(f"correctionInfo/{name}_applied", svg.document(16, 16, svg.draw(drawing, "checked")))
