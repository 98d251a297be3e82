"""Turns a drawing into SVG text, within the SVG Tiny 1.2 that Qt renders.

A drawing is a text of one shape per line: a layer, a blank, a shape.

Layers that follow the state: `M` outline and `D` second tone, stroked, `S` and `F` the same filled, `B` the tint of
a body, `O` that tint and the outline of one shape, `A` the stroke of a glyph that has one tone only.
Layers of a fixed palette colour: `f=NAME[/OPACITY]` filled, `s=NAME[/WIDTH[/OPACITY]]` stroked; NAME may also be a
gradient of the image, `url(#a)`.

Shapes: `c CX CY R`, `e CX CY RX RY`, `r X Y W H [RADIUS]`, or path data.
"""

from .palette import STATES, colour

STROKE = 1.5


def number(value):
    """The shortest text of a coordinate with at most three decimals."""
    text = f"{value:.3f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def shape(text):
    """The SVG element of one shape, open at its end for the paint attributes."""
    kind, _, rest = text.partition(" ")
    if kind == "c":
        cx, cy, r = rest.split()
        return f'<circle cx="{cx}" cy="{cy}" r="{r}"'
    if kind == "e":
        cx, cy, rx, ry = rest.split()
        return f'<ellipse cx="{cx}" cy="{cy}" rx="{rx}" ry="{ry}"'
    if kind == "r":
        x, y, width, height, *radius = rest.split()
        corner = f' rx="{radius[0]}"' if radius else ""
        return f'<rect x="{x}" y="{y}" width="{width}" height="{height}"{corner}'
    return f'<path d="{text}"'


def stroked(paint, width, opacity=""):
    faded = f' stroke-opacity="{opacity}"' if opacity else ""
    return (f'fill="none" stroke="{paint}" stroke-width="{width}"{faded}'
            ' stroke-linecap="round" stroke-linejoin="round"')


def filled(paint, opacity=""):
    return f'fill="{paint}"' + (f' fill-opacity="{opacity}"' if opacity else "")


def layer_paint(layer, state, stroke):
    """The paint attributes of a layer in a state."""
    tones = STATES[state]
    if layer == "B":
        name, opacity = tones["body"]
        return filled(colour(name), number(opacity))
    if layer in "SF":
        return filled(colour(tones["main" if layer == "S" else "detail"]))
    if layer in "MDA":
        return stroked(colour(tones[{"M": "main", "D": "detail", "A": "lone"}[layer]]), number(stroke))
    kind, name, *more = layer.replace("=", "/").split("/")
    paint = name if name.startswith("url(") else colour(name)
    if kind == "f":
        return filled(paint, *more)
    return stroked(paint, *(more or [number(stroke)]))


def document(width, height, content):
    """A whole SVG file of that size in pixels."""
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{number(width)}" height="{number(height)}"'
            f' viewBox="0 0 {number(width)} {number(height)}">{content}</svg>\n')


def draw(drawing, state="", stroke=STROKE):
    """The elements of a drawing in a state; neighbours of one layer share a group."""
    parts, open_layer = [], None
    for line in filter(None, map(str.strip, drawing.splitlines())):
        layers, _, geometry = line.partition(" ")
        for layer in ("B", "M") if layers == "O" else (layers,):
            if layer != open_layer:
                if open_layer:
                    parts.append("</g>")
                parts.append(f"<g {layer_paint(layer, state, stroke)}>")
                open_layer = layer
            parts.append(shape(geometry) + "/>")
    return "".join(parts) + ("</g>" if open_layer else "")


def turned(content, matrix):
    """The content under a transform such as `rotate(90 12 12)`."""
    return f'<g transform="{matrix}">{content}</g>'


def flipped(content, width):
    """The content mirrored left to right."""
    return turned(content, f"matrix(-1 0 0 1 {number(width)} 0)")


def linear(identifier, stops, x1, y1, x2, y2):
    return (f'<linearGradient id="{identifier}" gradientUnits="userSpaceOnUse" x1="{number(x1)}" y1="{number(y1)}"'
            f' x2="{number(x2)}" y2="{number(y2)}">{gradient_stops(stops)}</linearGradient>')


def radial(identifier, stops, cx, cy, r):
    return (f'<radialGradient id="{identifier}" gradientUnits="userSpaceOnUse" cx="{number(cx)}" cy="{number(cy)}"'
            f' r="{number(r)}">{gradient_stops(stops)}</radialGradient>')


def gradient_stops(stops):
    """Stops given as (offset, colour value, opacity)."""
    return "".join(f'<stop offset="{number(offset)}" stop-color="{value}" stop-opacity="{number(opacity)}"/>'
                   for offset, value, opacity in stops)
