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
import xml.etree.ElementTree as ElementTree

TABLE = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
OFFICE = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
DRAW = "{urn:oasis:names:tc:opendocument:xmlns:drawing:1.0}"
TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"

# Descriptions of parts that spreadsheets like to change; none of them is a number to a person.
HARD = ["plain", "a;b", "a,b", 'say "5"', "two\nlines", "007", "=cmd|' /C calc'!A0", "+49 30 1", "-x",
        "@sum", "1.5", "1E5", "2026-11-22", "\u6b6f\u8eca", "\u017elu\u0165", " spaces ", "100%", "TRUE"]


def design():
    """Each text is the description of a part, the n-th of which is used n times."""
    parts = [{"name": f"Part {n}", "partNumber": f"{n:04}", "description": text,
              "material": {"name": "Steel", "density": 0.008},
              "geometry": {"area": 6, "volume": 0.125 * n, "min": [0, 0, 0], "max": [1, 1, 1]}}
             for n, text in enumerate(HARD, 1)]
    children = [{"component": n, "instance": k} for n in range(1, len(parts) + 1)
                for k in range(1, n + 1)]
    top = {"name": "Top", "partNumber": "Top", "children": children}
    return {"format": "standin-host-design", "version": 1, "name": "Top", "unit": "mm",
            "components": [top] + parts}


def expect(condition, message):
    if not condition:
        sys.exit(message)


class Check:
    def __init__(self, workbench, folder):
        self.workbench = workbench
        self.folder = folder
        self.file = folder / "top.design.json"
        self.file.write_text(json.dumps(design()), encoding="utf-8")
        # Neither the user's settings nor the user's cache are touched.
        self.environment = dict(os.environ, XDG_DATA_HOME=str(folder / "data"),
                                XDG_CACHE_HOME=str(folder / "cache"), HOME=str(folder))

    def parts(self, output, *options):
        columns = "Part Number,Description,Quantity,Mass[g],Total mass[g],Material"
        subprocess.run([self.workbench, "parts", self.file, "--output", self.folder / output,
                        "--columns", columns, *options], check=True, env=self.environment)
        return self.folder / output

    def opened(self, file, *options):
        """The cells of the sheet as LibreOffice has them: (type, value, text, formula)."""
        profile = f"-env:UserInstallation=file://{self.folder}/profile"
        subprocess.run(["soffice", profile, "--headless", "--norestore", *options, "--convert-to",
                        "fods", "--outdir", self.folder / "opened", file], check=True,
                       env=self.environment, stdout=subprocess.DEVNULL)
        root = ElementTree.parse(self.folder / "opened" / (file.stem + ".fods")).getroot()
        return root, [self.cells(row) for row in root.iter(TABLE + "table-row")]

    @staticmethod
    def cells(row):
        cells = []
        for cell in row:
            text = "\n".join("".join(line.itertext()) if len(line) == 0 else Check.spaced(line)
                             for line in cell.findall(TEXT + "p"))
            found = (cell.get(OFFICE + "value-type"), cell.get(OFFICE + "value"), text,
                     cell.get(TABLE + "formula"))
            cells += [found] * min(int(cell.get(TABLE + "number-columns-repeated", "1")), 20)
        return cells

    @staticmethod
    def spaced(line):
        """A paragraph in which elements stand for spaces."""
        text = line.text or ""
        for each in line:
            text += " " * int(each.get(TEXT + "c", "1")) if each.tag == TEXT + "s" else \
                "".join(each.itertext())
            text += each.tail or ""
        return text


def check_xlsx(check):
    root, rows = check.opened(check.parts("list.xlsx"))
    captions = [cell[2] for cell in rows[0][:6]]
    expect(captions == ["Part Number", "Description", "Quantity", "Mass [g]", "Total mass [g]",
                        "Material"], f"captions: {captions}")
    for n, text in enumerate(HARD, 1):
        number, description, quantity, mass, total, material = rows[n][:6]
        expect(number[0] == "string" and number[2] == f"{n:04}", f"row {n}: number {number}")
        expect(description[0] == "string" and description[3] is None and description[2] == text,
               f"row {n}: description {description}")
        expect(quantity[0] == "float" and float(quantity[1]) == n, f"row {n}: quantity {quantity}")
        # 0.125 n cm3 of 0.008 kg/cm3 are n grams.
        expect(abs(float(mass[1]) - n) < 1e-9, f"row {n}: mass {mass}")
        expect(abs(float(total[1]) - n * n) < 1e-9, f"row {n}: total mass {total}")
        expect(material[2] == "Steel", f"row {n}: material {material}")
    count = len(HARD)
    sums = rows[count + 1]
    expect(sums[0][2] == "Total", f"totals: {sums[0]}")
    expect(sums[2][3] == f"of:=SUBTOTAL(109;[.C2:.C{count + 1}])", f"quantities: {sums[2]}")
    expect(float(sums[2][1]) == count * (count + 1) / 2, f"quantities: {sums[2]}")
    squares = sum(n * n for n in range(1, count + 1))
    expect(sums[4][3] is not None and abs(float(sums[4][1]) - squares) < 1e-6, f"mass: {sums[4]}")
    ranges = [each.get(TABLE + "target-range-address")
              for each in root.iter(TABLE + "database-range")]
    expect(any(each and each.endswith(f"A1:Parts.F{count + 1}") for each in ranges),
           f"filter: {ranges}")


def check_pictures(check, assembly):
    file = check.folder / "pictures.xlsx"
    subprocess.run([check.workbench, "parts", assembly, "--columns", "Thumbnail,Part Number",
                    "--quiet", "--output", file], check=True, env=check.environment)
    root, rows = check.opened(file)
    numbers = [row[1][2] for row in rows[1:] if len(row) > 1 and row[1][2]]
    pictures = list(root.iter(DRAW + "image"))
    expect(numbers and len(pictures) == len(numbers),
           f"{len(pictures)} pictures of {len(numbers)} parts")


def check_csv(check, name, delimiter, options):
    file = check.parts(name, *options)
    with open(file, encoding="utf-8-sig", newline="") as stream:
        read = list(csv.reader(stream, delimiter=delimiter))
    # What a spreadsheet would run is marked by an apostrophe.
    marked = ["'" + text if text[0] in "=+-@" else text for text in HARD]
    expect([row[1] for row in read[1:]] == marked, f"{name}: {[row[1] for row in read[1:]]}")
    expect([row[0] for row in read[1:]] == [f"{n:04}" for n in range(1, len(HARD) + 1)], name)
    expect([int(row[2]) for row in read[1:]] == list(range(1, len(HARD) + 1)), name)
    # Token 44 or 59 separates, 34 quotes, 76 is UTF-8; every column is text, as it was written.
    columns = "/".join(f"{column}/2" for column in range(1, 7))
    filters = f"--infilter=CSV:{ord(delimiter)},34,76,1,{columns}"
    _, rows = check.opened(file, filters)
    for n, text in enumerate(marked, 1):
        expect(rows[n][1][2] == text, f"{name}, opened, row {n}: {rows[n][1]}")
        expect(rows[n][0][2] == f"{n:04}", f"{name}, opened, row {n}: {rows[n][0]}")


def main():
    if shutil.which("soffice") is None:
        print("skipped: LibreOffice is not installed")
        sys.exit(77)
    with tempfile.TemporaryDirectory(prefix="tarnix-spreadsheets-") as folder:
        check = Check(sys.argv[1], pathlib.Path(folder))
        check_xlsx(check)
        check_pictures(check, sys.argv[2])
        check_csv(check, "comma.csv", ",", [])
        check_csv(check, "semicolon.csv", ";", ["--decimal-comma", "--bom"])


main()
