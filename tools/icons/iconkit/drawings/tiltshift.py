"""Tilt-shift: the two blur shapes (24 pixels), their marks on the picture, and the blur slider."""

from .corrections import ALL_STATES, picture_mark

LINEAR = "B r 3 8.5 18 7\nM M2.5 8.5h19\nM M2.5 15.5h19\nF c 12 12 1.5\nD M4.5 4.5h2\nD M11 4.5h2\nD M17.5 4.5h2\nD M4.5 19.5h2\nD M11 19.5h2\nD M17.5 19.5h2"
RADIAL = ("B e 12 12 5.5 5.5\nM c 12 12 5.5\nF c 12 12 1.5\n"
          "D M9.3 3.4a9 9 0 0 1 5.4 0\nD M20.6 9.3a9 9 0 0 1 0 5.4\nD M14.7 20.6a9 9 0 0 1-5.4 0\nD M3.4 14.7a9 9 0 0 1 0-5.4")


def draw(family):
    family.states("tiltshift/tiltshift_linear", 24, LINEAR, ALL_STATES)
    family.states("tiltshift/tiltshift_radial", 24, RADIAL, ALL_STATES)
    family.single("tiltshift/tiltshift_centre_handle", 24, 24, picture_mark("c 12 12 8", 2, 4) + "\n" + picture_mark("M12 9v6M9 12h6", 2, 4))
    family.single("tiltshift/tiltshift_rotation_handle", 24, 24, picture_mark("M4.5 15a7.5 7.5 0 0 1 15 0M1.7 12.2L4.5 15l2.8-2.8M16.7 12.2l2.8 2.8 2.8-2.8", 2, 4)
                  + "\nf=ground_deep/.85 c 12 15 2.5\nf=glyph_bright c 12 15 1.5")
    family.single("tiltshift/tiltshift_focus_line", 24, 7, picture_mark("M3.5 3.5h5M15.5 3.5h5", 1.5, 3.5))
    knob = "f=ground_deep M1 3.5a2 2 0 0 1 2-2h8a2 2 0 0 1 2 2v7L7 17l-6-6.5z\nf={} M2 3.5a1 1 0 0 1 1-1h8a1 1 0 0 1 1 1V10l-5 5-5-5z\n"
    for state, tone, mark in (("", "glyph", "ground"), ("_hover", "glyph_bright", "accent"),
                              ("_pressed", "accent", "on_accent"), ("_disabled", "glyph_disabled", "ground")):
        family.single(f"tiltshift/slider/tiltshift_slider_handle{state}", 14, 18, knob.format(tone) + f"s={mark} M7 5.5v4.5")
    family.single("tiltshift/slider/tiltshift_slider_sharp", 16, 16, "B c 8 8 5.5\nM c 8 8 5.5\nF c 8 8 2")
    family.single("tiltshift/slider/tiltshift_slider_blurred", 16, 16, "f=glyph/.16 c 8 8 7.5\nf=glyph/.25 c 8 8 5.5\nf=glyph/.45 c 8 8 3.5\nf=glyph/.8 c 8 8 1.75")
