"""Soft shadows as gradients, so that they scale with the display: frames around pictures, pop-ups and panels."""

from .. import svg
from ..palette import colour

# Eased fall-off: a straight ramp shows a visible edge where it ends.
EASING = ((0, 1), (0.2, 0.74), (0.4, 0.46), (0.6, 0.22), (0.8, 0.06), (1, 0))


def fall_off(strength, start=0.0):
    """Stops that fade from the strength at `start` to nothing at the end."""
    ramp = [(start + (1 - start) * at, colour("shadow"), strength * value) for at, value in EASING]
    return ([(0, colour("shadow"), strength)] if start else []) + ramp


def frame_pieces(extent):
    """The eight pieces of a square frame's shadow: name, starting point, direction of fading (0, 0 for a corner)."""
    sides = {"top": (0, -1), "right": (1, 0), "bottom": (0, 1), "left": (-1, 0)}
    for name, (dx, dy) in sides.items():
        yield name, extent if dx < 0 else 0, extent if dy < 0 else 0, dx, dy
    for vertical in ("top", "bottom"):
        for horizontal in ("left", "right"):
            x, y = extent if horizontal == "left" else 0, extent if vertical == "top" else 0
            yield f"{vertical}_{horizontal}", x, y, 0, 0


def gradient_piece(extent, strength, x, y, dx, dy):
    stops = fall_off(strength)
    if dx or dy:
        gradient = svg.linear("a", stops, x, y, x + dx * extent, y + dy * extent)
    else:
        gradient = svg.radial("a", stops, x, y, extent)
    return gradient, f"f=url(#a) r 0 0 {extent} {extent}"


def box(family, path, size, margin, strength):
    """A whole box shadow with a clear middle, to be stretched in nine parts of `margin` pixels."""
    inner = size - 2 * margin
    definitions, shapes = [], []
    for name, x, y, dx, dy in frame_pieces(margin):
        left = 0 if "left" in name else margin if name in ("top", "bottom") else margin + inner
        top = 0 if "top" in name else margin if name in ("left", "right") else margin + inner
        x, y = x + left, y + top
        if dx or dy:
            gradient = svg.linear(name, fall_off(strength), x, y, x + dx * margin, y + dy * margin)
        else:
            gradient = svg.radial(name, fall_off(strength), x, y, margin)
        definitions.append(gradient)
        width, height = (inner if dy else margin), (inner if dx else margin)
        shapes.append(f"f=url(#{name}) r {left} {top} {width} {height}")
    family.single(path, size, size, "\n".join(shapes), definitions="".join(definitions))


def draw(family):
    for name, *direction in frame_pieces(16):
        gradient, shape = gradient_piece(16, 0.7, *direction)
        family.single(f"previewShadow/preview_shadow_{name}", 16, 16, shape, definitions=gradient)
    for name, x, y, dx, dy in list(frame_pieces(8))[:4]:
        gradient, shape = gradient_piece(8, 0.5, x, y, dx, dy)
        family.single(f"shadow/shadow_panel_{name}", 8, 8, shape, definitions=gradient)
    box(family, "shadow/shadow_dialog", 96, 32, 0.6)
    box(family, "shadow/shadow_popup", 48, 16, 0.55)
    box(family, "shadow/shadow_tooltip", 24, 8, 0.45)
    # The loupe is a disc of radius 96 in a picture of 224: the shadow begins under its rim and is thicker below.
    ring = svg.radial("a", [(0, colour("shadow"), 0), (0.83, colour("shadow"), 0), (0.84, colour("shadow"), 0.65),
                            *fall_off(0.65, 0.85)[1:]], 112, 114, 110)
    family.single("loupeShadow/loupe_shadow", 224, 224, "f=url(#a) c 112 114 110\ns=glyph/2/.9 c 112 112 95",
                  definitions=ring)
