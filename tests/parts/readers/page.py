"""The data of an offline page."""

import base64
import html.parser
import json


class Blocks(html.parser.HTMLParser):
    """The texts of the script elements that have an id."""

    def __init__(self):
        super().__init__()
        self.texts = {}
        self.current = None

    def handle_starttag(self, tag, attributes):
        self.current = dict(attributes).get("id") if tag == "script" else None

    def handle_endtag(self, tag):
        self.current = None

    def handle_data(self, data):
        if self.current is not None:
            self.texts[self.current] = self.texts.get(self.current, "") + data


def blocks_of(file):
    blocks = Blocks()
    with open(file, encoding="utf-8") as stream:
        blocks.feed(stream.read())
    return blocks.texts


def data_of(file):
    return json.loads(blocks_of(file)["parts"])


def model_of(file):
    """The bytes of the model; none where there is none."""
    return base64.b64decode(blocks_of(file).get("model", ""))


def text_of(file):
    """A line for each path and each row, with the occurrences that the row stands for."""
    data = data_of(file)
    lines = [f"{key}: {compact(data[key])}" for key in data if key not in ("paths", "views")]
    lines += [f"path {number}: {path}" for number, path in enumerate(data["paths"])]
    for view in data["views"]:
        listed = view["list"]
        lines += [f"{key}: {compact(listed[key])}" for key in listed if key != "rows"]
        lines += [f"row {compact(row)} at {places}" for row, places in zip(listed["rows"], view["occurrences"], strict=True)]
    return "\n".join(lines + [f"model: {model_of(file)[:4].decode('latin-1') or 'none'}"]) + "\n"


def compact(value):
    """All digits of a measure are not the same with every version of the modeller."""
    return json.dumps(rounded(value), ensure_ascii=False)


def rounded(value):
    if isinstance(value, dict):
        return {key: rounded(each) for key, each in value.items()}
    if isinstance(value, list):
        return [rounded(each) for each in value]
    return float(f"{value:.6g}") if isinstance(value, float) else value
