"""Tools of the distortion correction (24 pixels), the ends of its slider and the result of the lens search (16)."""

from .corrections import ALL_STATES, SPARKLE

BARREL = "M5 5Q12 2 19 5 22 12 19 19 12 22 5 19 2 12 5 5z"
PINCUSHION = "M3.5 3.5Q12 7 20.5 3.5 17 12 20.5 20.5 12 17 3.5 20.5 7 12 3.5 3.5z"

TOOLS = {
    "automatic": f"""
B {BARREL}
M M13 3.6Q9 3.4 5 5 2 12 5 19q7 3 14 0 1.6-3.7 1.6-7.4
{SPARKLE}
D M8.9 3.9q-1.5 8.1 0 16.2
D M3.9 14.5q8.1 1.7 16.2 0
""",
    "manual": f"""
O {BARREL}
D M7 12h10
D M9.5 9.5L7 12l2.5 2.5
D M14.5 9.5L17 12l-2.5 2.5
""",
    "barrel": f"""
O {BARREL}
D M9.2 3.8q-1.6 8.2 0 16.4
D M14.8 3.8q1.6 8.2 0 16.4
D M3.8 9.2q8.2-1.6 16.4 0
D M3.8 14.8q8.2 1.6 16.4 0
""",
    "pincushion": f"""
O {PINCUSHION}
D M8.8 4.9q2.4 7.1 0 14.2
D M15.2 4.9q-2.4 7.1 0 14.2
D M4.9 8.8q7.1 2.4 14.2 0
D M4.9 15.2q7.1-2.4 14.2 0
""",
    # The round picture of a fisheye lens in its frame, with a bent horizon.
    "fisheye": """
M r 2.5 2.5 19 19 2
B c 12 12 7
D c 12 12 7
D M5.5 14.5q6.5-6.5 13 0
""",
    # A bent line, and the straight one between its ends.
    "bent_line": """
M M4 15.5Q12 2.5 20 15.5
S c 4 15.5 2.25
S c 20 15.5 2.25
D M8.75 15.5h.5
D M11.75 15.5h.5
D M14.75 15.5h.5
""",
}
LENS = "B c 7 7.5 5\nM M12 7.5a5 5 0 1 0-5 5\nM c 7 7.5 1.75\n"


def draw(family):
    for name, drawing in TOOLS.items():
        family.states(f"distortion/distortion_{name}", 24, drawing, ALL_STATES)
    family.single("distortion/distortion_slider_barrel", 16, 16, "M M3 3Q8 1 13 3 15 8 13 13 8 15 3 13 1 8 3 3z")
    family.single("distortion/distortion_slider_pincushion", 16, 16, "M M2 2q6 3 12 0-3 6 0 12-6-3-12 0 3-6 0-12z")
    family.single("distortion/distortion_lens_found", 16, 16, LENS + "s=success/1.75 M9.5 12l2 2 3.5-4")
    family.single("distortion/distortion_lens_not_found", 16, 16, LENS + "s=warning/1.75 M10 10l4.5 4.5m0-4.5l-4.5 4.5")
