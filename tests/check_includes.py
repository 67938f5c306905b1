#!/usr/bin/env python3
"""check_includes.py ROOT: the include rule of the source tree.

- src/: a folder includes only the folders below it in ALLOWED, the files that BASE_FILES names, and the standard
  library. No file includes itself through others.
- ctl/ includes no window toolkit, app/ no command line library.
- ctl/ works on the disc without the editor: only its script/, and the main program that runs it, include editor/ or
  script/.

Prints one line for each breach and ends with status 1 if there is any.
"""
import os
import re
import sys

# Folder of src/ -> folders that it may include besides itself.
DISC = {"disc", "disc/codec", "disc/image"}
WINDOW = DISC | {"editor/window"}
TEAMS = WINDOW | {"editor/teams"}
PLAYERS = TEAMS | {"editor/players"}
HANDLERS = {"editor/teamfiles", "editor/formations", "editor/numbers", "editor/kickers", "editor/league"}
ALLOWED = {
    "disc/image": set(),
    "disc/codec": set(),
    "disc": DISC,
    "work/check": DISC,
    "work/sheets": DISC,
    "work/report": DISC | {"work", "work/sheets"},
    "work": DISC | {"work/check", "work/sheets"},
    "editor/window": DISC,
    "editor/teams": WINDOW,
    "editor/players": TEAMS,
    **{folder: PLAYERS for folder in HANDLERS},
    "editor": PLAYERS | HANDLERS,
}
# What every folder may include.
BASE_FILES = {"disc/runtime_error.h"}

STANDARD = set("""
algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts condition_variable
coroutine deque exception execution filesystem format forward_list fstream functional future initializer_list iomanip
ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers numeric
optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span
sstream stack stdexcept stop_token streambuf string string_view strstream syncstream system_error thread tuple
type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version
cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint cstdio
cstdlib cstring ctime cuchar cwchar cwctype
""".split())
# The exclusive open of the image has no standard form: the system's own headers, in sources of disc/image/ only.
SYSTEM = {"fcntl.h", "sys/file.h", "sys/ioctl.h", "linux/fs.h", "sys/stat.h", "sys/types.h", "unistd.h", "windows.h", "io.h", "share.h"}
# What a processor offers beyond the language, in sources of work/check/ only.
PROCESSOR = {"immintrin.h"}

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]', re.MULTILINE)


def sources(top):
    for folder, _, names in sorted(os.walk(top)):
        for name in sorted(names):
            if name.endswith((".h", ".hpp", ".cpp", ".inc")):
                yield os.path.join(folder, name)


def includes(path):
    with open(path, encoding="utf-8") as file:
        return [(m.group(1) == '"', m.group(2)) for m in INCLUDE.finditer(file.read())]


def folder_of(name):
    return os.path.dirname(name)


def check_core(root, report):
    src = os.path.join(root, "src")
    graph = {}
    for path in sources(src):
        name = os.path.relpath(path, src).replace(os.sep, "/")
        folder = folder_of(name)
        if folder not in ALLOWED:
            report(f"src/{name}: the folder {folder}/ has no line in the table of allowed folders")
            continue
        graph[name] = []
        for quoted, target in includes(path):
            if not quoted:
                system = name.endswith(".cpp") and target in {"disc/image": SYSTEM, "work/check": PROCESSOR}.get(folder, ())
                if target not in STANDARD and not system:
                    report(f"src/{name}: <{target}> is no header of the standard library")
                continue
            if not os.path.isfile(os.path.join(src, target)):
                report(f'src/{name}: "{target}" is no file below src/ (write the path from src/ on)')
                continue
            graph[name].append(target)
            other = folder_of(target)
            if other != folder and target not in BASE_FILES and other not in ALLOWED[folder]:
                report(f"src/{name}: {folder}/ may not include {other}/ ({target})")
    return graph


def check_cycles(graph, report):
    done, path = set(), []

    def visit(name):
        if name in path:
            report("a cycle: " + " -> ".join(path[path.index(name):] + [name]))
            return
        if name in done:
            return
        path.append(name)
        for target in graph.get(name, []):
            visit(target)
        path.pop()
        done.add(name)

    for name in graph:
        visit(name)


def check_shells(root, report):
    for folder, pattern, what in (("ctl", r"Q[A-Z]|Qt", "a header of Qt"), ("app", r"CLI/", "the command line library")):
        for path in sources(os.path.join(root, folder)):
            for _, target in includes(path):
                if re.match(pattern, target):
                    report(f"{os.path.relpath(path, root)}: {target} is {what}")


def check_commands(root, report):
    ctl = os.path.join(root, "ctl")
    for path in sources(ctl):
        name = os.path.relpath(path, ctl).replace(os.sep, "/")
        if name.startswith("script/") or name == "main.cpp":
            continue
        for _, target in includes(path):
            if target.startswith(("editor/", "ctl/script/")):
                report(f"ctl/{name}: only ctl/script/ stands on the editor ({target})")


def check(root):
    breaches = []
    graph = check_core(root, breaches.append)
    check_cycles(graph, breaches.append)
    check_shells(root, breaches.append)
    check_commands(root, breaches.append)
    return breaches, len(graph)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    breaches, count = check(sys.argv[1])
    for line in breaches:
        print(line)
    print(f"{count} files of src/, {len(breaches)} breaches of the include rule")
    return 1 if breaches or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
