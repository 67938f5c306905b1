#!/usr/bin/env python3
"""count_tests.py CTEST_XML RESULTS: prints "PASSED FAILED", the single tests behind a run of ctest.

CTEST_XML is what ctest --output-junit wrote. An entry whose program left RESULTS/<entry>.xml counts as the tests in
there; any other counts as one. An entry that failed always counts at least one failure, whatever its file says.
"""
import os
import sys
import xml.etree.ElementTree as ET

SETUP = ("initTestCase", "cleanupTestCase")  # QTest lists them like tests


def single_tests(path):
    passed = failed = 0
    for case in ET.parse(path).getroot().iter("testcase"):
        if case.get("name") in SETUP and case.find("failure") is None and case.find("error") is None:
            continue
        if case.find("skipped") is not None or case.get("status") == "notrun" or case.get("result") == "suppressed":
            continue
        if case.find("failure") is not None or case.find("error") is not None:
            failed += 1
        else:
            passed += 1
    return passed, failed


def count(ctest_xml, results):
    passed = failed = 0
    for entry in ET.parse(ctest_xml).getroot().iter("testcase"):
        good = entry.get("status") == "run"
        path = os.path.join(results, entry.get("name") + ".xml")
        try:
            p, f = single_tests(path) if os.path.exists(path) else (int(good), int(not good))
        except ET.ParseError:  # the program died while it wrote
            p, f = 0, 1
        if not good and f == 0:
            f = 1
        passed += p
        failed += f
    return passed, failed


if __name__ == "__main__":
    print(*count(sys.argv[1], sys.argv[2]))
