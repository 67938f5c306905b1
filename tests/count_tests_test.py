#!/usr/bin/env python3
"""Tests are counted as they are, and a crash is never counted as a success."""
import os
import tempfile
import unittest

from count_tests import count

CTEST = '<testsuite><testcase name="{}" status="{}"></testcase></testsuite>'
INNER = ('<testsuites><testsuite><testcase name="initTestCase"/><testcase name="a" status="run"/>'
         '<testcase name="b">{}</testcase><testcase name="c" status="notrun"/></testsuite></testsuites>')


class Count(unittest.TestCase):
    def counted(self, status, inner=None):
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, "ctest"), "w", encoding="utf-8") as file:
                file.write(CTEST.format("x", status))
            if inner is not None:
                with open(os.path.join(folder, "x.xml"), "w", encoding="utf-8") as file:
                    file.write(inner)
            return count(os.path.join(folder, "ctest"), folder)

    def test_entries_without_a_file(self):
        self.assertEqual(self.counted("run"), (1, 0))
        self.assertEqual(self.counted("fail"), (0, 1))

    def test_single_tests(self):
        self.assertEqual(self.counted("run", INNER.format("")), (2, 0))
        self.assertEqual(self.counted("fail", INNER.format("<failure/>")), (1, 1))

    def test_a_crash_at_the_end(self):
        self.assertEqual(self.counted("fail", INNER.format("")), (2, 1))

    def test_a_file_that_breaks_off(self):
        self.assertEqual(self.counted("fail", INNER[:60]), (0, 1))
        self.assertEqual(self.counted("run", INNER[:60]), (0, 1))


if __name__ == "__main__":
    unittest.main()
