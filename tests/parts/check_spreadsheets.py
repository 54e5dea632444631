#!/usr/bin/env python3
"""Opens what `parts` writes in LibreOffice and in Python, and compares it with the design.

    check_spreadsheets.py WORKBENCH ASSEMBLY.step

Ends with 77, which counts as skipped, where there is no LibreOffice.
"""

import csv
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

# Nothing is written beside the sources.
sys.dont_write_bytecode = True

from readers.office import Office, with_wrong_results
from readers.workbook import Workbook

# Descriptions of parts that spreadsheets like to change, and the numbers that they make of some.
NUMBERS = {"007": 7, "1.5": 1.5, "1E5": 100000, "+1": 1, "-1": -1, "12345678901234567890": 12345678901234567890}
TEXTS = ["plain", "a;b", "a,b", "a\tb", 'say "5"', '"', "two\nlines", "=cmd|' /C calc'!A0", "+49 30 1", "-x", "@x",
         "\tindented", "=1+1", "a;=1+1", "\u6b6f\u8eca M5", "\u017elu\u0165", " spaces ", "'quoted", "back\\slash"]
HARD = TEXTS + list(NUMBERS)
COLUMNS = "Part Number,Description,Quantity,Mass[g],Total mass[g],Material"
CAPTIONS = ["Part Number", "Description", "Quantity", "Mass [g]", "Total mass [g]", "Material"]


def design():
    """Each text is the description of a part, the n-th of which is used n times and weighs n / 8 grams: 0.125 n cm3 of
    0.001 kg/cm3."""
    parts = [{"name": f"Part {n}", "partNumber": f"{n:04}", "description": text,
              "material": {"name": "Water", "density": 0.001},
              "geometry": {"area": 6, "volume": 0.125 * n, "min": [0, 0, 0], "max": [1, 1, 1]}}
             for n, text in enumerate(HARD, 1)]
    children = [{"component": n, "instance": k} for n in range(1, len(parts) + 1) for k in range(1, n + 1)]
    return {"format": "standin-host-design", "version": 1, "name": "Top", "unit": "mm",
            "components": [{"name": "Top", "partNumber": "Top", "children": children}] + parts}


def nested_design():
    """A box of 1 kg and two crates, in each of which are three jars of 0.5 kg."""
    def part(name, volume):
        return {"name": name, "partNumber": name, "material": {"name": "Water", "density": 0.001},
                "geometry": {"area": 6, "volume": volume, "min": [0, 0, 0], "max": [1, 1, 1]}}
    crate = {"name": "Crate", "partNumber": "Crate", "children": [{"component": 3, "instance": n} for n in (1, 2, 3)]}
    top = {"name": "Top", "partNumber": "Top",
           "children": [{"component": 1, "instance": 1}, {"component": 2, "instance": 1}, {"component": 2, "instance": 2}]}
    return {"format": "standin-host-design", "version": 1, "name": "Top", "unit": "mm",
            "components": [top, part("Box", 1000), crate, part("Jar", 500)]}


def expect_equal(found, expected, what):
    if found != expected:
        sys.exit(f"{what}: found {found!r}, expected {expected!r}")


def expect_near(found, expected, what):
    if found is None or abs(found - expected) > 1e-9 * max(1, abs(expected)):
        sys.exit(f"{what}: found {found!r}, expected {expected!r}")


class Check:
    def __init__(self, workbench, folder):
        self.workbench = workbench
        self.folder = folder
        self.office = Office(folder / "office")
        self.hard = self.save("hard", design())
        self.nested = self.save("nested", nested_design())
        # Neither the user's settings nor the user's cache are touched.
        self.environment = dict(os.environ, XDG_DATA_HOME=str(folder / "data"), XDG_CACHE_HOME=str(folder / "cache"),
                                HOME=str(folder))

    def save(self, name, content):
        file = self.folder / f"{name}.design.json"
        file.write_text(json.dumps(content), encoding="utf-8")
        return file

    def parts(self, file, output, *options):
        subprocess.run([self.workbench, "parts", file, "--quiet", "--output", self.folder / output, *options],
                       check=True, env=self.environment)
        return self.folder / output

    def calculated(self, file, formulas):
        """The sheet as LibreOffice calculates it: none of the results that the file holds is right."""
        changed = file.with_stem(file.stem + "-wrong")
        expect_equal(with_wrong_results(file, changed), formulas, f"{file.name}: formulas with a result")
        return self.office.open(changed)


def check_flat_workbook(check):
    file = check.parts(check.hard, "list.xlsx", "--columns", COLUMNS)
    # LibreOffice without a window knows nothing of what stays in view.
    expect_equal(Workbook(file).frozen_rows(), 1, "rows that stay in view")
    sheet = check.calculated(file, formulas=2)
    count = len(HARD)
    expect_equal([cell.text for cell in sheet.rows[0]], CAPTIONS, "captions")
    for n, text in enumerate(HARD, 1):
        number, description, quantity, mass, total, material = sheet.rows[n]
        expect_equal((number.kind, number.text), ("string", f"{n:04}"), f"row {n}: number")
        expect_equal((description.kind, description.text, description.formula), ("string", text, ""),
                     f"row {n}: description")
        expect_equal((quantity.kind, quantity.text), ("float", str(n)), f"row {n}: quantity")
        expect_near(sheet.number(n, 3), n / 8, f"row {n}: mass")
        expect_near(sheet.number(n, 4), n * n / 8, f"row {n}: total mass")
        expect_equal((material.kind, material.text), ("string", "Water"), f"row {n}: material")
        expect_equal((mass.formula, total.formula), ("", ""), f"row {n}: formulas")
    totals = sheet.rows[count + 1]
    expect_equal(totals[0].text, "Total", "below the list")
    expect_equal(totals[2].formula, f"of:=SUBTOTAL(109;[.C2:.C{count + 1}])", "total of quantities")
    expect_near(sheet.number(count + 1, 2), count * (count + 1) / 2, "total of quantities")
    expect_equal(totals[4].formula, f"of:=SUBTOTAL(109;[.E2:.E{count + 1}])", "total of masses")
    expect_near(sheet.number(count + 1, 4), sum(n * n for n in range(1, count + 1)) / 8, "total of masses")
    check_layout(sheet, f"Parts.A1:Parts.F{count + 1}")


def check_layout(sheet, filtered):
    expect_equal(sheet.name, "Parts", "sheet")
    expect_equal(sheet.filters, [filtered], "filter")
    # In a column of its own width each text has about two millimetres for a character.
    longest = max(len(line) for text in HARD for line in text.split("\n"))
    description = sheet.columns[1].width_cm
    if not 0.15 * longest < description < 0.4 * longest:
        sys.exit(f"the descriptions, of up to {longest} characters, have {description} cm")
    if not sheet.columns[0].width_cm < description:
        sys.exit("the part numbers have no narrower column than the descriptions")


def check_tree_workbook(check):
    sheet = check.calculated(check.parts(check.nested, "tree.xlsx", "--view", "indented", "--columns",
                                         "Item,Part Number,Quantity,Total mass"), formulas=2)
    rows = [[cell.text for cell in row[:4]] for row in sheet.rows]
    expect_equal(rows[0], ["Item", "Part Number", "Quantity", "Total mass [kg]"], "captions of the tree")
    expect_equal([(row[0], row[1].strip()) for row in rows[1:4]], [("1", "Box"), ("2", "Crate"), ("2.1", "Jar")], "tree")
    for row, mass in ((1, 1), (2, 3), (3, 3)):
        expect_near(sheet.number(row, 3), mass, f"total mass in row {row} of the tree")
    # Items are a box and six jars, whose masses are in those of the crates.
    expect_near(sheet.number(4, 2), 7, "items of the tree")
    expect_near(sheet.number(4, 3), 4, "mass of the tree")
    hidden = [index for index, column in enumerate(sheet.columns) if column.is_hidden]
    expect_equal(hidden, [4, 5], "hidden columns")


def check_pictures(check, assembly):
    options = ("--columns", "Thumbnail,Part Number,Quantity")
    workbook = check.office.open(check.parts(assembly, "pictures.xlsx", *options))
    listed = json.loads(check.parts(assembly, "pictures.json", *options).read_text(encoding="utf-8"))["rows"]
    pictured = [(row[0].pictures, row[1].text, row[2].text) for row in workbook.rows[1:len(listed) + 1]]
    expect_equal(pictured, [(1, row["cells"]["partNumber"], str(row["quantity"])) for row in listed],
                 "pictures, part numbers and quantities")


def marked(text):
    """What a spreadsheet would run is marked by an apostrophe."""
    return "'" + text if text[0] in "=+-@\t" and text not in NUMBERS else text


def check_csv_in_python(file, delimiter):
    with open(file, encoding="utf-8-sig", newline="") as stream:
        read = list(csv.reader(stream, delimiter=delimiter))
    expect_equal([row[0] for row in read[1:]], [f"{n:04}" for n in range(1, len(HARD) + 1)], file.name)
    expect_equal([row[1] for row in read[1:]], [marked(text) for text in HARD], file.name)
    expect_equal([row[2] for row in read[1:]], [str(n) for n in range(1, len(HARD) + 1)], file.name)
    point = "," if delimiter == ";" else "."
    masses = [float(row[3].replace(point, ".")) for row in read[1:]]
    expect_equal(masses, [n / 8 for n in range(1, len(HARD) + 1)], file.name)


def check_csv_as_text(check, file, delimiter):
    """Imported with every column as text, everything is as it was written."""
    columns = "/".join(f"{column}/2" for column in range(1, 7))
    sheet = check.office.open(file, f"{ord(delimiter)},34,76,1,{columns}")
    for n, text in enumerate(HARD, 1):
        expect_equal([cell.text for cell in sheet.rows[n][:3]], [f"{n:04}", marked(text), str(n)], f"{file.name}, row {n}")


def check_csv_as_users_open_it(check, file, separators, language):
    """Separators of the import dialog, columns that are what they look like: no value is cut in two and none is run,
    numbers are numbers, and texts stay as they are but for those that are nothing but a number."""
    sheet = check.office.open(file, f"{separators},34,76,1,,{language},false,false")
    expect_equal([cell.text for cell in sheet.rows[0]], CAPTIONS, file.name)
    for n, text in enumerate(HARD, 1):
        where = f"{file.name} with {separators or 'default'}, row {n}"
        row = sheet.rows[n]
        expect_equal(len(row), len(CAPTIONS), f"{where}: cells")
        expect_equal([cell.formula for cell in row], [""] * len(row), f"{where}: formulas")
        expect_near(sheet.number(n, 0), n, f"{where}: part number")
        expect_near(sheet.number(n, 2), n, f"{where}: quantity")
        expect_near(sheet.number(n, 3), n / 8, f"{where}: mass")
        if row[1].kind == "float":
            expect_near(sheet.number(n, 1), NUMBERS.get(text, text), where)
        else:
            expect_equal(row[1].text, marked(text), where)


def main():
    if shutil.which("soffice") is None:
        print("skipped: LibreOffice is not installed")
        sys.exit(77)
    with tempfile.TemporaryDirectory(prefix="tarnix-spreadsheets-") as folder:
        check = Check(sys.argv[1], pathlib.Path(folder))
        check_flat_workbook(check)
        check_tree_workbook(check)
        check_pictures(check, sys.argv[2])
        comma = check.parts(check.hard, "comma.csv", "--columns", COLUMNS)
        semicolon = check.parts(check.hard, "semicolon.csv", "--columns", COLUMNS, "--decimal-comma", "--bom")
        for file, delimiter in ((comma, ","), (semicolon, ";")):
            check_csv_in_python(file, delimiter)
            check_csv_as_text(check, file, delimiter)
        english, german = 1033, 1031
        # Commas alone; commas, semicolons and tabs, which the import dialog proposes; semicolons alone.
        check_csv_as_users_open_it(check, comma, "44", english)
        check_csv_as_users_open_it(check, comma, "44/59/9", english)
        check_csv_as_users_open_it(check, semicolon, "59", german)
    print("the spreadsheets are read as they were written")


main()
