#!/usr/bin/env python3
"""run_programs.py --kalcoctl KALCOCTL [--junit FILE] [NAME...]

Runs the tests of tests/programs: the built programs under the faults of a real system (closed descriptors, full disks,
signals, directories that can't be written). NAME is a module, a class or a test, as unittest names them.
"""
import argparse
import os
import sys
import time
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "programs")]

import run_stories  # noqa: E402


class Results(unittest.TextTestResult):
    """Keeps each test's name, the reason of its failure or None, and its time."""

    def __init__(self, *arguments, **named):
        super().__init__(*arguments, **named)
        self.all = []
        self.reason = None

    def startTest(self, test):
        super().startTest(test)
        self.began = time.monotonic()
        self.reason = None

    def addError(self, test, err):
        super().addError(test, err)
        self.reason = "error"
        if not isinstance(test, unittest.TestCase):  # a fixture
            self.all.append((str(test), self.reason, 0))

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self.reason = "failure"

    def addSubTest(self, test, subtest, err):
        super().addSubTest(test, subtest, err)
        if err is not None:
            self.reason = "failure"

    def stopTest(self, test):
        super().stopTest(test)
        self.all.append((test.id(), self.reason, time.monotonic() - self.began))


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--kalcoctl", required=True)
    parser.add_argument("--junit")
    parser.add_argument("names", nargs="*")
    options = parser.parse_args()
    os.environ["KALCO_KALCOCTL"] = os.path.abspath(options.kalcoctl)

    loader = unittest.defaultTestLoader
    tests = (loader.loadTestsFromNames(options.names) if options.names
             else loader.discover(os.path.join(HERE, "programs"), "test_*.py"))
    results = unittest.TextTestRunner(resultclass=Results).run(tests)
    if options.junit:
        run_stories.write_junit(options.junit, "programs", results.all)
    return 0 if results.wasSuccessful() and results.testsRun > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
