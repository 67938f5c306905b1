#!/usr/bin/env python3
"""Tests of run_clang_tidy.py."""
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import run_clang_tidy


def command(flags, path):
    return {"file": path, "command": f"clang++ {flags} -o {path}.o -c {path}"}


class Batches(unittest.TestCase):
    def batches(self, kinds, jobs):
        commands = {path: command(flags, path) for flags, paths in kinds.items() for path in paths}
        return list(run_clang_tidy.batches_of(list(commands), commands, jobs))

    def test_hold_files_that_are_compiled_alike(self):
        self.assertEqual(self.batches({"-DA": ["a", "b", "c"], "-DB": ["d", "e"]}, 2), [["a", "b", "c"], ["d", "e"]])

    def test_put_single_files_last(self):
        self.assertEqual(self.batches({"-DA": ["a"], "-DB": ["b", "c"], "-DC": ["d"]}, 1), [["b", "c"], ["a"], ["d"]])

    def test_take_in_kinds_with_fewer_options_when_there_are_too_many(self):
        kinds = {"-Ix": ["a"], "-Ix -DB": ["b", "c"], "-Ix -DB -isystem y": ["d"]}
        self.assertEqual(self.batches(kinds, 3), [["b", "c"], ["a"], ["d"]])
        self.assertEqual(self.batches(kinds, 2), [["b", "c", "a"], ["d"]])

    def test_keep_apart_what_differs(self):
        kinds = {"-DA -I x": ["a"], "-DB -I x": ["b"], "-isystem x -DA -I y": ["c"]}
        self.assertEqual(self.batches(kinds, 1), [["a"], ["b"], ["c"]])

    def test_are_smaller_for_many_jobs(self):
        names = list("abcdefg")
        self.assertEqual(self.batches({"-DA": names}, 6), [["a", "b", "c"], ["d", "e", "f"], ["g"]])
        self.assertEqual(self.batches({"-DA": names}, 64), [[name] for name in names])


class LeftAlone(unittest.TestCase):
    def left(self, batch, *culprits, clashes=()):
        self.asked = []

        def is_clean(part):
            self.asked.append("".join(part))
            return not set(part) & set(culprits) and not any(set(pair) <= set(part) for pair in clashes)

        return run_clang_tidy.left_alone(list(batch), is_clean)

    def test_are_none_of_a_clean_batch(self):
        self.assertEqual(self.left("abcdefgh"), [])
        self.assertEqual(self.asked, ["abcdefgh"])

    def test_are_the_culprits_and_at_most_a_neighbour(self):
        self.assertEqual(self.left("abcdefgh", "g"), ["g", "h"])
        self.assertEqual(self.asked, ["abcdefgh", "abcd", "efgh", "ef", "gh"])
        self.assertEqual(self.left("abc", "a", "c"), ["a", "b", "c"])

    def test_are_none_when_parts_are_clean_that_clash(self):
        self.assertEqual(self.left("abcd", clashes=["ad", "bc"]), [])

    def test_is_a_single_file_without_a_look(self):
        self.assertEqual(self.left("a"), ["a"])
        self.assertEqual(self.asked, [])


class Flags(unittest.TestCase):
    def test_are_the_command_without_compiler_source_and_object(self):
        self.assertEqual(run_clang_tidy.flags_of(command("-O0 -DNAME='\"a b\"'", "x.cpp")), ["-O0", '-DNAME="a b"'])


if __name__ == "__main__":
    unittest.main()
