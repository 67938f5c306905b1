#!/usr/bin/env python3
"""run_clang_tidy.py BUILD [--jobs N] [FILE...]: clang-tidy over src/, ctl/ and app/.

BUILD holds compile_commands.json. A file is skipped when nothing that its last clean run saw has changed: its text, the
project's headers below it, the forms, .clang-tidy, the compile command and clang-tidy itself. The clean runs are
remembered in BUILD/tidy.
"""
import argparse
import concurrent.futures
import glob
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
FOLDERS = ("src", "ctl", "app")
INCLUDE = re.compile(rb'^[ \t]*#[ \t]*include[ \t]*"([^"]+)"', re.MULTILINE)


def read(path):
    with open(path, "rb") as file:
        return file.read()


class Hasher:
    """Content hashes of files with all project headers below them."""

    def __init__(self, roots):
        self.roots = roots
        self.direct = {}

    def includes(self, path):
        if path not in self.direct:
            found = []
            for name in INCLUDE.findall(read(path)):
                for folder in [os.path.dirname(path), *self.roots]:
                    candidate = os.path.normpath(os.path.join(folder, name.decode()))
                    if os.path.isfile(candidate):
                        found.append(candidate)
                        break
            self.direct[path] = found
        return self.direct[path]

    def closure(self, path):
        seen, open_ends = {path}, [path]
        while open_ends:
            for header in self.includes(open_ends.pop()):
                if header not in seen:
                    seen.add(header)
                    open_ends.append(header)
        return sorted(seen)

    def digest(self, path, *more):
        total = hashlib.sha256()
        for part in more:
            total.update(part.encode() + b"\0")
        for file in self.closure(path):
            total.update(file.encode() + b"\0" + read(file) + b"\0")
        return total.hexdigest()


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("build")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1)
    parser.add_argument("files", nargs="*")
    options = parser.parse_args()

    with open(os.path.join(options.build, "compile_commands.json"), encoding="utf-8") as file:
        commands = {entry["file"]: entry for entry in json.load(file)}
    tops = tuple(os.path.join(ROOT, folder) + os.sep for folder in FOLDERS)
    wanted = {os.path.abspath(name) for name in options.files}
    sources = sorted(p for p in commands if p.startswith(tops) and (not wanted or p in wanted))

    hasher = Hasher([os.path.join(ROOT, folder) for folder in ("src", "", "app", "ctl")]
                    + glob.glob(os.path.join(options.build, "*_autogen", "include")))
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True).stdout
    config = read(os.path.join(ROOT, ".clang-tidy")).decode()
    clean = os.path.join(options.build, "tidy")
    os.makedirs(clean, exist_ok=True)

    def stamp(path):
        entry = commands[path]
        command = entry.get("command") or shlex.join(entry["arguments"])
        return os.path.join(clean, hasher.digest(path, version, config, command))

    stamps = {path: stamp(path) for path in sources}
    due = [path for path in sources if not os.path.exists(stamps[path])]

    def lint(path):
        result = subprocess.run(["clang-tidy", "--quiet", "-p", options.build, path], capture_output=True, text=True)
        if result.returncode == 0:
            with open(stamps[path], "w", encoding="utf-8") as file:
                file.write(path + "\n")
        return path, result

    failed = 0
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for path, result in pool.map(lint, due):
            if result.returncode != 0:
                failed += 1
                print(f"{os.path.relpath(path, ROOT)}:\n{result.stdout}")
                if not result.stdout:
                    print(result.stderr)
    current = {os.path.basename(s) for s in stamps.values()}
    if not wanted:
        for old in set(os.listdir(clean)) - current:
            os.remove(os.path.join(clean, old))
    print(f"clang-tidy: {len(due)} of {len(sources)} files looked at, {failed} with findings")
    return 1 if failed or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
