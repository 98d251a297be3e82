"""The main tool bar (24 pixels), the file browser's bar (20 pixels) and its list (16 pixels)."""

import math

from .. import svg

PICTURE = "O r 3.5 4.5 17 15 2\n"
LENS = "O c 10.5 10.5 7\nM M15.8 15.8l4.7 4.7\n"
CORNERS = """
M M3.5 8.5v-3a2 2 0 0 1 2-2h3
M M15.5 3.5h3a2 2 0 0 1 2 2v3
M M20.5 15.5v3a2 2 0 0 1-2 2h-3
M M8.5 20.5h-3a2 2 0 0 1-2-2v-3
"""

HAND = ("M8.5 13.5V5.5a1.5 1.5 0 0 1 3 0V4a1.5 1.5 0 0 1 3 0v1.5a1.5 1.5 0 0 1 3 0v3a1.5 1.5 0 0 1 3 0"
        "V14.5c0 4.2-2.6 7-6.4 7-3 0-4.8-1.4-6.2-3.7l-3.5-5.6a1.6 1.6 0 0 1 2.6-1.9z")

TOGGLES = {
    "hand": f"""
O {HAND}
M M11.5 5.5v5.5
M M14.5 5.5v5.5
M M17.5 8.5v3
""",
    "loupe": LENS + "F r 7 7 3.5 3.5 .5\nF r 10.5 10.5 3.5 3.5 .5",
    "preview": """
O M2.5 12C5 7.6 8.2 5.5 12 5.5s7 2.1 9.5 6.5c-2.5 4.4-5.7 6.5-9.5 6.5S5 16.4 2.5 12z
D c 12 12 3
""",
    # The picture before and after, and the handle between them.
    "compare": """
B M5.5 4.5H12v15H5.5a2 2 0 0 1-2-2v-11a2 2 0 0 1 2-2z
M M9.5 4.5h-4a2 2 0 0 0-2 2v11a2 2 0 0 0 2 2h4
M M14.5 4.5h4a2 2 0 0 1 2 2v11a2 2 0 0 1-2 2h-4
D M12 2v7
D M12 15v7
D c 12 12 2.5
""",
    "grid": """
O r 3.5 3.5 17 17 2
D M9.5 4v16
D M14.5 4v16
D M4 9.5h16
D M4 14.5h16
""",
    "guides": """
O r 3.5 3.5 17 5 1
M M7.5 4v2
M M12 4v2
M M16.5 4v2
D M3.5 14.5h17
D M14.5 11.5v9
""",
}
COMMANDS = {
    "undo": """
M M8.5 4.5l-5 5 5 5
M M3.5 9.5h11a4.5 4.5 0 0 1 4.5 4.5
D M19 14a4.5 4.5 0 0 1-4.5 4.5h-4
""",
    "zoom_in": LENS + "D M7.5 10.5h6\nD M10.5 7.5v6",
    "zoom_out": LENS + "D M7.5 10.5h6",
    "fit": CORNERS + "B r 7.5 7.5 9 9 1\nD r 7.5 7.5 9 9 1",
    "actual_size": PICTURE + """
M M6.7 9.7l1.8-1.2v7
M M14.7 9.7l1.8-1.2v7
F c 12 10.2 1
F c 12 14.2 1
""",
    "rotate_right": """
O r 9.5 10.5 11 10 1.5
D M4.5 15v-3.5a6 6 0 0 1 6-6h3.5
D M11.5 2.5l3 3-3 3
""",
    # A bookmark and a plus.
    "save_preset": """
B M5.5 3.5h13v17L12 15.5l-6.5 5z
M M18.5 13.5v7L12 15.5l-6.5 5v-15a2 2 0 0 1 2-2h5
D M17.5 3.5v6
D M14.5 6.5h6
""",
}


def gear(cx, cy, outer, inner, teeth):
    """The outline of a gear wheel: rounded gaps between teeth with round tops."""
    path = ""
    for tooth in range(teeth):
        for offset, radius, curve in ((-0.27, inner, inner), (-0.17, outer, 0), (0.17, outer, outer), (0.27, inner, 0)):
            angle = 2 * math.pi * (tooth + offset) / teeth - math.pi / 2
            point = f"{svg.number(cx + radius * math.cos(angle))} {svg.number(cy + radius * math.sin(angle))}"
            path += f"A{curve} {curve} 0 0 1 {point}" if curve and path else f"{'L' if path else 'M'}{point}"
    return path + f"A{inner} {inner} 0 0 1 {path[1:].partition('L')[0]}z"


GEAR = gear(12, 12, 9.5, 6.75, 6)
OTHERS = {
    "settings": f"O {GEAR}\nD c 12 12 2.5",
    "help": """
O c 12 12 8.5
D M9.5 9.7a2.5 2.5 0 1 1 3.7 2.2c-.9.5-1.2 1-1.2 1.9
F c 12 16.7 1.1
""",
}

FOLDER = "M2.5 15.5v-11a1 1 0 0 1 1-1h4l2 2.5h7a1 1 0 0 1 1 1v8.5a1 1 0 0 1-1 1h-13a1 1 0 0 1-1-1z"
BROWSER = (
    ("folder_up", "normal", f"O {FOLDER}\nD M10 14V9\nD M7.5 11L10 8.5l2.5 2.5"),
    ("folder_new", "normal", f"O {FOLDER}\nD M10 13.5v-5\nD M7.5 11h5"),
    ("view_thumbnails", "normal hover checked", """
B r 2.5 2.5 6 6 1
O r 11.5 2.5 6 6 1
O r 2.5 11.5 6 6 1
O r 11.5 11.5 6 6 1
D r 2.5 2.5 6 6 1
"""),
    ("view_list", "normal hover checked", "\n".join(f"O r 2.5 {y}.5 3 3 .5\nD M9.5 {y + 2}h8" for y in (2, 8, 14))),
)
# What the browser lists (16 pixels).
LISTED = {
    "folder": "O M1.5 12.5v-9a1 1 0 0 1 1-1h3.5l1.5 2h6a1 1 0 0 1 1 1v7a1 1 0 0 1-1 1h-11a1 1 0 0 1-1-1z",
    "file": "O M3.5 1.5h5.5l4 4v9h-9.5z\nM M8.5 1.5v4.5h4.5",
    "drive": "O r 1.5 4.5 13 7 1.5\nD M10.5 8h1.5",
    "computer": "O r 1.5 2.5 13 8.5 1\nM M8 11.5v2.5\nM M5 14.5h6",
}


def draw(family):
    for name, drawing in TOGGLES.items():
        family.states(f"toolbar/{name}", 24, drawing, "normal hover checked")
    for name, drawing in COMMANDS.items():
        family.states(f"toolbar/{name}", 24, drawing, "normal hover disabled")
    for name, source in (("redo", "undo"), ("rotate_left", "rotate_right")):
        family.states(f"toolbar/{name}", 24, COMMANDS[source], "normal hover disabled",
                      change=lambda content: svg.flipped(content, 24))
    for name, drawing in OTHERS.items():
        family.states(f"toolbar/{name}", 24, drawing, "normal hover")
    for name, states, drawing in BROWSER:
        family.states(f"toolbar/filebrowser/{name}", 20, drawing, states)
    for name, drawing in LISTED.items():
        family.states(f"toolbar/filebrowser/{name}", 16, drawing, "normal")
