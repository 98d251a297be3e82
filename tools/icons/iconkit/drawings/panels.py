"""Panels and dialogs: settings, additional options, side bar, plug-in bar, confirmation, reset, about, and the rest."""

import math

from .. import svg
from ..palette import RESOURCES, colour
from .toolbar import TOGGLES

SETTINGS = {
    "general": "M M3.5 7.5h8\nM M17.5 7.5h3\nM M3.5 16.5h3\nM M12.5 16.5h8\nB c 14.5 7.5 3\nD c 14.5 7.5 3\nB c 9.5 16.5 3\nD c 9.5 16.5 3",
    "display": "B r 2.5 4.5 19 12 2\nM r 2.5 4.5 19 12 2\nD M12 17v3.5\nD M7.5 20.5h9",
    "language": "B c 12 12 8.5\nM c 12 12 8.5\nD e 12 12 3.5 8.5\nD M4 9.5h16\nD M4 14.5h16",
    "performance": "B M5 18.5a9 9 0 1 1 14 0z\nM M5 18.5a9 9 0 1 1 14 0z\nD M12 13.5l4-5\nF c 12 13.5 1.75",
    "privacy": "B M12 2.5l7.5 3v6c0 5-3.1 8.2-7.5 10-4.4-1.8-7.5-5-7.5-10v-6z\nM M12 2.5l7.5 3v6c0 5-3.1 8.2-7.5 10-4.4-1.8-7.5-5-7.5-10v-6z\nD M8.5 11.5l2.8 2.8 4.7-5.3",
}
def aperture(cx, cy, outer, inner):
    """Six blades: each edge of the inner hexagon runs on to the outer circle."""
    corners = [(cx + inner * math.cos(turn * math.pi / 3), cy + inner * math.sin(turn * math.pi / 3)) for turn in range(6)]
    reach = math.sqrt(outer * outer - 0.75 * inner * inner) + inner / 2
    lines = []
    for (x, y), (nx, ny) in zip(corners, corners[1:] + corners[:1]):
        end = x + (nx - x) * reach / inner, y + (ny - y) * reach / inner
        lines.append(f"D M{svg.number(x)} {svg.number(y)}L{svg.number(end[0])} {svg.number(end[1])}")
    return "\n".join(lines)


WEBSITE = "B M9.5 4.5h-4a2 2 0 0 0-2 2v8a2 2 0 0 0 2 2h8a2 2 0 0 0 2-2v-4\nM M9.5 4.5h-4a2 2 0 0 0-2 2v8a2 2 0 0 0 2 2h8a2 2 0 0 0 2-2v-4\nD M9.5 10.5l7-7\nD M12.5 3.5h4v4"
CRASHED_PICTURE = """
B M29 10H12a4 4 0 0 0-4 4v32a4 4 0 0 0 4 4h14l-3-10 7-9-6-10z
B M37 10h15a4 4 0 0 1 4 4v32a4 4 0 0 1-4 4H33l-2-10 7-9-6-10z
M M29 10H12a4 4 0 0 0-4 4v32a4 4 0 0 0 4 4h14
M M37 10h15a4 4 0 0 1 4 4v32a4 4 0 0 1-4 4H33
s=danger M29 10l-5 11 6 10-7 9 3 10
s=danger M37 10l-5 11 6 10-7 9 2 10
f=ground c 50 48 14
f=accent c 50 48 11
s=on_accent/2.5 M50 53.5v-11
s=on_accent/2.5 M45.5 46.5l4.5-4.5 4.5 4.5
"""
CALIBRATION = {
    "file": "B M7 4h11l7 7v16a1.5 1.5 0 0 1-1.5 1.5h-15A1.5 1.5 0 0 1 7 27z\nM M18 4H8.5A1.5 1.5 0 0 0 7 5.5V27a1.5 1.5 0 0 0 1.5 1.5h15A1.5 1.5 0 0 0 25 27V11z\nM M18 4v7h7\nD c 16 19.5 4.5\nF c 16 19.5 1.5",
    "camera_body": "B M4 12a2 2 0 0 1 2-2h5l2.5-4h5L21 10h5a2 2 0 0 1 2 2v12a2 2 0 0 1-2 2H6a2 2 0 0 1-2-2z\nM M4 12a2 2 0 0 1 2-2h5l2.5-4h5L21 10h5a2 2 0 0 1 2 2v12a2 2 0 0 1-2 2H6a2 2 0 0 1-2-2z\nD c 16 17.5 4.5\nF c 24 14 1.25",
    "lens": "B c 16 16 12\nM c 16 16 12\n" + aperture(16, 16, 12, 5.5),
}
PROCESSING = {
    "running": "s=line/4 c 24 24 18\ns=accent/4 M24 6a18 18 0 0 1 15.6 27\nD M24 14v10l6 5",
    "finished": "f=success/.16 c 24 24 18\ns=success c 24 24 18\ns=success/3.5 M15.5 25l6 6 11.5-13",
    "failed": "f=danger/.16 c 24 24 18\ns=danger c 24 24 18\ns=danger/3.5 M17.5 17.5l13 13\ns=danger/3.5 M30.5 17.5l-13 13",
}
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
BAR = "B M2.5 4.5a1 1 0 0 1 1-1H8v13H3.5a1 1 0 0 1-1-1z\nM r 2.5 3.5 15 13 1.5\nM M7.5 4v12\n"


def draw(family):
    for name, drawing in SETTINGS.items():
        family.states(f"settingsPanel/settings_{name}", 24, drawing, "normal checked")
    options = "B c 7 5.5 2.5\nM c 7 5.5 2.5\nM M2.5 5.5h2\nM M9.5 5.5h8\nM M2.5 10.5h15\n"
    family.states("additionalOptions/additional_options_show", 20, options + "D M6.5 13.5l3.5 3.5 3.5-3.5", "normal hover pressed")
    family.states("additionalOptions/additional_options_hide", 20, options + "D M6.5 17l3.5-3.5 3.5 3.5", "normal hover pressed")
    family.states("leftToolBar/left_tool_bar_hide", 20, BAR + "D M14 7.5L11.5 10l2.5 2.5", "normal hover pressed")
    family.states("leftToolBar/left_tool_bar_show", 20, BAR + "D M11.5 7.5L14 10l-2.5 2.5", "normal hover pressed")
    family.states("plugin_bar/plugin_bar_single_picture", 32, "B r 4 6 24 20 3\nM r 4 6 24 20 3\nM M4.5 22l7-7 6 6\nM M15.5 19l4.5-4.5 7.5 7.5\nF c 21.5 11 2", "normal hover pressed", stroke=2)
    family.states("plugin_bar/plugin_bar_batch", 32, "B r 4 11 20 16 2.5\nM r 4 11 20 16 2.5\nD M8 7h17.5a2.5 2.5 0 0 1 2.5 2.5V23\nM M4.5 23.5l5.5-5.5 5 5\nM M13 21l3.5-3.5 7 7", "normal hover pressed", stroke=2)
    draw_answers(family)
    draw_dialogs(family)


def draw_answers(family):
    family.single("confirm/confirm_apply", 20, 20, "s=success/2 M3.5 10.5l4.5 4.5 8.5-9.5")
    family.single("confirm/confirm_apply_hover", 20, 20, "f=success c 10 10 9\ns=on_accent/2 M5.5 10.5l3 3 6-6.5")
    family.single("confirm/confirm_cancel", 20, 20, "s=danger/2 M5.5 5.5l9 9\ns=danger/2 M14.5 5.5l-9 9")
    family.single("confirm/confirm_cancel_hover", 20, 20, "f=danger c 10 10 9\ns=on_accent/2 M6.5 6.5l7 7\ns=on_accent/2 M13.5 6.5l-7 7")
    family.states("reset/reset", 16, "M M2.5 8a5.5 5.5 0 1 0 2-4.25\nM M4.5 1.5v2.75h2.75\nF c 8 8 1.5", "normal hover disabled")


def draw_dialogs(family):
    compass = "\n".join(("D M3.5 13.5L1.5 16l2 2.5", "D M28.5 13.5l2 2.5-2 2.5", "D M13.5 3.5L16 1.5l2.5 2", "D M13.5 28.5l2.5 2 2.5-2"))
    hand = svg.turned(svg.draw(TOGGLES["hand"]), "translate(4 3.5)")
    family.add("handTool/hand_tool", svg.document(32, 32, svg.draw(compass) + hand))
    family.single("secondary_windows/secondary_window", 16, 16,
                  "B r 1.5 5.5 9 9 1\nM r 1.5 5.5 9 9 1\nM M2 8.5h8\nD M5.5 3V2.5a1 1 0 0 1 1-1h7a1 1 0 0 1 1 1v7a1 1 0 0 1-1 1H13")
    family.single("crashSender/crash_sender", 64, 64, CRASHED_PICTURE, stroke=3)
    for name, drawing in CALIBRATION.items():
        family.single(f"cafDialog/caf_{name}", 32, 32, drawing, stroke=2)
    for name, drawing in PROCESSING.items():
        family.single(f"processing/processing_{name}", 48, 48, drawing, stroke=3)
    family.single("thumbnail/thumbnail_no_preview", 96, 72, NO_PREVIEW, stroke=3)
    draw_about(family)


def draw_about(family):
    mark = (RESOURCES / "app_icon/trelio_frame.svg").read_text(encoding="utf-8")
    family.add("aboutDialog_vantora/about_logo", mark.replace('width="1024" height="1024"', 'width="128" height="128"', 1))
    family.states("aboutDialog_vantora/about_website", 20, WEBSITE, "normal hover")
    family.single("aboutDialog_vantora/about_backdrop", 480, 160, backdrop(), definitions=(
        svg.linear("ground", [(0, colour("panel"), 1), (1, colour("ground_deep"), 1)], 0, 0, 0, 160)
        + svg.linear("floor", [(0, colour("accent"), 0.05), (1, colour("accent"), 0.6)], 0, 72, 0, 160)
        + svg.linear("sky", [(0, colour("accent_bright"), 0), (0.5, colour("accent_bright"), 0.9), (1, colour("accent_bright"), 0)], 0, 0, 480, 0)))


def backdrop():
    """A floor of perspective lines that run to a level horizon: what the product straightens."""
    lines = ["f=url(#ground) r 0 0 480 160"]
    lines += [f"s=url(#floor)/1 M{240 + 14 * step} 72L{240 + 82 * step} 160" for step in range(-8, 9)]
    lines += [f"s=url(#floor)/1 M0 {svg.number(72 + 88 * depth)}h480" for depth in (0.09, 0.2, 0.34, 0.52, 0.74)]
    # A level line has a bounding box without height, which gradients in user space do not mind.
    lines.append("f=url(#sky) r 0 71 480 2")
    return "\n".join(lines)
