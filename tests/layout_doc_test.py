#!/usr/bin/env python3
"""The player record in docs/image-layout.md is the table of src/disc/player_facts.h, field by field."""

import pathlib
import re
import unittest

root = pathlib.Path(__file__).resolve().parent.parent


def fields_of_facts():
    text = (root / "src/disc/player_facts.h").read_text(encoding="utf-8")
    rows = re.findall(r'\{"(\w+)", "([^"]*)", (\d), (\d+), (\d+)', text)
    fields = []
    for name, caption, word, bit, width in rows:
        first, last = int(bit), int(bit) + int(width) - 1
        bits = str(first) if first == last else f"{first}..{last}"
        shown = "spare" if name.startswith("spare_") else name.replace("_", " ")
        fields.append((int(word), first, bits, shown, caption.encode().decode("unicode_escape")))
    return [(word, bits, name, caption) for word, _, bits, name, caption in sorted(fields)]


def fields_of_document():
    text = (root / "docs/image-layout.md").read_text(encoding="utf-8")
    section = text.split("### The player record")[1].split("\n### ")[0]
    rows = [[cell.strip() for cell in line.strip("|").split("|")] for line in section.splitlines() if line.startswith("|")]
    return [(int(row[0]), row[1], row[2], row[3]) for row in rows[2:]]


class PlayerRecord(unittest.TestCase):
    def test_is_told_field_by_field(self):
        facts = fields_of_facts()
        self.assertEqual(len(facts), 33)
        self.assertEqual(fields_of_document(), facts)


if __name__ == "__main__":
    unittest.main()
