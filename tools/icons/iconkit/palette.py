"""The palette, shared with the style sheets, and the tones of each state."""

import json
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[3]
RESOURCES = REPOSITORY / "ExPluginShell/modules/utilsDll/resources"
PALETTE_FILE = RESOURCES / "palette.json"

COLOURS = json.loads(PALETTE_FILE.read_text(encoding="utf-8"))

# The colours of a drawing's layers in each state: outline, stroke of a glyph without second tone, second tone, tint of
# closed bodies with its opacity. Two states never differ by a shade of grey only.
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
