"""Dialogs and larger pictures: about, calibration files, crash report, processing, thumbnails, overlays."""

import math

from .. import svg
from ..palette import RESOURCES, colour
from .toolbar import TOGGLES


def aperture(cx, cy, outer, inner):
    """Six blades: each edge of the inner hexagon runs on to the outer circle."""
    turns = [turn * math.pi / 3 for turn in range(6)]
    corners = [(cx + inner * math.cos(turn), cy + inner * math.sin(turn)) for turn in turns]
    reach = math.sqrt(outer * outer - 0.75 * inner * inner) + inner / 2
    lines = []
    for (x, y), (nx, ny) in zip(corners, corners[1:] + corners[:1]):
        end = x + (nx - x) * reach / inner, y + (ny - y) * reach / inner
        lines.append(f"D M{svg.number(x)} {svg.number(y)}L{svg.number(end[0])} {svg.number(end[1])}")
    return "\n".join(lines)


CALIBRATION = {
    "file": """
B M7 4h11l7 7v16a1.5 1.5 0 0 1-1.5 1.5h-15A1.5 1.5 0 0 1 7 27z
M M18 4H8.5A1.5 1.5 0 0 0 7 5.5V27a1.5 1.5 0 0 0 1.5 1.5h15A1.5 1.5 0 0 0 25 27V11z
M M18 4v7h7
D c 16 19.5 4.5
F c 16 19.5 1.5
""",
    "camera_body": """
O M4 12a2 2 0 0 1 2-2h5l2.5-4h5L21 10h5a2 2 0 0 1 2 2v12a2 2 0 0 1-2 2H6a2 2 0 0 1-2-2z
D c 16 17.5 4.5
F c 24 14 1.25
""",
    "lens": "O c 16 16 12\n" + aperture(16, 16, 12, 5.5),
}
PROCESSING = {
    "running": """
s=line/4 c 24 24 18
s=accent/4 M24 6a18 18 0 0 1 15.6 27
D M24 14v10l6 5
""",
    "finished": """
f=success/.16 c 24 24 18
s=success c 24 24 18
s=success/3.5 M15.5 25l6 6 11.5-13
""",
    "failed": """
f=danger/.16 c 24 24 18
s=danger c 24 24 18
s=danger/3.5 M17.5 17.5l13 13M30.5 17.5l-13 13
""",
}
CRASHED_PICTURE = """
B M29 10H12a4 4 0 0 0-4 4v32a4 4 0 0 0 4 4h14l-3-10 7-9-6-10z
B M37 10h15a4 4 0 0 1 4 4v32a4 4 0 0 1-4 4H33l-2-10 7-9-6-10z
M M29 10H12a4 4 0 0 0-4 4v32a4 4 0 0 0 4 4h14
M M37 10h15a4 4 0 0 1 4 4v32a4 4 0 0 1-4 4H33
s=danger M29 10l-5 11 6 10-7 9 3 10
s=danger M37 10l-5 11 6 10-7 9 2 10
f=ground c 50 48 14
f=accent c 50 48 11
s=on_accent/2.5 M50 53.5v-11M45.5 46.5l4.5-4.5 4.5 4.5
"""
NO_PREVIEW = """
f=panel r 1 1 94 70 6
s=glyph_soft/2 M17 24v-7a4 4 0 0 1 4-4h9
s=glyph_soft/2 M66 13h9a4 4 0 0 1 4 4v7
s=glyph_soft/2 M79 48v7a4 4 0 0 1-4 4h-9
s=glyph_soft/2 M30 59h-9a4 4 0 0 1-4-4v-7
f=glyph_faint c 36 28 4
f=glyph_faint M26 51l13-13 6 6 11-12 17 19z
s=glyph_faint/2 M26 51l13-13 6 6 11-12 17 19z
"""
WEBSITE = """
O M9.5 4.5h-4a2 2 0 0 0-2 2v8a2 2 0 0 0 2 2h8a2 2 0 0 0 2-2v-4
D M9.5 10.5l7-7
D M12.5 3.5h4v4
"""
COMPASS = """
D M3.5 13.5L1.5 16l2 2.5
D M28.5 13.5l2 2.5-2 2.5
D M13.5 3.5L16 1.5l2.5 2
D M13.5 28.5l2.5 2 2.5-2
"""
SECONDARY_WINDOW = """
O r 1.5 5.5 9 9 1
M M2 8.5h8
D M5.5 3V2.5a1 1 0 0 1 1-1h7a1 1 0 0 1 1 1v7a1 1 0 0 1-1 1H13
"""


def draw(family):
    hand = svg.turned(svg.draw(TOGGLES["hand"]), "translate(4 3.5)")
    family.add("handTool/hand_tool", svg.document(32, 32, svg.draw(COMPASS) + hand))
    family.single("secondary_windows/secondary_window", 16, 16, SECONDARY_WINDOW)
    family.single("crashSender/crash_sender", 64, 64, CRASHED_PICTURE, stroke=3)
    for name, drawing in CALIBRATION.items():
        family.single(f"cafDialog/caf_{name}", 32, 32, drawing, stroke=2)
    for name, drawing in PROCESSING.items():
        family.single(f"processing/processing_{name}", 48, 48, drawing, stroke=3)
    family.single("thumbnail/thumbnail_no_preview", 96, 72, NO_PREVIEW, stroke=3)
    draw_about(family)


def draw_about(family):
    mark = (RESOURCES / "app_icon/trelio_frame.svg").read_text(encoding="utf-8")
    small = mark.replace('width="1024" height="1024"', 'width="128" height="128"', 1)
    family.add("aboutDialog_vantora/about_logo", small)
    family.states("aboutDialog_vantora/about_website", 20, WEBSITE, "normal hover")
    light = colour("accent_bright")
    family.single("aboutDialog_vantora/about_backdrop", 480, 160, backdrop(), definitions=(
        svg.linear("ground", [(0, colour("panel"), 1), (1, colour("ground_deep"), 1)], 0, 0, 0, 160)
        + svg.linear("floor", [(0, colour("accent"), 0.05), (1, colour("accent"), 0.6)], 0, 72, 0, 160)
        + svg.linear("sky", [(0, light, 0), (0.5, light, 0.9), (1, light, 0)], 0, 0, 480, 0)))


def backdrop():
    """A floor of perspective lines that run to a level horizon: what the product straightens."""
    lines = ["f=url(#ground) r 0 0 480 160"]
    lines += [f"s=url(#floor)/1 M{240 + 14 * step} 72L{240 + 82 * step} 160" for step in range(-8, 9)]
    lines += [f"s=url(#floor)/1 M0 {svg.number(72 + 88 * depth)}h480" for depth in (0.09, 0.2, 0.34, 0.52, 0.74)]
    lines.append("f=url(#sky) r 0 71 480 2")
    return "\n".join(lines)
