"""Imports a STEP file in FreeCAD without its windows, and lists labels and volumes, as a macro would.

    python3 freecad.py FILE

FreeCAD's own importer of assemblies, `Import`, needs its windows in the version that Debian has, and
dies without them, so the file comes in by `Part`.
"""
import os
import sys

sys.path[:0] = ["/usr/lib/freecad-python3/lib", "/usr/lib/freecad/lib"]

import FreeCAD  # noqa: E402
import Part  # noqa: E402

document = FreeCAD.newDocument()
Part.insert(sys.argv[1], document.Name)
for each in document.Objects:
    if hasattr(each, "Shape"):
        print(each.Label, each.Shape.Volume)
sys.stdout.flush()
# The end of the interpreter is not what is compared.
os._exit(0)
