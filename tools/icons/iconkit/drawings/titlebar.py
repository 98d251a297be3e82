"""Buttons of the product's own title bars. The plate belongs to the image, so that it fills the button."""

PLATES = {"": "", "hover": "raised_hover", "pressed": "accent_deep", "disabled": ""}
CLOSE_PLATES = {**PLATES, "hover": "danger", "pressed": "danger_deep"}
GLYPHS = {"": "glyph", "hover": "glyph_bright", "pressed": "glyph_bright", "disabled": "glyph_disabled"}
CLOSE_GLYPHS = {**GLYPHS, "hover": "on_accent"}

BUTTONS = {
    "close": ("M7.5 7.5l9 9", "M16.5 7.5l-9 9"),
    "minimize": ("M7.5 12.5h9",),
    "maximize": ("r 7.5 7.5 9 9 1",),
    "restore": ("r 7.5 9.5 7 7 1", "M9.5 7.5h6a1 1 0 0 1 1 1v6"),
}


def draw(family):
    for name, shapes in BUTTONS.items():
        plates, glyphs = (CLOSE_PLATES, CLOSE_GLYPHS) if name == "close" else (PLATES, GLYPHS)
        for state, glyph in glyphs.items():
            plate = f"f={plates[state]} r 0 0 24 24 3\n" if plates[state] else ""
            family.single(f"winTitleBar/titlebar_{name}" + (f"_{state}" if state else ""), 24, 24,
                          plate + "\n".join(f"s={glyph} {line}" for line in shapes))
