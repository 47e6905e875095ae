#!/usr/bin/python3
"""Prints the JSON Schema of an overlay: host/catalogue/overlay.schema.json.

It follows utility/catalogue/catalogue.schema.json, whose definitions it has, too.
"""

import copy
import json
import pathlib

CATALOGUE = (pathlib.Path(__file__).resolve().parents[1]
             / "utility/catalogue/catalogue.schema.json")
BLOCKS = ("videoParam", "videoOptions", "audioParam", "audioOptions")


def reference(name):
    return {"$ref": f"#/definitions/{name}"}


def or_null(schema):
    """The schema of a value that null takes away."""
    return {"anyOf": [schema, {"type": "null"}]}


def of_strings(pattern=None):
    return {"type": "string", **({"pattern": pattern} if pattern else {"minLength": 1})}


def overlay_schema(catalogue):
    definitions = copy.deepcopy(catalogue["definitions"])
    for block in BLOCKS:
        changed = copy.deepcopy(definitions[block])
        changed["properties"] = {key: or_null(value) for key, value in changed["properties"].items()}
        definitions[block + "Change"] = changed

    preset = definitions["preset"]
    values = {key: or_null(reference(key + "Change") if key in BLOCKS else value)
              for key, value in preset["properties"].items() if key not in ("id", "template")}
    definitions["change"] = {"type": "object", "additionalProperties": False, "properties": values,
                             "description": "The values that change; null takes one away"}
    preset["properties"].update(values)
    preset["properties"]["like"] = {
        **of_strings(), "description": "The id of the preset that this one starts from"}
    preset["not"] = {"required": ["like", "template"]}

    return {
        "$schema": catalogue["$schema"],
        "title": "Overlay of the export catalogue",
        "description": "One file of DIR/catalogues; docs/overlays.md says what the keys mean. What "
                       "stands in several places, such as ids, only the reader checks. Written by "
                       "tools/overlay-schema.py.",
        "type": "object",
        "additionalProperties": False,
        "properties": {
            **catalogue["properties"],
            "hide": {
                "type": "object", "additionalProperties": False,
                "properties": {"presets": {"type": "array", "items": of_strings()},
                               "formats": {"type": "array", "items": of_strings()}},
            },
            "change": {"type": "object", "additionalProperties": reference("change")},
            "aliases": {"type": "object", "propertyNames": {"minLength": 1},
                        "additionalProperties": of_strings()},
        },
        "dependencies": {"groups": ["category"]},
        "definitions": definitions,
    }


if __name__ == "__main__":
    SCHEMA = overlay_schema(json.loads(CATALOGUE.read_text(encoding="utf-8")))
    print(json.dumps(SCHEMA, indent=2, sort_keys=True))
