"""Images of the standard controls, used by the style sheets: check box, radio button, combo box,
group box and tree, scroll bar, slider, spin box."""

# Frame, ground and mark of a box indicator in each state.
EMPTY_BOX = {"": ("line_control", "field"), "hover": ("accent", "raised"), "pressed": ("accent_bright", "accent_deep"),
             "disabled": ("line", "panel"), "focus": ("accent", "field")}
FULL_BOX = {"": ("accent", "accent", "on_accent"), "hover": ("accent_bright", "accent_bright", "on_accent"),
            "pressed": ("accent_deep", "accent_deep", "glyph_bright"), "disabled": ("line", "line", "glyph_soft"),
            "focus": ("accent", "accent", "on_accent")}
CHECK = "M5.5 9.2l2.5 2.5 4.7-5.2"
DASH = "M5.75 9h6.5"
FOCUS_RING = "s=accent_bright/1/.8 r .5 .5 17 17 4.5\n"


def suffix(state):
    return f"_{state}" if state else ""


def indicator(state, frame, ground, mark=""):
    """A box of 14 pixels, with room for the focus ring around it."""
    ring = FOCUS_RING if state == "focus" else ""
    return f"{ring}f={ground} r 2 2 14 14 3\ns={frame}/1 r 2.5 2.5 13 13 2.5\n{mark}"


def draw_check_boxes(family):
    for state, (frame, ground) in EMPTY_BOX.items():
        family.single(f"checkBox/checkbox_unchecked{suffix(state)}", 18, 18, indicator(state, frame, ground))
    for word, mark in (("checked", CHECK), ("indeterminate", DASH)):
        for state, (frame, ground, tone) in FULL_BOX.items():
            family.single(f"checkBox/checkbox_{word}{suffix(state)}", 18, 18,
                          indicator(state, frame, ground, f"s={tone}/2 {mark}"))
    family.states("checkBox/checkbox_menu_mark", 16, "M M3.5 8.5l3 3 6-7", "normal disabled", stroke=2)


def draw_radio_buttons(family):
    family.single("radioButton/radiobutton_unchecked", 18, 18, "f=field c 9 9 7\ns=line_control/1 c 9 9 6.5")
    family.single("radioButton/radiobutton_checked", 18, 18, "f=accent c 9 9 7\nf=on_accent c 9 9 2.75")


def draw_expanders(family):
    family.states("groupBox/branch_closed", 16, "A M6.5 4.5l3.5 3.5-3.5 3.5", "normal hover disabled")
    family.states("groupBox/branch_open", 16, "A M4.5 6.5l3.5 3.5 3.5-3.5", "normal hover disabled")
    framed = "B r 2 2 16 16 4\n"
    family.states("groupBox/groupbox_expand", 20, framed + "A M6.5 8.5l3.5 3.5 3.5-3.5", "normal hover")
    family.states("groupBox/groupbox_collapse", 20, framed + "A M6.5 11.5l3.5-3.5 3.5 3.5", "normal hover")


def rounded(tone, points):
    """A solid shape whose corners are rounded by a stroke around it."""
    return f"f={tone} {points}\ns={tone}/1 {points}"


def draw_arrows(family):
    chevron = "{} M2.5 2.5l3.5 3.5 3.5-3.5"
    family.single("comboBox/combobox_arrow", 12, 8, chevron.format("M"))
    family.single("comboBox/combobox_arrow_disabled", 12, 8, chevron.format("s=glyph_disabled"))
    for name, points in (("up", "M2.5 7.5L6 4l3.5 3.5z"), ("down", "M2.5 4.5L6 8l3.5-3.5z"),
                         ("left", "M7.5 2.5L4 6l3.5 3.5z"), ("right", "M4.5 2.5L8 6 4.5 9.5z")):
        for state, tone in (("", "glyph_soft"), ("hover", "glyph_bright"), ("disabled", "line")):
            family.single(f"scrollBar/scrollbar_arrow_{name}{suffix(state)}", 12, 12, rounded(tone, points))
    for name, points in (("up", "M2.5 4.5L5 2 7.5 4.5z"), ("down", "M2.5 1.5L5 4 7.5 1.5z")):
        for state, tone in (("", "glyph"), ("hover", "accent_bright"), ("disabled", "glyph_disabled")):
            family.single(f"buttons/spinbox_{name}{suffix(state)}", 10, 6, rounded(tone, points))


def draw_sliders(family):
    knob = "f=ground_deep c 8 8 7.5\nf={} c 8 8 6\n"
    for state, tone, extra in (("", "glyph", ""), ("hover", "glyph_bright", "f=accent c 8 8 2.5"),
                               ("pressed", "accent", "f=on_accent c 8 8 2.5"), ("disabled", "glyph_disabled", ""),
                               ("focus", "glyph", "s=accent/2 c 8 8 6.5")):
        family.single(f"slider/slider_handle{suffix(state)}", 16, 16, knob.format(tone) + extra)
    family.single("slider/slider_zero_mark", 7, 5, "f=glyph_soft M0 0h7v1L3.5 4.5 0 1z")


def draw(family):
    draw_check_boxes(family)
    draw_radio_buttons(family)
    draw_expanders(family)
    draw_arrows(family)
    draw_sliders(family)
