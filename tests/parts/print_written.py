#!/usr/bin/env python3
"""Prints what is in a file that `parts` wrote in a format of bytes: print_written.py FILE.xlsx|FILE.glb|FILE.html"""

import pathlib
import sys

# Nothing is written beside the sources.
sys.dont_write_bytecode = True

from readers import model, page, workbook

PRINTERS = {".xlsx": lambda file: workbook.Workbook(file).text(), ".glb": model.text_of, ".html": page.text_of}

sys.stdout.reconfigure(encoding="utf-8", newline="\n")
sys.stdout.write(PRINTERS[pathlib.Path(sys.argv[1]).suffix](sys.argv[1]))
