#!/usr/bin/env python3
"""Checks the style sheets as texts: their palette, their colours, and the contrast of text on its ground.

usage: stylesheets.py RESOURCES-FOLDER
"""

import json
import re
import sys
from pathlib import Path

TEXT, DISABLED_TEXT = 4.5, 3.0
COLOUR = re.compile(r"#[0-9A-Fa-f]{6}\b")
# The grounds of a widget that has no background of its own.
SURFACES = ("well", "ground", "panel", "field")
WITHOUT_TEXT = {"QDial", "QSlider", "indicator", "tearoff", "handle", "scroller"}


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


def problems(folder):
    palette = json.loads((folder / "palette.json").read_text(encoding="utf-8"))
    sheets = {path.name: path.read_text(encoding="utf-8") for path in sorted((folder / "qss").glob("*.qss"))}
    if len(sheets) != 7:
        yield f"{len(sheets)} sheets instead of seven"
    head = sheets["custom.qss"].split("*/")[0]
    named = dict(re.findall(r"^ \*   (\w+) +(#\w{6})", head, flags=re.M))
    if named != palette:
        yield f"the palette at the top of custom.qss is not palette.json: {sorted(set(named.items()) ^ set(palette.items()))}"
    checked = 0
    for name, sheet in sheets.items():
        unknown = {colour for colour in COLOUR.findall(re.sub(r"/\*.*?\*/", "", sheet, flags=re.S))} - set(palette.values())
        if unknown:
            yield f"{name}: not in the palette: {', '.join(sorted(unknown))}"
        all_rules = list(rules(sheet))
        for selector, declarations in all_rules:
            if selector.states and any(property.startswith("qproperty-") for property in declarations):
                yield f"{name}: {selector.text}: Qt sets no property from a rule with a state"
            colour = effective(all_rules, selector, "color") or effective(all_rules, Selector(selector.widget), "color")
            if not colour or not {"color", "background-color"} & declarations.keys():
                continue
            if {selector.widget.split("#")[0], selector.part} & WITHOUT_TEXT:
                continue
            least = DISABLED_TEXT if "disabled" in selector.states else TEXT
            for ground in backgrounds(all_rules, selector, palette):
                checked += 1
                if contrast(colour, ground) < least:
                    yield f"{name}: {selector.text}: {colour} on {ground} is {contrast(colour, ground):.2f} to 1"
    if checked < 100:
        yield f"only {checked} pairs of colours were found"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = list(problems(Path(sys.argv[1])))
    if found:
        sys.exit("\n".join("check_stylesheets: " + problem for problem in found))


if __name__ == "__main__":
    main()
