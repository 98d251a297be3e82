"""The images of the whole family, folder by folder."""

from . import drawings, svg

SUFFIX = {"normal": "", "hover": "hover", "pressed": "pressed", "checked": "checked", "disabled": "disabled"}

# The number of images in each folder is part of the product's interface.
COUNTS = {
    "": 30, "aboutDialog_vantora": 4, "additionalOptions": 6, "anamorphose": 10, "buttons": 6, "cafDialog": 3,
    "checkBox": 17, "comboBox": 2, "confirm": 4, "correctionInfo": 12, "crashSender": 1, "crop": 2, "cursors": 12,
    "distortion": 34, "groupBox": 10, "handTool": 1, "horizon": 6, "keystoning": 8, "leftToolBar": 6,
    "loupeShadow": 1, "messagebox": 7, "perspective": 12, "plugin_bar": 6, "previewShadow": 8, "processing": 3,
    "radioButton": 2, "reset": 3, "scrollBar": 12, "secondary_windows": 1, "settingsPanel": 10, "shadow": 7,
    "slider": 6, "thumbnail": 1, "tiltshift": 13, "tiltshift/slider": 6, "toolbar": 49, "toolbar/filebrowser": 12,
    "winTitleBar": 16,
}


class Family:
    """Collects the images; a name may be given only once."""

    def __init__(self):
        self.files = {}

    def add(self, path, text):
        """An image by its path below the icon folder, without extension."""
        name = path + ".svg"
        if name in self.files:
            raise ValueError(f"{name} is drawn twice")
        self.files[name] = text

    def states(self, path, size, drawing, states, *, stroke=svg.STROKE, change=None):
        """One square drawing in several states, the blank-separated words `normal hover pressed checked disabled`.

        `change` is applied to the drawn content, for instance a mirroring.
        """
        for word in states.split():
            state = SUFFIX[word]
            content = svg.draw(drawing, state, stroke)
            name = f"{path}_{state}" if state else path
            self.add(name, svg.document(size, size, change(content) if change else content))

    def single(self, path, width, height, drawing, *, stroke=svg.STROKE, definitions=""):
        """One image in its normal state."""
        content = (f"<defs>{definitions}</defs>" if definitions else "") + svg.draw(drawing, "", stroke)
        self.add(path, svg.document(width, height, content))


def build():
    """All images by relative path; raises ValueError if a folder has a wrong number of images."""
    family = Family()
    for module in drawings.MODULES:
        module.draw(family)
    found = dict.fromkeys(COUNTS, 0)
    for name in family.files:
        folder = name.rpartition("/")[0]
        found[folder] = found.get(folder, 0) + 1
    wrong = [f"{folder or 'top level'}: {found[folder]} images, {COUNTS.get(folder, 0)} wanted"
             for folder in found if found[folder] != COUNTS.get(folder, 0)]
    if wrong:
        raise ValueError("; ".join(wrong))
    return dict(sorted(family.files.items()))
