"""Cursors for the picture area, 23 x 24 pixels with the hot spot at (11.5, 12.5).

A dark core inside a light outline reads on every picture; both are drawn from one set of lines.
"""

from .. import svg

CORE, OUTLINE = "on_accent", "glyph_bright"
CORE_WIDTH, OUTLINE_WIDTH = "1.75", "4.25"

HORIZONTAL = ("M3.5 12.5h16", "M7 8.5l-4 4 4 4", "M16 8.5l4 4-4 4")
ARROW_HEAD_UP, ARROW_HEAD_DOWN = "M8.2 5.8l3.3-3.3 3.3 3.3", "M8.2 19.2l3.3 3.3 3.3-3.3"
FOUR_WAY = ("M11.5 3v19", "M2 12.5h19", ARROW_HEAD_UP, ARROW_HEAD_DOWN,
            "M4.8 9.2l-3.3 3.3 3.3 3.3", "M18.2 9.2l3.3 3.3-3.3 3.3")
ARCH = ("M3 16.5c1-5.5 4.2-8.5 8.5-8.5s7.5 3 8.5 8.5", "M1.8 11.8L3 16.7l4.6-2.2", "M21.2 11.8L20 16.7l-4.6-2.2")
LENS = "c 10 10.5 6.5"
HANDLE = "M14.8 15.3l5.4 5.4"

PALM = ("M8 12.5V6.2a1.6 1.6 0 0 1 3.2 0V5a1.6 1.6 0 0 1 3.2 0v1.4a1.6 1.6 0 0 1 3.2 0v2.8a1.6 1.6 0 0 1 3.2 0"
        "V15c0 4.5-2.8 7.2-6.6 7.2-3.2 0-5-1.3-6.4-3.7l-3.6-5.7a1.6 1.6 0 0 1 2.6-1.8z")
FIST = ("M8 13v-2.8a1.6 1.6 0 0 1 3.2 0v-.8a1.6 1.6 0 0 1 3.2 0v.6a1.6 1.6 0 0 1 3.2 0v.8a1.6 1.6 0 0 1 3.2 0"
        "V16c0 4-2.8 6.2-6.6 6.2-3.4 0-5.2-1.2-6.4-3.4-.8-1.4-1.8-2.6-1.8-4 0-1.2 1-1.8 2.2-1.8z")


def lines(shapes, core=CORE_WIDTH, outline=OUTLINE_WIDTH):
    """All outlines below all cores, so that crossing lines do not cut each other."""
    outlines = [f"s={OUTLINE}/{outline} {line}" for line in shapes]
    return "\n".join(outlines + [f"s={CORE}/{core} {line}" for line in shapes])


def hand(body, knuckles):
    """A light hand with a dark outline: as large a shape reads better filled."""
    return "\n".join([f"s={OUTLINE}/4 {body}", f"f={OUTLINE} {body}", f"s={CORE}/1.5 {body}"]
                     + [f"s={CORE}/1.25 {line}" for line in knuckles])


def draw(family):
    def cursor(name, drawing, matrix=""):
        content = svg.turned(svg.draw(drawing), matrix) if matrix else svg.draw(drawing)
        family.add(f"cursors/cusors_{name}", svg.document(23, 24, content))

    cursor("arrow_horizontal", lines(HORIZONTAL))
    cursor("arrow_vertical", lines(HORIZONTAL), "rotate(90 11.5 12.5)")
    cursor("arrow_diagonal_left", lines(HORIZONTAL), "rotate(45 11.5 12.5)")
    cursor("arrow_diagonal_right", lines(HORIZONTAL), "rotate(-45 11.5 12.5)")
    cursor("arrow_square", lines(FOUR_WAY))
    cursor("rotation_top", lines(ARCH))
    cursor("rotation_bottom", lines(ARCH), "rotate(180 11.5 12.5)")
    cursor("hand_open", hand(PALM, ("M11.2 6v5", "M14.4 6v5", "M17.6 8.5v3.5")))
    cursor("hand_closed", hand(FIST, ("M11.2 10v2.5", "M14.4 10v2.5", "M17.6 11v2")))
    cursor("zoom_in", lines((LENS, HANDLE, "M7.5 10.5h5", "M10 8v5")))
    cursor("zoom_out", lines((LENS, HANDLE, "M7.5 10.5h5")))
    # Thin, and of whole pixels: the picture stays visible around the point that is aimed at.
    cross = ("M11.5 2.5v6", "M11.5 16.5v6", "M1.5 12.5h6", "M15.5 12.5h6")
    cursor("crosshair", lines(cross, core="1", outline="3")
           + f"\nf={OUTLINE} r 10 11 3 3\nf={CORE} r 11 12 1 1")
