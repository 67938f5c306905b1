#!/usr/bin/env python3
"""The include rule finds what it must find."""
import os
import tempfile
import unittest

from check_includes import check


class IncludeRule(unittest.TestCase):
    def breaches(self, files):
        with tempfile.TemporaryDirectory() as root:
            for name, text in files.items():
                path = os.path.join(root, name)
                os.makedirs(os.path.dirname(path), exist_ok=True)
                with open(path, "w", encoding="utf-8") as file:
                    file.write(text)
            return check(root)[0]

    def test_a_clean_tree(self):
        self.assertEqual(self.breaches({
            "src/disc/runtime_error.h": "#include <string>\n",
            "src/disc/image/image.h": '#include "disc/runtime_error.h"\n',
            "src/disc/image/storage.cpp": "#include <unistd.h>\n",
            "src/work/check/edc.cpp": "#include <immintrin.h>\n",
            "src/disc/roster.h": '#include "disc/image/image.h"\n#include <vector>\n',
            "ctl/main.cpp": "#include <CLI/CLI.hpp>\n",
            "app/main.cpp": "#include <QApplication>\n",
        }), [])

    def assert_one(self, files, part):
        found = self.breaches(files)
        self.assertEqual(len(found), 1, found)
        self.assertIn(part, found[0])

    def test_upward(self):
        self.assert_one({"src/disc/image/a.h": '#include "disc/codec/b.h"\n', "src/disc/codec/b.h": ""},
                        "may not include disc/codec/")
        self.assert_one({"src/disc/a.h": '#include "editor/window/b.h"\n', "src/editor/window/b.h": ""}, "may not include")
        self.assert_one({"src/work/a.h": '#include "editor/window/b.h"\n', "src/editor/window/b.h": ""}, "may not include")

    def test_sideways(self):
        self.assert_one({"src/editor/league/a.h": '#include "editor/kickers/b.h"\n', "src/editor/kickers/b.h": ""}, "may not include")

    def test_cycle_inside_a_folder(self):
        self.assert_one({"src/work/a.h": '#include "work/b.h"\n', "src/work/b.h": '# include "work/a.h"\n'}, "cycle")

    def test_foreign_headers(self):
        self.assert_one({"src/editor/window/a.h": "#include <QString>\n"}, "<QString>")
        self.assert_one({"src/editor/window/a.cpp": "#include <unistd.h>\n"}, "<unistd.h>")
        self.assert_one({"src/work/check/a.h": "#include <immintrin.h>\n"}, "<immintrin.h>")
        self.assert_one({"src/work/a.cpp": "#include <immintrin.h>\n"}, "<immintrin.h>")
        self.assert_one({"ctl/main.cpp": "#include <QtCore/QString>\n"}, "Qt")
        self.assert_one({"app/main.cpp": "#include <CLI/CLI.hpp>\n"}, "command line")

    def test_commands_without_the_editor(self):
        header = {"src/editor/window/a.h": ""}
        self.assert_one({"ctl/demo/a.cpp": '#include "editor/window/a.h"\n', **header}, "only ctl/script/")
        self.assert_one({"ctl/find_command.cpp": '#include "ctl/script/a.h"\n', "ctl/script/a.h": ""}, "only ctl/script/")
        self.assertEqual(self.breaches({"ctl/script/a.cpp": '#include "editor/window/a.h"\n',
                                        "ctl/main.cpp": '#include "ctl/script/a.h"\n', "ctl/script/a.h": "", **header}), [])

    def test_unknown_folder_and_file(self):
        self.assert_one({"src/other/a.h": ""}, "no line in the table")
        self.assert_one({"src/disc/image/a.h": '#include "b.h"\n'}, "no file below src/")

    def test_the_whole_editor_stands_above(self):
        self.assert_one({"src/editor/window/a.h": '#include "editor/all.h"\n', "src/editor/all.h": ""}, "may not include editor/")


if __name__ == "__main__":
    unittest.main()
