"""Spreadsheets as LibreOffice reads them.

LibreOffice converts a file into a flat OpenDocument file, which is read with the standard library. Formulas
of a workbook are calculated again, whatever results the file holds.
"""

import dataclasses
import os
import pathlib
import re
import subprocess
import xml.etree.ElementTree as ElementTree
import zipfile

CALC = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
OFFICE = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
DRAW = "{urn:oasis:names:tc:opendocument:xmlns:drawing:1.0}"
STYLE = "{urn:oasis:names:tc:opendocument:xmlns:style:1.0}"
TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"

WRONG_RESULT = "12345"

ALWAYS_CALCULATE = """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Calc/Formula/Load">
<prop oor:name="OOXMLRecalcMode" oor:op="fuse"><value>0</value></prop></item>
</oor:items>
"""


@dataclasses.dataclass
class Cell:
    kind: str = ""       # "string", "float", "date", ...; empty without a value
    value: str = ""      # of a number or a date
    text: str = ""       # as it is shown
    formula: str = ""
    pictures: int = 0


@dataclasses.dataclass
class Column:
    width_cm: float
    is_hidden: bool


@dataclasses.dataclass
class Sheet:
    name: str
    rows: list           # lists of cells; empty ones at the end are left out
    columns: list
    filters: list        # ranges of cells, as in "Parts.A1:Parts.F9"

    def number(self, row, column):
        """None for what is no number."""
        cell = self.rows[row][column]
        return float(cell.value) if cell.kind == "float" else None


class Office:
    """LibreOffice with settings of its own, below a folder."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        settings = self.folder / "profile" / "user"
        settings.mkdir(parents=True)
        (settings / "registrymodifications.xcu").write_text(ALWAYS_CALCULATE)

    def open(self, file, import_options=""):
        """The first sheet. The options are those of LibreOffice's filter for CSV: separators, quotes, character set
        (76 is UTF-8), first line, formats of columns, language, whether what is quoted is text, whether dates and
        the like are detected."""
        options = [f"--infilter=CSV:{import_options}"] if import_options else []
        subprocess.run(["soffice", f"-env:UserInstallation=file://{self.folder}/profile", "--headless", "--norestore",
                        *options, "--convert-to", "fods", "--outdir", self.folder / "opened", file],
                       check=True, env=dict(os.environ, HOME=str(self.folder)), stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        return sheet_of(ElementTree.parse(self.folder / "opened" / (pathlib.Path(file).stem + ".fods")).getroot())


def with_wrong_results(workbook, changed):
    """Copies a workbook in which the result of every formula is wrong: who reads right ones has calculated."""
    count = 0
    with zipfile.ZipFile(workbook) as source, zipfile.ZipFile(changed, "w") as target:
        for name in source.namelist():
            content = source.read(name)
            if name.startswith("xl/worksheets/sheet"):
                content, found = re.subn(rb"(</f><v>)[^<]*(</v>)", rb"\g<1>" + WRONG_RESULT.encode() + rb"\g<2>", content)
                count += found
            target.writestr(name, content)
    return count


def sheet_of(root):
    table = next(root.iter(CALC + "table"))
    rows = [cells_of(row) for row in table.iter(CALC + "table-row")
            for _ in range(min(int(row.get(CALC + "number-rows-repeated", "1")), 1000))]
    while rows and not rows[-1]:
        rows.pop()
    filters = [each.get(CALC + "target-range-address") for each in root.iter(CALC + "database-range")
               if each.get(CALC + "display-filter-buttons") == "true"]
    return Sheet(table.get(CALC + "name"), rows, columns_of(root, table), filters)


def columns_of(root, table):
    widths = {}
    for style in root.iter(STYLE + "style"):
        for properties in style.findall(STYLE + "table-column-properties"):
            widths[style.get(STYLE + "name")] = centimetres(properties.get(STYLE + "column-width"))
    return [Column(widths[each.get(CALC + "style-name")], each.get(CALC + "visibility") == "collapse")
            for each in table.iter(CALC + "table-column")
            for _ in range(min(int(each.get(CALC + "number-columns-repeated", "1")), 100))]


def centimetres(length):
    number, unit = re.fullmatch(r"([0-9.]+)(cm|in)", length).groups()
    return float(number) * (2.54 if unit == "in" else 1)


def cells_of(row):
    cells = []
    for each in row:
        # LibreOffice closes a row with thousands of empty cells.
        cells += [cell_of(each)] * min(int(each.get(CALC + "number-columns-repeated", "1")), 100)
    while cells and cells[-1] == Cell():
        cells.pop()
    return cells


def cell_of(element):
    value = element.get(OFFICE + "value") or element.get(OFFICE + "date-value") or ""
    return Cell(element.get(OFFICE + "value-type") or "", value,
                "\n".join(text_of(line) for line in element.findall(TEXT + "p")),
                element.get(CALC + "formula") or "", len(list(element.iter(DRAW + "image"))))


def text_of(paragraph):
    """Elements stand for spaces and tabs."""
    text = paragraph.text or ""
    for each in paragraph:
        if each.tag == TEXT + "s":
            text += " " * int(each.get(TEXT + "c", "1"))
        else:
            text += "\t" if each.tag == TEXT + "tab" else text_of(each)
        text += each.tail or ""
    return text
