"""Panels and dialogs: settings, additional options, side bar, plug-in bar, confirmation, reset, about, and the rest."""

from .. import svg
from ..palette import colour
from .toolbar import TOGGLES, gear

SETTINGS = {
    "general": "M M3.5 7.5h8\nM M17.5 7.5h3\nM M3.5 16.5h3\nM M12.5 16.5h8\nB c 14.5 7.5 3\nD c 14.5 7.5 3\nB c 9.5 16.5 3\nD c 9.5 16.5 3",
    "display": "B r 2.5 4.5 19 12 2\nM r 2.5 4.5 19 12 2\nD M12 17v3.5\nD M7.5 20.5h9",
    "language": "B c 12 12 8.5\nM c 12 12 8.5\nD e 12 12 3.5 8.5\nD M4 9.5h16\nD M4 14.5h16",
    "performance": "B M5 18.5a9 9 0 1 1 14 0z\nM M5 18.5a9 9 0 1 1 14 0z\nD M12 13.5l4-5\nF c 12 13.5 1.75",
    "privacy": "B M12 2.5l7.5 3v6c0 5-3.1 8.2-7.5 10-4.4-1.8-7.5-5-7.5-10v-6z\nM M12 2.5l7.5 3v6c0 5-3.1 8.2-7.5 10-4.4-1.8-7.5-5-7.5-10v-6z\nD M8.5 11.5l2.8 2.8 4.7-5.3",
}
OPTIONS = "M M2.5 5.5h5\nM M12.5 5.5h5\nM M2.5 10.5h15\nD M6.5 {tail}l3.5 {turn}3.5 3.5 {back}"
BAR = "B M2.5 4.5a1 1 0 0 1 1-1H8v13H3.5a1 1 0 0 1-1-1z\nM r 2.5 3.5 15 13 1.5\nM M7.5 4v12\n"
HAND = TOGGLES["hand"].replace("M M", "M M")


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
    family.single("confirm/confirm_cancel", 20, 20, "s=danger/2 M5 5l10 10\ns=danger/2 M15 5L5 15")
    family.single("confirm/confirm_cancel_hover", 20, 20, "f=danger c 10 10 9\ns=on_accent/2 M6.5 6.5l7 7\ns=on_accent/2 M13.5 6.5l-7 7")
    family.states("reset/reset", 16, "M M3.5 8.5a4.75 4.75 0 1 0 1.9-4.3\nM M5.5 1.5v3h3", "normal hover disabled")


def draw_dialogs(family):
    family.single("handTool/hand_tool", 32, 32, "M M10 10")
    family.single("secondary_windows/secondary_window", 16, 16, "M M1 1")
    family.single("crashSender/crash_sender", 64, 64, "M M1 1h4")
    for name in ("caf_file", "caf_camera_body", "caf_lens"):
        family.single(f"cafDialog/{name}", 32, 32, "M M1 1h4")
    for name in ("about_logo", "about_backdrop", "about_website", "about_website_hover"):
        family.single(f"aboutDialog_vantora/{name}", 32, 32, "M M1 1h4")
    for name in ("running", "finished", "failed"):
        family.single(f"processing/processing_{name}", 48, 48, "M M1 1h4")
    family.single("thumbnail/thumbnail_no_preview", 96, 72, "M M1 1h4")
