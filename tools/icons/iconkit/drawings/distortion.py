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
D M6.5 9.5h5
D M15.5 9.5h2
D M6.5 14.5h2
D M12.5 14.5h5
D c 13.5 9.5 2
D c 10.5 14.5 2
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
    "fisheye": """
O c 12 12 8.5
D M9.5 4q-3.5 8 0 16
D M14.5 4q3.5 8 0 16
D M4 9.5q8-3.5 16 0
D M4 14.5q8 3.5 16 0
""",
    "bent_line": """
D M3.5 19.5h17
M M5.3 12.4Q8 6.6 10.2 6.1
M M13.8 6.1q2.2.5 4.9 6.3
O c 4.5 14 2
O c 12 6 2
O c 19.5 14 2
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
