"""A binary glTF file as it was written: its tree, and what is said of its meshes."""

import json
import struct

MODES = {1: "lines", 3: "line strip", 4: "triangles"}


def json_of(file):
    with open(file, "rb") as stream:
        magic, version, _, length, kind = struct.unpack("<4sIIII", stream.read(20))
        if magic != b"glTF" or version != 2 or kind != 0x4E4F534A:
            raise ValueError(f"{file}: no glTF 2.0 that begins with JSON")
        return json.loads(stream.read(length))


def text_of(file):
    """How many triangles there are depends on the version of the modeller, and with it all lengths of buffers: of a mesh
    its kinds of primitives and its box are printed, to a tenth of a millimetre."""
    model = json_of(file)
    lines = [f"glTF {model['asset']['version']}"]
    lines += [f"material {number}: {json.dumps(material, sort_keys=True)}"
              for number, material in enumerate(model["materials"])]
    for number, mesh in enumerate(model["meshes"]):
        words = {key: value for key, value in mesh.items() if key != "primitives"}
        lines.append(f"mesh {number}: {json.dumps(words, ensure_ascii=False)}")
        lines += ["  " + primitive_text(model, primitive) for primitive in mesh["primitives"]]
    for root in model["scenes"][model["scene"]]["nodes"]:
        lines += node_lines(model, root, 0)
    return "\n".join(lines) + "\n"


def primitive_text(model, primitive):
    box = model["accessors"][primitive["attributes"]["POSITION"]]
    place = " to ".join(" ".join(f"{value:.1f}" for value in box[end]) for end in ("min", "max"))
    names = ", ".join(sorted(primitive["attributes"]))
    material = f", material {primitive['material']}" if "material" in primitive else ""
    return f"{MODES[primitive.get('mode', 4)]} of {names}{material}: {place}"


def node_lines(model, index, depth):
    node = model["nodes"][index]
    words = {key: rounded(value) for key, value in node.items() if key != "children"}
    lines = ["  " * depth + json.dumps(words, ensure_ascii=False, sort_keys=True)]
    for child in node.get("children", []):
        lines += node_lines(model, child, depth + 1)
    return lines


def rounded(value):
    """Numbers to six digits; nothing is minus zero."""
    if isinstance(value, list):
        return [rounded(each) for each in value]
    return round(value, 6) + 0.0 if isinstance(value, float) else value
