"""Cursors for the picture area, 23 x 24 pixels with the hot spot at (11.5, 12.5).

A dark core inside a light outline reads on every picture; both are drawn from one set of lines.
"""

from .. import svg

CORE, OUTLINE = "on_accent", "glyph_bright"
CORE_WIDTH, OUTLINE_WIDTH = "1.75", "4.25"

HORIZONTAL = ("M3.5 12.5h16", "M7 8.5l-4 4 4 4", "M16 8.5l4 4-4 4")
# Nothing reaches further than 8.5 pixels from the hot spot: half of the outline's width must fit beside it.
FOUR_WAY = ("M11.5 4.5v16", "M3.5 12.5h16", "M9 6.5l2.5-2.5 2.5 2.5", "M9 18.5l2.5 2.5 2.5-2.5",
            "M5.5 10L3 12.5l2.5 2.5", "M17.5 10l2.5 2.5-2.5 2.5")
ARCH = ("M4 16.5c.9-5.6 3.6-8.5 7.5-8.5s6.6 2.9 7.5 8.5", "M3 12.5l1 4.2 3.9-2", "M20 12.5l-1 4.2-3.9-2")
LENS = "c 10 10.5 6.5"
HANDLE = "M14.8 15.3l5 5"

PALM = ("M7.5 12.5V6.2a1.5 1.5 0 0 1 3 0V5a1.5 1.5 0 0 1 3 0v1.4a1.5 1.5 0 0 1 3 0v2.8a1.5 1.5 0 0 1 3 0"
        "V15c0 3.8-2.6 6-6.2 6-3 0-4.7-1-6-3l-3.4-5.4a1.5 1.5 0 0 1 2.5-1.7z")
FIST = ("M7.5 13v-2.8a1.5 1.5 0 0 1 3 0v-.8a1.5 1.5 0 0 1 3 0v.6a1.5 1.5 0 0 1 3 0v.8a1.5 1.5 0 0 1 3 0"
        "V16c0 3.4-2.6 5-6.2 5-3.2 0-4.9-.8-6-2.6-.8-1.3-1.7-2.4-1.7-3.7 0-1.1.9-1.7 2-1.7z")


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
    cursor("hand_open", hand(PALM, ("M10.5 6.5v4.5", "M13.5 6.5v4.5", "M16.5 8.5v3")))
    cursor("hand_closed", hand(FIST, ("M10.5 10.5v2", "M13.5 10.5v2", "M16.5 11v1.75")))
    cursor("zoom_in", lines((LENS, HANDLE, "M7.5 10.5h5", "M10 8v5")))
    cursor("zoom_out", lines((LENS, HANDLE, "M7.5 10.5h5")))
    # Thin, and of whole pixels: the picture stays visible around the point that is aimed at.
    cross = ("M11.5 3.5v5", "M11.5 16.5v5", "M3 12.5h4.5", "M15.5 12.5h4.5")
    cursor("crosshair", lines(cross, core="1", outline="3")
           + f"\nf={OUTLINE} r 10 11 3 3\nf={CORE} r 11 12 1 1")
