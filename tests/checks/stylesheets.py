#!/usr/bin/env python3
"""Checks the style sheets as texts: their palette, their colours, and the contrast of text on its ground.

usage: stylesheets.py RESOURCES-FOLDER
"""

import json
import re
import sys
from pathlib import Path

# The least contrast of text and of disabled text with each palette.
LEAST = {"palette.json": (4.5, 3.0), "palette_high_contrast.json": (7.0, 4.5)}
COLOUR = re.compile(r"#[0-9A-Fa-f]{6}\b")
# The grounds of a widget that has no background of its own.
SURFACES = ("well", "ground", "panel", "field")
WITHOUT_TEXT = {"QDial", "separator", "QSlider", "indicator", "tearoff", "handle", "scroller"}


def luminance(colour):
    channels = [int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    r, g, b = (c / 12.92 if c <= 0.03928 else ((c + 0.055) / 1.055) ** 2.4 for c in channels)
    return 0.2126 * r + 0.7152 * g + 0.0722 * b


def contrast(one, other):
    low, high = sorted((luminance(one), luminance(other)))
    return (high + 0.05) / (low + 0.05)


class Selector:
    """`QComboBox#name::drop-down:hover` as widget, part and states; what comes before it narrows the widget."""

    def __init__(self, text):
        self.text = text
        self.widget, _, rest = text.partition("::") if "::" in text else (text, "", "")
        states = re.findall(r":(!?[\w-]+)", self.widget) + re.findall(r":(!?[\w-]+)", rest)
        self.widget = re.sub(r":!?[\w-]+", "", self.widget)
        self.part = rest.split(":")[0]
        self.states = frozenset(states)

    def covers(self, other):
        return (self.widget, self.part) == (other.widget, other.part) and self.states <= other.states


def rules(sheet):
    text = re.sub(r"/\*.*?\*/", "", sheet, flags=re.S)
    for selectors, body in re.findall(r"([^{}]+)\{([^}]*)\}", text):
        declarations = dict(re.findall(r"([\w-]+)\s*:\s*([^;]+)", body))
        for selector in selectors.split(","):
            yield Selector(" ".join(selector.split())), declarations


def effective(all_rules, selector, name):
    """The value of a property in the states of the selector: more states win, then what stands later."""
    found = [(len(s.states), i, d[name]) for i, (s, d) in enumerate(all_rules) if name in d and s.covers(selector)]
    return max(found)[2] if found else None


def backgrounds(all_rules, selector, palette):
    """The colours that the selector's text can stand on."""
    whole = Selector(selector.widget)
    for candidate in (selector, whole):
        value = effective(all_rules, candidate, "background-color")
        if value and value != "transparent":
            return COLOUR.findall(value)
    return [palette[name] for name in SURFACES]


def read_palette(folder, name):
    return json.loads((folder / name).read_text(encoding="utf-8"))


def read_sheets(folder):
    """The sheets by name; rgba(red, green, blue, opacity) is written as #AARRGGBB."""
    def hexadecimal(found):
        red, green, blue, opacity = map(int, found.groups())
        return f"#{opacity:02X}{red:02X}{green:02X}{blue:02X}"
    rgba = re.compile(r"rgba\((\d+), (\d+), (\d+), (\d+)\)")
    return {path.name: rgba.sub(hexadecimal, path.read_text(encoding="utf-8"))
            for path in sorted((folder / "qss").glob("*.qss"))}


def colour_problems(sheets, palette):
    """Colours that aren't in the palette, or not in the one notation that is recoloured for high contrast."""
    head = sheets["custom.qss"].split("*/")[0]
    named = dict(re.findall(r"^ \*   (\w+) +(#\w{6})", head, flags=re.M))
    if named != palette:
        yield f"the palette at the top of custom.qss is not palette.json: {sorted(set(named.items()) ^ set(palette.items()))}"
    for name, sheet in sheets.items():
        rules_only = re.sub(r"/\*.*?\*/", "", sheet, flags=re.S)
        unknown = set(re.findall(r"#(?:[0-9A-F]{2})?([0-9A-F]{6})\b", rules_only)) - {c[1:] for c in palette.values()}
        other = set(re.findall(r"rgba?\(|hsv|hsl|palette\(|: *(?:white|black|gray|red)\b|#\w*[a-f]\w*\b(?=[^{}]*\})", rules_only))
        if unknown | other:
            yield f"{name}: not in the palette: {', '.join(sorted(unknown | other))}"


def contrast_problems(sheets, palette, least):
    checked = 0
    for name, sheet in sheets.items():
        all_rules = list(rules(sheet))
        for selector, declarations in all_rules:
            colour = effective(all_rules, selector, "color") or effective(all_rules, Selector(selector.widget), "color")
            if not colour or not {"color", "background-color"} & declarations.keys():
                continue
            if {selector.widget.split("#")[0], selector.part} & WITHOUT_TEXT:
                continue
            wanted = least["disabled" in selector.states]
            for ground in backgrounds(all_rules, selector, palette):
                checked += 1
                if contrast(colour, ground) < wanted:
                    yield f"{name}: {selector.text}: {colour} on {ground} is {contrast(colour, ground):.2f} to 1"
    if checked < 100:
        yield f"only {checked} pairs of colours were found"


def problems(folder):
    palette, sheets = read_palette(folder, "palette.json"), read_sheets(folder)
    if len(sheets) != 7:
        yield f"{len(sheets)} sheets instead of seven"
    wrong_colours = list(colour_problems(sheets, palette))
    yield from wrong_colours
    for name, sheet in sheets.items():
        for selector, declarations in rules(sheet):
            if selector.states and any(property.startswith("qproperty-") for property in declarations):
                yield f"{name}: {selector.text}: Qt sets no property from a rule with a state"
            if "px" in declarations.get("font-size", ""):
                yield f"{name}: {selector.text}: a font size in pixels doesn't follow the system's text size"
    for name, least in () if wrong_colours else LEAST.items():
        other = read_palette(folder, name)
        if other.keys() != palette.keys():
            yield f"{name} doesn't have the names of palette.json"
        recoloured = {colour[1:]: other[key][1:] for key, colour in palette.items()}
        texts = {sheet: re.sub(r"(?<=[#0-9A-F])[0-9A-F]{6}\b", lambda found: recoloured[found[0]], text)
                 for sheet, text in sheets.items()}
        yield from contrast_problems(texts, other, least)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = list(problems(Path(sys.argv[1])))
    if found:
        sys.exit("\n".join("check_stylesheets: " + problem for problem in found))


if __name__ == "__main__":
    main()
