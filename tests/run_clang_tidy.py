#!/usr/bin/env python3
"""run_clang_tidy.py BUILD [--jobs N] [FILE...]: clang-tidy over src/, ctl/ and app/.

BUILD holds compile_commands.json. A file is skipped when nothing that its last clean run saw has changed: its text, the
project's headers below it, the forms, .clang-tidy, the compile command and clang-tidy itself. The clean runs are
remembered in BUILD/tidy.

Nearly all the time goes into the headers that every file includes. So files that are compiled alike are looked at
together, as one source that includes them all. A batch with a finding, or one whose files can't stand in one source, is
halved until a file is alone: what is printed is always what a file alone gives.
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
# The one that takes longest begins.
FOLDERS = ("ctl", "app", "src")
# In a batch the sources are included files. That they are sources is the one thing not to be told.
BATCH_OPTIONS = ["--header-filter=/(src|ctl|app)/[^.]*\\.(h|cpp)$", "--checks=-bugprone-suspicious-include"]
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


def command_of(entry):
    return entry.get("command") or shlex.join(entry["arguments"])


def flags_of(entry):
    """The compile command without the compiler, the source and the object."""
    words = shlex.split(command_of(entry))[1:]
    flags = []
    while words:
        word = words.pop(0)
        if word in ("-o", "-c"):
            words.pop(0)
        else:
            flags.append(word)
    return flags


def options_of(flags):
    """The flags as a set in which a word that belongs to the one before stays with it."""
    options, words = set(), list(flags)
    while words:
        word = words.pop(0)
        options.add((word, words.pop(0)) if word in ("-I", "-D", "-U", "-include", "-isystem") and words else (word,))
    return options


def kinds_of(files, commands, most):
    """Files that are compiled alike, together. More kinds than `most` are too many: a kind whose options are all among
    another's joins it, since more folders and names to look in change nothing for it. The nearest join first."""
    kinds = {}
    for path in files:
        kinds.setdefault(frozenset(options_of(flags_of(commands[path]))), []).append(path)
    while len(kinds) > most:
        joins = [(len(wide - narrow), len(kinds[narrow]), kinds[narrow][0], narrow, wide)
                 for narrow in kinds for wide in kinds if narrow < wide]
        if not joins:
            break
        *_, narrow, wide = min(joins, key=lambda join: join[:3])
        kinds[wide] += kinds.pop(narrow)
    return list(kinds.values())


def batches_of(files, commands, jobs):
    """Kinds of files; in parts when there are more jobs than kinds. Single files, which fill the end, come last."""
    for kind in sorted(kinds_of(files, commands, jobs), key=lambda kind: len(kind) == 1):
        size = -(-len(kind) // max(1, jobs // 2))
        for start in range(0, len(kind), size):
            yield kind[start:start + size]


def left_alone(batch, is_clean):
    """The files of a batch that can't be told clean together with others."""
    if len(batch) == 1:
        return batch
    if is_clean(batch):
        return []
    middle = len(batch) // 2
    return left_alone(batch[:middle], is_clean) + left_alone(batch[middle:], is_clean)


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("build")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1)
    parser.add_argument("files", nargs="*")
    options = parser.parse_args()

    with open(os.path.join(options.build, "compile_commands.json"), encoding="utf-8") as file:
        commands = {entry["file"]: entry for entry in json.load(file)}
    tops = [os.path.join(ROOT, folder) + os.sep for folder in FOLDERS]
    wanted = {os.path.abspath(name) for name in options.files}
    sources = [p for top in tops for p in sorted(commands) if p.startswith(top) and (not wanted or p in wanted)]

    hasher = Hasher([os.path.join(ROOT, folder) for folder in ("src", "", "app", "ctl")]
                    + glob.glob(os.path.join(options.build, "*_autogen", "include")))
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True).stdout
    config = read(os.path.join(ROOT, ".clang-tidy")).decode()
    clean = os.path.join(options.build, "tidy")
    os.makedirs(clean, exist_ok=True)

    stamps = {path: os.path.join(clean, hasher.digest(path, version, config, command_of(commands[path])))
              for path in sources}
    due = [path for path in sources if not os.path.exists(stamps[path])]

    def tidy(*words):
        return subprocess.run(["clang-tidy", "--quiet", *words], capture_output=True, text=True)

    def is_clean_batch(batch):
        name = hashlib.sha256("\0".join(batch).encode()).hexdigest()[:16]
        source = os.path.join(options.build, f"tidy_batch_{name}.cpp")
        with open(source, "w", encoding="utf-8") as file:
            file.writelines(f'#include "{path}"\n' for path in batch)
        try:
            flags = max((flags_of(commands[path]) for path in batch), key=len)
            return tidy(*BATCH_OPTIONS, source, "--", *flags).returncode == 0
        finally:
            os.remove(source)

    def lint(batch):
        """The results of the files that are not clean."""
        results = [(path, tidy("-p", options.build, path)) for path in left_alone(batch, is_clean_batch)]
        bad = [(path, result) for path, result in results if result.returncode != 0]
        unclean = {path for path, _ in bad}
        for path in batch:
            if path not in unclean:
                with open(stamps[path], "w", encoding="utf-8") as file:
                    file.write(path + "\n")
        return bad

    failed = 0
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for bad in pool.map(lint, batches_of(due, commands, options.jobs)):
            failed += len(bad)
            for path, result in bad:
                print(f"{os.path.relpath(path, ROOT)}:\n{result.stdout or result.stderr}")
    current = {os.path.basename(s) for s in stamps.values()}
    if not wanted:
        for old in set(os.listdir(clean)) - current:
            os.remove(os.path.join(clean, old))
    print(f"clang-tidy: {len(due)} of {len(sources)} files looked at, {failed} with findings")
    return 1 if failed or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
