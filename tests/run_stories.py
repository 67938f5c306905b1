#!/usr/bin/env python3
"""run_stories.py --program PROGRAM --kalcoctl KALCOCTL [--junit FILE] [--jobs N] [STORY...]

Runs the stories of tests/scripts (all, or those named) through PROGRAM, kalcoctl or window_script, and compares the
output, the exit status, every byte of the image and every side file. tests/scripts/README.md tells what a story's
folder holds.

--write-expected stores the output as expected.jsonl instead of comparing it: read every line before you commit it.
"""
import argparse
import concurrent.futures
import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time
from xml.sax.saxutils import quoteattr

HERE = os.path.dirname(os.path.abspath(__file__))
STORIES = os.path.join(HERE, "scripts")
IMAGE = "disc.bin"
OTHER_IMAGE = "other.bin"
SECONDS = 300


class Failure(Exception):
    """What differs, for a person to read."""


def read_json(path, default):
    if not os.path.exists(path):
        return default
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def read_bytes(path):
    with open(path, "rb") as file:
        return file.read()


def tree(folder):
    """Relative path -> bytes of every file below the folder."""
    return {os.path.relpath(os.path.join(at, name), folder): read_bytes(os.path.join(at, name))
            for at, _, names in os.walk(folder) for name in names}


def reject_unknown(what, given, known):
    unknown = set(given) - set(known)
    if unknown:
        raise Failure(f"{what}: unknown key {', '.join(sorted(unknown))}")


def make_files(story, demo, work):
    """Lays out the files that the story starts from."""
    setup = read_json(os.path.join(story, "setup.json"), {})
    reject_unknown("setup.json", setup, ("image", "seed", "bytes", "truncate", "patch", "other", "remove", "status",
                                           "stderr"))
    image = os.path.join(work, IMAGE)
    kind = setup.get("image", "demo")
    if kind == "demo":
        shutil.copyfile(demo, image)
    elif kind == "random":
        with open(image, "wb") as file:
            file.write(random.Random(setup["seed"]).randbytes(setup["bytes"]))
    elif kind != "none":
        raise Failure(f"setup.json: image is {kind!r}, not demo, random or none")
    if kind != "none":
        with open(image, "r+b") as file:
            for patch in setup.get("patch", []):
                file.seek(patch["at"] - 1)
                file.write(bytes.fromhex(patch["bytes"]))
            if "truncate" in setup:
                file.truncate(setup["truncate"])
    if setup.get("other", False):
        shutil.copyfile(os.path.join(os.path.dirname(demo), OTHER_IMAGE), os.path.join(work, OTHER_IMAGE))
    before = os.path.join(story, "before")
    if os.path.isdir(before):
        shutil.copytree(before, work, dirs_exist_ok=True)
    return setup


def check_output(story, got):
    want = read_bytes(os.path.join(story, "expected.jsonl")).decode("ascii").splitlines()
    lines = got.decode("utf-8", "replace").splitlines()
    for k, (a, b) in enumerate(zip(want, lines)):
        if a != b:
            at = next((i for i, (x, y) in enumerate(zip(a, b)) if x != y), min(len(a), len(b)))
            start = max(0, at - 60)
            raise Failure(f"output line {k + 1}, column {at + 1}:\n  want {a[:80]} ... {a[start:at + 200]}\n"
                          f"  got  {b[:80]} ... {b[start:at + 200]}")
    if len(want) != len(lines):
        longer, which = (want, "missing") if len(want) > len(lines) else (lines, "not expected")
        raise Failure(f"{len(lines)} lines of output, want {len(want)}; {which}: {longer[min(len(want), len(lines))][:300]}")
    return want


def check_status(setup, want_lines, result):
    status = 0
    if want_lines:
        last = json.loads(want_lines[-1])
        if last.get("event") == "ended" and last["reason"] in ("denied", "error"):
            status = 1
    status = setup.get("status", status)
    stderr = result.stderr.decode("utf-8", "replace")
    if result.returncode != status:
        raise Failure(f"exit status {result.returncode}, want {status}\n{stderr[-4000:]}")
    if setup.get("stderr", "") not in stderr:
        raise Failure(f"standard error is {stderr!r}, without {setup['stderr']!r}")


def check_image(story, before, after):
    """Every byte that changed lies in a range of changed.json, and those with bytes hold exactly them."""
    changes = read_json(os.path.join(story, "changed.json"), [])
    if before is None or after is None:
        if (before is None) != (after is None):
            raise Failure(f"{IMAGE} was {'made' if before is None else 'removed'}")
        return
    size = len(before)
    may_change = bytearray(max(len(before), len(after)))
    for change in changes:
        reject_unknown("changed.json", change, ("at", "bytes", "length", "why"))
        start = change["at"] - 1
        if "bytes" in change:
            want = bytes.fromhex(change["bytes"])
            got = after[start:start + len(want)]
            if got != want:
                raise Failure(f"{IMAGE} at position {change['at']}: want {want.hex(' ')}, got {got.hex(' ')}")
            length = len(want)
            size = max(size, start + length)
        else:
            length = change["length"]
        may_change[start:start + length] = b"\x01" * max(0, min(length, len(may_change) - start))
    if len(after) != size:
        raise Failure(f"{IMAGE} has {len(after)} bytes, want {size}")
    if before == after:
        return
    old = before.ljust(len(after), b"\0")
    for block in range(0, len(after), 4096):
        if old[block:block + 4096] == after[block:block + 4096]:
            continue
        for k in range(block, min(block + 4096, len(after))):
            if old[k] != after[k] and not may_change[k]:
                raise Failure(f"{IMAGE} changed at position {k + 1}, which no range allows: "
                              f"{old[k:k + 16].hex(' ')} became {after[k:k + 16].hex(' ')}")


def check_side_files(story, before, after):
    """The files of after/ are there with these bytes, all others are as they were."""
    want = dict(before)
    folder = os.path.join(story, "after")
    if os.path.isdir(folder):
        want.update(tree(folder))
    setup = read_json(os.path.join(story, "setup.json"), {})
    for name in setup.get("remove", []):
        want.pop(name)
    for name in sorted(want.keys() | after.keys()):
        if name not in after:
            raise Failure(f"the file {name} is missing")
        if name not in want:
            raise Failure(f"the file {name} was not to be made:\n{after[name][:300]!r}")
        if want[name] != after[name]:
            raise Failure(f"the file {name}:\n  want {want[name][:300]!r}\n  got  {after[name][:300]!r}")


def run_story(name, program, demo, write_expected):
    story = os.path.join(STORIES, name)
    with tempfile.TemporaryDirectory(prefix="kalco-story-") as work:
        setup = make_files(story, demo, work)
        before = tree(work)
        result = subprocess.run([program, "script", "--home", ".", os.path.join(story, "story.kalco")], cwd=work,
                                stdin=subprocess.DEVNULL, capture_output=True, timeout=SECONDS)
        if result.returncode < 0 or result.returncode > 2:
            raise Failure(f"exit status {result.returncode}\n{result.stderr.decode('utf-8', 'replace')[-8000:]}")
        if write_expected:
            with open(os.path.join(story, "expected.jsonl"), "wb") as file:
                file.write(result.stdout)
        lines = check_output(story, result.stdout)
        check_status(setup, lines, result)
        after = tree(work)
        check_image(story, before.pop(IMAGE, None), after.pop(IMAGE, None))
        check_side_files(story, before, after)


def attempt(name, *arguments):
    start = time.monotonic()
    try:
        run_story(name, *arguments)
        reason = None
    except Failure as failure:
        reason = str(failure)
    except (OSError, ValueError, KeyError, subprocess.TimeoutExpired) as failure:
        reason = f"{type(failure).__name__}: {failure}"
    return name, reason, time.monotonic() - start


def write_junit(path, suite, results):
    failed = sum(reason is not None for _, reason, _ in results)
    with open(path, "w", encoding="utf-8") as file:
        file.write(f'<?xml version="1.0" encoding="UTF-8"?>\n<testsuite name={quoteattr(suite)} '
                   f'tests="{len(results)}" failures="{failed}" errors="0">\n')
        for name, reason, seconds in results:
            failure = "" if reason is None else f"<failure message={quoteattr(reason)}/>"
            file.write(f'<testcase name={quoteattr(name)} time="{seconds:.3f}">{failure}</testcase>\n')
        file.write("</testsuite>\n")


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--program", required=True)
    parser.add_argument("--kalcoctl", required=True)
    parser.add_argument("--junit")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1)
    parser.add_argument("--write-expected", action="store_true")
    parser.add_argument("stories", nargs="*")
    options = parser.parse_args()

    names = options.stories or sorted(n for n in os.listdir(STORIES) if os.path.isdir(os.path.join(STORIES, n)))
    with tempfile.TemporaryDirectory(prefix="kalco-demo-") as home:
        demo = os.path.join(home, IMAGE)
        kalcoctl = os.path.abspath(options.kalcoctl)
        subprocess.run([kalcoctl, "demo", demo], check=True, stdout=subprocess.DEVNULL)
        subprocess.run([kalcoctl, "demo", "--seed", "2", os.path.join(home, OTHER_IMAGE)], check=True,
                       stdout=subprocess.DEVNULL)
        with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
            results = list(pool.map(
                lambda n: attempt(n, os.path.abspath(options.program), demo, options.write_expected), names))
    for name, reason, _ in results:
        if reason is not None:
            print(f"{name}: {reason}")
    failed = sum(reason is not None for _, reason, _ in results)
    print(f"{len(results) - failed} stories passed, {failed} failed")
    if options.junit:
        write_junit(options.junit, os.path.basename(options.program), results)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
