"""An XLSX file as it was written, read with the standard library alone."""

import posixpath
import re
import xml.etree.ElementTree as ElementTree
import zipfile

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
DRAWING = "{http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing}"
# Formats of numbers that need no entry in the file.
KNOWN_FORMATS = {0: "General", 1: "0", 2: "0.00"}


class Workbook:
    """The first sheet of a file."""

    def __init__(self, file):
        with zipfile.ZipFile(file) as package:
            self.sheet = ElementTree.fromstring(package.read("xl/worksheets/sheet1.xml"))
            self.styles = styles_of(ElementTree.fromstring(package.read("xl/styles.xml")))
            self.strings = strings_of(package)
            self.places = places_of_pictures(package)
            self.name = ElementTree.fromstring(package.read("xl/workbook.xml")).find(f".//{MAIN}sheet").get("name")

    def frozen_rows(self):
        pane = self.sheet.find(f".//{MAIN}pane")
        return int(pane.get("ySplit")) if pane is not None and pane.get("state") == "frozen" else 0

    def filter(self):
        found = self.sheet.find(f"{MAIN}autoFilter")
        return found.get("ref") if found is not None else ""

    def columns(self):
        """(first, last, characters, is hidden)"""
        return [(int(each.get("min")), int(each.get("max")), float(each.get("width")), each.get("hidden") == "1")
                for each in self.sheet.iter(MAIN + "col")]

    def cells(self):
        """(name, content) in their order: a text in quotes, a formula with its result, a number with its format; a
        star for bold."""
        for cell in self.sheet.iter(MAIN + "c"):
            number_format, is_bold = self.styles[int(cell.get("s", "0"))]
            value = cell.findtext(MAIN + "v") or ""
            formula = cell.findtext(MAIN + "f")
            if cell.get("t") == "s":
                content = repr(self.strings[int(value)])
            elif cell.get("t") in (None, "n"):
                # All digits of a measure are not the same with every version of the modeller.
                content = f"{float(value):.6g} {number_format}" if value else ""
            else:
                content = f"{cell.get('t')} {value}"
            yield cell.get("r"), f"={formula} -> {content}" if formula else content, is_bold

    def text(self):
        lines = [f"sheet {self.name}, filter {self.filter()}, {self.frozen_rows()} row frozen"]
        lines += [f"column {first}-{last}: {width:.4g} characters{', hidden' if is_hidden else ''}"
                  for first, last, width, is_hidden in self.columns()]
        lines += [f"{name} {content}{' bold' if is_bold else ''}" for name, content, is_bold in self.cells() if content]
        lines += [f"picture in {place}" for place in self.places]
        return "\n".join(lines) + "\n"


def styles_of(root):
    """(format of numbers, is bold) of each style."""
    formats = {int(each.get("numFmtId")): each.get("formatCode") for each in root.iter(MAIN + "numFmt")}
    bold = [font.find(MAIN + "b") is not None for font in root.find(MAIN + "fonts")]
    styles = []
    for style in root.find(MAIN + "cellXfs"):
        number = int(style.get("numFmtId"))
        styles.append((formats.get(number) or KNOWN_FORMATS.get(number, str(number)), bold[int(style.get("fontId"))]))
    return styles


def strings_of(package):
    if "xl/sharedStrings.xml" not in package.namelist():
        return []
    root = ElementTree.fromstring(package.read("xl/sharedStrings.xml"))
    return [unescaped("".join(part.text or "" for part in each.iter(MAIN + "t"))) for each in root]


def unescaped(text):
    """Characters that XML cannot hold are written as _x000D_."""
    return re.sub("_x([0-9A-Fa-f]{4})_", lambda found: chr(int(found[1], 16)), text)


def places_of_pictures(package):
    """The cells that pictures begin in; whether the picture is there is checked too."""
    places = []
    for name in package.namelist():
        if re.fullmatch(r"xl/drawings/drawing\d+\.xml", name):
            targets = pictures_of(package, name)
            for anchor in ElementTree.fromstring(package.read(name)):
                column, row = (int(anchor.findtext(f"{DRAWING}from/{DRAWING}{each}")) for each in ("col", "row"))
                picture = next(each for each in anchor.iter() if each.tag.endswith("}blip"))
                identity = next(value for key, value in picture.attrib.items() if key.endswith("}embed"))
                signature = package.read(targets[identity])[1:4].decode("latin-1")
                places.append(f"{chr(ord('A') + column)}{row + 1}: {signature}")
    return places


def pictures_of(package, drawing):
    folder, name = posixpath.split(drawing)
    relations = ElementTree.fromstring(package.read(f"{folder}/_rels/{name}.rels"))
    return {each.get("Id"): posixpath.normpath(posixpath.join(folder, each.get("Target"))) for each in relations}
