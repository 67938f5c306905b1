#!/usr/bin/env python3
"""What the texts say of the tree is true: their links and paths lead somewhere, and the versions agree."""
import os
import re
import subprocess
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
FOLDERS = sorted(name for name in os.listdir(ROOT)
                 if os.path.isdir(os.path.join(ROOT, name)) and not name.startswith(".") and name != "build")


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def texts():
    """The Markdown files, by path."""
    found = []
    for at, folders, names in os.walk(ROOT):
        folders[:] = [name for name in folders if name != "build" and (name == ".github" or not name.startswith("."))]
        found += [os.path.relpath(os.path.join(at, name), ROOT) for name in names if name.endswith(".md")]
    return sorted(found)


def lost_links(path, text):
    """Links of a text to files that are not there."""
    links = re.findall(r"\]\(([^)\s#]+)(?:#[^)]*)?\)", text)
    here = os.path.dirname(path)
    return [link for link in links
            if "://" not in link and not os.path.exists(os.path.join(ROOT, here, link))]


def lost_paths(text):
    """Paths in backticks that begin with one of the tree's folders and are not there. A name with a wildcard, or with a
    part that is to be filled in, is no path."""
    words = re.findall(r"`([^`\s]+)`", text)
    return [word for word in words
            if word.split("/")[0] in FOLDERS and "/" in word and not re.search(r"[*<>{}$]|NAME|\.\.\.", word)
            and not os.path.exists(os.path.join(ROOT, word))]


class Paths(unittest.TestCase):
    def test_lead_somewhere(self):
        self.assertIn("README.md", texts())
        for path in texts():
            with self.subTest(path):
                text = read(path)
                self.assertEqual(lost_links(path, text) + lost_paths(text), [])

    def test_are_missed_when_they_are_lost(self):
        self.assertEqual(lost_links("docs/x.md", "[a](nowhere.md#b) [c](../README.md) [d](https://example.org/x)"),
                         ["nowhere.md"])
        self.assertEqual(lost_paths("`src/nowhere.h` `src/disc/` `fuzz_*.cpp` `tests/app/test_*.cpp` `x/y`"),
                         ["src/nowhere.h"])


class Versions(unittest.TestCase):
    def test_agree(self):
        version = re.search(r"project\(kalco VERSION ([0-9.]+)", read("CMakeLists.txt")).group(1)
        release = re.search(r'<release version="([^"]+)"', read("packaging/org.kalco.Kalco.metainfo.xml")).group(1)
        entry = re.search(r"^## (\S+)", read("CHANGELOG.md"), re.MULTILINE).group(1)
        self.assertEqual((release, entry), (version, version))


class Folders(unittest.TestCase):
    def test_are_all_told_of(self):
        """Every folder of src/ has its row in the table of folders."""
        known = set(re.findall(r"^\| `(src/[^`]*?)/`", read("docs/architecture.md"), re.MULTILINE))
        tracked = subprocess.run(["git", "ls-files", "src"], cwd=ROOT, capture_output=True, text=True, check=False)
        if tracked.returncode != 0:
            self.skipTest("no repository here")
        folders = {os.path.dirname(path) for path in tracked.stdout.split()} - {"src"}
        self.assertEqual({folder for folder in folders if folder not in known}, set())


if __name__ == "__main__":
    unittest.main()
