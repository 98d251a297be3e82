"""Colours: the palette shared with the style sheets, and what each state makes of it."""

import json
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[3]
RESOURCES = REPOSITORY / "ExPluginShell/modules/utilsDll/resources"
PALETTE_FILE = RESOURCES / "palette.json"

COLOURS = json.loads(PALETTE_FILE.read_text(encoding="utf-8"))

# What a drawing's layers look like in each state: outline, the stroke of a glyph without second tone, second tone,
# and the tint of closed bodies with its opacity. Hover lights the second tone, pressed turns the whole
# glyph to the accent, checked fills the bodies; so no two states rest on a shade of grey alone.
STATES = {
    "": {"main": "glyph", "lone": "glyph", "detail": "glyph_soft", "body": ("glyph", 0.1)},
    "hover": {"main": "glyph_bright", "lone": "accent_bright", "detail": "accent", "body": ("glyph_bright", 0.16)},
    "pressed": {"main": "accent", "lone": "accent", "detail": "accent", "body": ("accent", 0.12)},
    "checked": {"main": "accent_bright", "lone": "accent_bright", "detail": "glyph_bright", "body": ("accent", 0.45)},
    "disabled": dict.fromkeys(("main", "lone", "detail"), "glyph_disabled") | {"body": ("glyph_disabled", 0.1)},
}


def colour(name):
    """The hexadecimal colour of a palette name."""
    return COLOURS[name]
