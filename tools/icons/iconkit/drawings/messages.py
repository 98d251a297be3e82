"""The signs at the left of a message box, 34 pixels: the colour shows the severity, the outline the kind of message."""

HEXAGON = "M12.2 4.5h9.6l7.7 7.7v9.6l-7.7 7.7h-9.6l-7.7-7.7v-9.6z"
TRIANGLE = "M15.1 5.6L3.3 26.1a2.2 2.2 0 0 0 1.9 3.4h23.6a2.2 2.2 0 0 0 1.9-3.4L18.9 5.6a2.2 2.2 0 0 0-3.8 0z"
DISC = "c 17 17 13"

SIGNS = {
    "info": ("info", DISC, ("M17 16v7.5", "dot 17 11"), ),
    "alert": ("warning", TRIANGLE, ("M17 13v7", "dot 17 24.5"), ),
    "question_mark": ("accent", DISC, ("M13.2 13.4a3.8 3.8 0 1 1 5.7 3.3c-1.4.8-1.9 1.5-1.9 2.9", "dot 17 24.2"), ),
    "error": ("danger", HEXAGON, ("M12.5 12.5l9 9", "M21.5 12.5l-9 9"), ),
    "success": ("success", DISC, ("M11 17.5l4.2 4.2L23 13",), ),
    "wait": ("glyph", "M9 4.5h16v4.5c0 4-4.8 5.5-4.8 8s4.8 4 4.8 8v4.5H9V25c0-4 4.8-5.5 4.8-8S9 13 9 9z",
             ("M7 4.5h20", "M7 29.5h20", "M13.5 25.2c1-1.7 2.3-2 3.5-3.2 1.2 1.2 2.5 1.5 3.5 3.2", "M17 17v1"), ),
    "update": ("info", DISC, ("M17 9.5v12", "M11.5 16.5l5.5 5.5 5.5-5.5", "M11.5 25h11"), ),
}


def draw(family):
    for name, (tone, body, marks) in SIGNS.items():
        lines = [f"f={tone}/.16 {body}", f"s={tone}/2 {body}"]
        for mark in marks:
            kind, _, place = mark.partition(" ")
            lines.append(f"f={tone} c {place} 1.6" if kind == "dot" else f"s={tone}/2.25 {mark}")
        family.single(f"messagebox/{name}_dark_icon", 34, 34, "\n".join(lines))
