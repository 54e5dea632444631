#!/usr/bin/env python3
"""Counts the parts of STEP files out of their text, and compares with what the workbench lists.

    count_step_parts.py WORKBENCH FOLDER    all STEP files below the folder (or below that
                                            which TARNIX_TEST_DATA names), those in "malformed" left out
    count_step_parts.py --count FILE        prints what is counted

It knows nothing of the program that it checks: products, product definitions and usages are read with
regular expressions, and totals are sums over the paths of the usages. A product that another file beside
it describes is what is in that file. Exit status: 0 equal, 1 different, 77 no folder.
"""

import collections
import json
import os
import pathlib
import re
import subprocess
import sys

ENTITY = re.compile(rb"#(\d+)\s*=\s*([A-Z_0-9]+)\s*\((.*)\)\s*$", re.DOTALL)
USAGES = (b"NEXT_ASSEMBLY_USAGE_OCCURRENCE",)


def entities(text):
    """(number, type, arguments) of each simple entity; a semicolon may be in a string."""
    data = text[text.index(b"DATA;"):]
    data = re.sub(rb"/\*.*?\*/", b"", data, flags=re.DOTALL)
    for statement in re.findall(rb"(?:[^;']|'(?:[^']|'')*')+", data):
        found = ENTITY.match(statement.strip())
        if found:
            yield int(found[1]), found[2], found[3]


def arguments(text):
    """The arguments on the first level."""
    found, depth, current = [], 0, b""
    for token in re.findall(rb"'(?:[^']|'')*'|[(),]|[^'(),]+", text):
        if token == b"," and depth == 0:
            found.append(current.strip())
            current = b""
            continue
        depth += {b"(": 1, b")": -1}.get(token, 0)
        current += token
    return found + [current.strip()]


def string(argument):
    return argument[1:-1].replace(b"''", b"'").strip() if argument.startswith(b"'") else b""


def reference(argument):
    return int(argument[1:]) if argument.startswith(b"#") else None


class File:
    """Product definitions with their names, and what is in them."""

    def __init__(self, path):
        self.path = path
        products, formations, self.names, used = {}, {}, {}, []
        definitions = {}
        for number, kind, text in entities(path.read_bytes()):
            if kind == b"PRODUCT":
                values = arguments(text)
                products[number] = string(values[1]) or string(values[0])
            elif kind.startswith(b"PRODUCT_DEFINITION_FORMATION"):
                formations[number] = reference(arguments(text)[2])
            elif kind in (b"PRODUCT_DEFINITION", b"PRODUCT_DEFINITION_WITH_ASSOCIATED_DOCUMENTS"):
                definitions[number] = reference(arguments(text)[2])
            elif kind in USAGES:
                values = arguments(text)
                used.append((reference(values[3]), reference(values[4])))
        self.children = collections.defaultdict(collections.Counter)
        for parent, child in used:
            self.children[parent][child] += 1
        below = {child for _, child in used}
        for number, formation in definitions.items():
            self.names[number] = products.get(formations.get(formation), b"")
        self.roots = [number for number in definitions if number not in below]


def beside(path, name, cache):
    """The file that describes a product of this name; none where there is none."""
    other = path.parent / (name.decode("ascii", "replace") + path.suffix)
    if not name or b"/" in name or other == path or not other.is_file():
        return None
    if other not in cache:
        cache[other] = File(other)
    return cache[other]


def count(path):
    """(name, is an assembly) and the total quantity of each product definition below the root."""
    cache = {path: File(path)}
    totals, names = collections.Counter(), {}

    def visit(file, number, times, is_root):
        children = file.children.get(number)
        if not children:
            other = beside(file.path, file.names[number], cache)
            if other is not None and len(other.roots) == 1:
                file, number = other, other.roots[0]
                children = file.children.get(number)
        if not is_root:
            totals[file.path, number] += times
            names[file.path, number] = (file.names[number], bool(children))
        for child, uses in (children or {}).items():
            visit(file, child, times * uses, False)

    main = cache[path]
    for root in main.roots:
        visit(main, root, 1, is_root=len(main.roots) == 1)
    if not totals and len(main.roots) == 1:
        return [(main.names[main.roots[0]], False, 1)]
    return [(*names[key], quantity) for key, quantity in totals.items()]


def listed(workbench, path):
    """The same as the workbench lists it."""
    run = subprocess.run([workbench, "parts", path, "--view", "all", "--merge-by", "component", "--columns",
                          "Part Name", "--format", "json", "--quiet"], capture_output=True, check=True)
    rows = json.loads(run.stdout)["rows"]
    # Bodies of the root product are a row, which is its own only where it is a lone part.
    items = [row for row in rows if row["kind"] != "own-bodies"] or rows
    return [(row["components"][0]["name"].encode(), row["kind"] == "assembly", row["quantity"]) for row in items]


def by_quantity(items):
    return collections.Counter((is_assembly, quantity) for _, is_assembly, quantity in items)


def by_name(items, only=None):
    """Of names that one item alone has, and that need no decoding."""
    uses = collections.Counter(name for name, _, _ in items)
    return {name: quantity for name, _, quantity in items
            if uses[name] == 1 and re.fullmatch(rb"[ -\[\]-~]+", name) and (only is None or name in only)}


def differences(workbench, path):
    expected, found = count(path), listed(workbench, path)
    if by_quantity(expected) != by_quantity(found):
        yield f"quantities {sorted(by_quantity(found).items())}, expected {sorted(by_quantity(expected).items())}"
    names = by_name(expected)
    seen = by_name(found, names)
    for name, quantity in names.items():
        if seen.get(name) != quantity:
            yield f"{name.decode()}: {seen.get(name)}, expected {quantity}"


def main():
    if sys.argv[1] == "--count":
        for name, is_assembly, quantity in count(pathlib.Path(sys.argv[2])):
            print(quantity, "assembly" if is_assembly else "part", name.decode("latin-1"))
        return 0
    workbench, folder = sys.argv[1], pathlib.Path(os.environ.get("TARNIX_TEST_DATA") or sys.argv[2])
    if not folder.is_dir():
        print(f"skipped: no folder {folder} of real STEP files")
        return 77
    files = [path for path in sorted(folder.rglob("*"))
             if path.suffix in (".stp", ".step") and "malformed" not in path.parts]
    faults = 0
    for path in files:
        found = list(differences(workbench, path))
        faults += len(found)
        print(f"{path.name}: {'; '.join(found) or 'equal'}")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
