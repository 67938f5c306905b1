#!/usr/bin/env python3
"""The story runner sees every difference. A small stand-in plays the editor."""
import json
import os
import stat
import tempfile
import unittest

import run_stories

PROGRAM = """#!/usr/bin/env python3
import sys
exec(open(sys.argv[-1]).read())
"""
QUIET = 'print(\'{"event": "ended", "reason": "closed"}\')\n'


class StoryRunner(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.home = self.folder.name
        self.program = os.path.join(self.home, "program")
        self.demo = os.path.join(self.home, "demo")
        self.write("program", PROGRAM)
        os.chmod(self.program, stat.S_IRWXU)
        self.write("demo", "0123456789")
        self.write("s/expected.jsonl", QUIET[7:-3] + "\n")

    def write(self, name, text):
        path = os.path.join(self.home, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="latin-1") as file:
            file.write(text)

    def verdict(self, actions, **files):
        self.write("s/story.kalco", actions)
        for name, value in files.items():
            self.write(f"s/{name}.json", json.dumps(value))
        original, run_stories.STORIES = run_stories.STORIES, self.home
        try:
            return run_stories.attempt("s", self.program, self.demo, False)[1]
        finally:
            run_stories.STORIES = original

    def poke(self, position, text):
        return f"f = open('disc.bin', 'r+b'); f.seek({position - 1}); f.write({text!r}.encode()); f.close()\n" + QUIET

    def test_nothing_changed(self):
        self.assertIsNone(self.verdict(QUIET))

    def test_output(self):
        self.assertIn("output line 1", self.verdict("print('{}')"))
        self.assertIn("not expected", self.verdict(QUIET + QUIET))
        self.assertIn("missing", self.verdict(""))

    def test_status(self):
        self.assertIn("exit status 1", self.verdict(QUIET + "sys.exit(1)"))
        self.assertIsNone(self.verdict(QUIET + "sys.stderr.write('line 3'); sys.exit(2)",
                                       setup={"status": 2, "stderr": "line 3"}))
        self.assertIn("standard error", self.verdict(QUIET + "sys.exit(2)", setup={"status": 2, "stderr": "line 3"}))

    def test_a_byte_outside_the_ranges(self):
        self.assertIn("position 4", self.verdict(self.poke(4, "x")))
        self.assertIn("position 4", self.verdict(self.poke(4, "xy"), changed=[{"at": 5, "length": 3}]))
        self.assertIn("position 8", self.verdict(self.poke(5, "wxyz"), changed=[{"at": 5, "length": 3}]))
        self.assertIsNone(self.verdict(self.poke(5, "xyz"), changed=[{"at": 5, "length": 3}]))

    def test_exact_bytes(self):
        self.assertIsNone(self.verdict(self.poke(5, "xyz"), changed=[{"at": 5, "bytes": "78 79 7a"}]))
        self.assertIn("want 78 79 7b", self.verdict(self.poke(5, "xyz"), changed=[{"at": 5, "bytes": "78797b"}]))
        self.assertIn("want 78", self.verdict(QUIET, changed=[{"at": 5, "bytes": "78"}]))

    def test_size(self):
        self.assertIn("11 bytes", self.verdict(self.poke(11, "x"), changed=[{"at": 5, "length": 300}]))
        self.assertIsNone(self.verdict(self.poke(11, "x"), changed=[{"at": 11, "bytes": "78"}]))
        self.assertIsNone(self.verdict(self.poke(3, "x"), setup={"truncate": 3}, changed=[{"at": 3, "bytes": "78"}]))
        self.assertIn("removed", self.verdict("import os; os.remove('disc.bin')\n" + QUIET))

    def test_side_files(self):
        self.write("s/before/Export/a.DAT", "1")
        make = "open('Export/{}', 'w').write('{}')\n" + QUIET.replace("{", "{{").replace("}", "}}")
        self.assertIn("not to be made", self.verdict(make.format("b.DAT", 2)))
        self.assertIn("the file Export/a.DAT", self.verdict(make.format("a.DAT", 2)))
        self.assertIn("missing", self.verdict("import os; os.remove('Export/a.DAT')\n" + QUIET))
        self.write("s/after/Export/b.DAT", "2")
        self.assertIsNone(self.verdict(make.format("b.DAT", 2)))
        self.assertIn("missing", self.verdict(QUIET))

    def test_misspelt_keys(self):
        self.assertIn("unknown key", self.verdict(QUIET, changed=[{"at": 5, "lenght": 3}]))
        self.assertIn("unknown key", self.verdict(QUIET, setup={"stat": 2}))


if __name__ == "__main__":
    unittest.main()
