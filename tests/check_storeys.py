#!/usr/bin/env python3
"""check_storeys.py EDITOR_LIBRARY LIBRARY...: the libraries know nothing of the editor.

None of them defines or refers to a symbol that is the editor's own, that is one that only its library defines, or one
whose name holds a type of the window model. Prints one line for each such symbol and ends with status 1 if there is any.
"""
import re
import subprocess
import sys

# A symbol of nm: perhaps an address, the kind, the name. Common letters are code and data that one library alone has;
# V, W and u are inline code, which any library may have.
LINE = re.compile(r"^(?:[0-9a-f]+)?\s+([A-Za-z])\s+(\S.*)$")
OWN_KINDS = set("TDBRGS")
# Types of the window model: they appear in the names of inline code too.
WINDOW_TYPES = re.compile(r"\bkalco::(frmKalco|Control|Registry|Platform|TextBox|ListBox|ComboBox|Editor)\b")


def symbols(nm_output):
    """The (kind, name) of each line of `nm -C`."""
    for line in nm_output.splitlines():
        found = LINE.match(line)
        if found:
            yield found.group(1), found.group(2)


def own_symbols(nm_output):
    return {name for kind, name in symbols(nm_output) if kind in OWN_KINDS and "kalco" in name}


def breaches(editor_own, nm_output):
    return sorted({name for _, name in symbols(nm_output) if name in editor_own or WINDOW_TYPES.search(name)})


def nm(library):
    return subprocess.run(["nm", "-C", library], capture_output=True, text=True, check=True).stdout


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    editor_own = own_symbols(nm(sys.argv[1]))
    if not any("frmKalco" in name for name in editor_own):
        print(f"{sys.argv[1]} does not define frmKalco: this is not the editor")
        return 1
    count = 0
    for library in sys.argv[2:]:
        text = nm(library)
        if not own_symbols(text):
            print(f"{library} defines nothing of kalco: there is nothing to check")
            return 1
        for name in breaches(editor_own, text):
            print(f"{library}: {name} belongs to the editor")
            count += 1
    print(f"{len(editor_own)} symbols of the editor, {count} of them used below it")
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
