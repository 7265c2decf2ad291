"""Validates the format description and the trees that the library writes against the schema.

validate_trees.py SCHEMA DESCRIPTION WRITETREES, the last being the program that writes the trees.
"""

import copy
import json
import os
import subprocess
import sys
import tempfile
import unittest

try:
    from jsonschema import Draft202012Validator
except ImportError:
    print(f"{sys.executable} lacks the package jsonschema 4 or later (python3-jsonschema)")
    sys.exit(77)

SCHEMA, DESCRIPTION, *WRITETREES = sys.argv[1:]

NAMES = {"description", "edited", "nothing chosen", "empty", "built-in", "recent", "custom"}


def parse(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def written_trees():
    """Returns the trees by name. The program finds no settings but, on Windows, those of its Wine prefix,
    and saves none."""
    with tempfile.TemporaryDirectory() as folder:
        output = subprocess.run(
            [*WRITETREES, DESCRIPTION],
            check=True,
            stdout=subprocess.PIPE,
            timeout=60,
            env=dict(os.environ, XDG_CONFIG_HOME=folder, QT_QPA_PLATFORM="offscreen"),
        ).stdout.decode("utf-8")
    return {name: json.loads(text) for name, text in (line.split("\t") for line in output.splitlines())}


class Schema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        schema = parse(SCHEMA)
        Draft202012Validator.check_schema(schema)
        cls.validator = Draft202012Validator(schema)
        cls.trees = written_trees()

    def faults(self, document):
        return [f"{list(fault.path)}: {fault.message[:200]}" for fault in self.validator.iter_errors(document)]

    def test_the_schema_is_of_draft_2020_12(self):
        self.assertEqual(parse(SCHEMA)["$schema"], "https://json-schema.org/draft/2020-12/schema")

    def test_the_description_is_valid(self):
        self.assertEqual(self.faults(parse(DESCRIPTION)), [])

    def test_every_tree_is_written(self):
        self.assertEqual(set(self.trees), NAMES)

    def test_what_the_library_writes_is_valid(self):
        for name, tree in self.trees.items():
            with self.subTest(tree=name):
                self.assertEqual(self.faults(tree), [])

    def test_edits_are_written(self):
        self.assertNotEqual(self.trees["edited"], self.trees["description"])

    def test_broken_trees_are_not_valid(self):
        def unknown_version(tree):
            tree["version"] = 2

        def no_root(tree):
            del tree["root"]

        def unknown_member(tree):
            tree["root"]["colour"] = "red"

        def no_name(tree):
            del tree["root"]["children"][0]["name"]

        def text_as_face_id(tree):
            tree["root"]["faceId"] = "1001"

        def index_below_none(tree):
            tree["root"]["children"][0]["children"][0]["presets"][0]["video"]["current"] = -2

        def encoder_of_no_kind(tree):
            del next(iter(tree["encoders"].values()))["kind"]

        for spoil in (unknown_version, no_root, unknown_member, no_name, text_as_face_id,
                      index_below_none, encoder_of_no_kind):
            with self.subTest(fault=spoil.__name__):
                tree = copy.deepcopy(self.trees["description"])
                spoil(tree)
                self.assertNotEqual(self.faults(tree), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
