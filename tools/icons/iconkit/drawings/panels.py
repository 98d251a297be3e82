"""Panels: settings, additional options, side bar, plug-in bar, confirmation and reset."""

SETTINGS = {
    # Two switches, one on and one off.
    "general": """
O r 2.5 4.5 19 6 3
O r 2.5 13.5 19 6 3
F c 18.5 7.5 1.75
F c 5.5 16.5 1.75
""",
    "display": """
O r 2.5 4.5 19 12 2
D M12 17v3.5
D M7.5 20.5h9
""",
    "language": """
O c 12 12 8.5
D e 12 12 3.5 8.5
D M4 9.5h16
D M4 14.5h16
""",
    "performance": """
O M5 18.5a9 9 0 1 1 14 0z
D M12 13.5l4-5
F c 12 13.5 1.75
""",
    "privacy": """
O M12 2.5l7.5 3v6c0 5-3.1 8.2-7.5 10-4.4-1.8-7.5-5-7.5-10v-6z
D M8.5 11.5l2.8 2.8 4.7-5.3
""",
}
OPTIONS = """
S c 4.5 6.5 1.75
S c 10 6.5 1.75
S c 15.5 6.5 1.75
"""
BAR = """
B M2.5 4.5a1 1 0 0 1 1-1H8v13H3.5a1 1 0 0 1-1-1z
M r 2.5 3.5 15 13 1.5
M M7.5 4v12
"""
SINGLE_PICTURE = """
O r 4 6 24 20 3
M M4.5 22l7-7 6 6
M M15.5 19l4.5-4.5 7.5 7.5
F c 21.5 11 2
"""
BATCH = """
O r 4 11 20 16 2.5
D M8 7h17.5a2.5 2.5 0 0 1 2.5 2.5V23
M M4.5 23.5l5.5-5.5 5 5
M M13 21l3.5-3.5 7 7
"""
RESET = """
M M2.5 8a5.5 5.5 0 1 0 2-4.25
M M4.5 1.5v2.75h2.75
F c 8 8 1.5
"""
# The answers carry the colours of success and danger; under the mouse they become a filled disc.
CONFIRM = {
    "apply": "s=success/2 M3.5 10.5l4.5 4.5 8.5-9.5",
    "apply_hover": "f=success c 10 10 9\ns=on_accent/2 M5.5 10.5l3 3 6-6.5",
    "cancel": "s=danger/2 M5.5 5.5l9 9M14.5 5.5l-9 9",
    "cancel_hover": "f=danger c 10 10 9\ns=on_accent/2 M6.5 6.5l7 7M13.5 6.5l-7 7",
}
BUTTON_STATES = "normal hover pressed"


def draw(family):
    for name, drawing in SETTINGS.items():
        family.states(f"settingsPanel/settings_{name}", 24, drawing, "normal checked")
    for name, chevron in (("show", "D M6.5 13.5l3.5 3.5 3.5-3.5"), ("hide", "D M6.5 17l3.5-3.5 3.5 3.5")):
        family.states(f"additionalOptions/additional_options_{name}", 20, OPTIONS + chevron, BUTTON_STATES)
    for name, chevron in (("hide", "D M14 7.5L11.5 10l2.5 2.5"), ("show", "D M11.5 7.5L14 10l-2.5 2.5")):
        family.states(f"leftToolBar/left_tool_bar_{name}", 20, BAR + chevron, BUTTON_STATES)
    for name, drawing in (("single_picture", SINGLE_PICTURE), ("batch", BATCH)):
        family.states(f"plugin_bar/plugin_bar_{name}", 32, drawing, BUTTON_STATES, stroke=2)
    for name, drawing in CONFIRM.items():
        family.single(f"confirm/confirm_{name}", 20, 20, drawing)
    family.states("reset/reset", 16, RESET, "normal hover disabled")
