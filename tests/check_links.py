#!/usr/bin/env python3
"""check_links.py KALCOCTL: the command works without a display and links no window toolkit."""
import os
import subprocess
import sys

WINDOW_LIBRARIES = ("libQt", "libX11", "libxcb", "libwayland", "libGL", "libEGL")


def main():
    program = sys.argv[1]
    libraries = subprocess.run(["readelf", "-d", program], capture_output=True, text=True, check=True).stdout
    wrong = [line.strip() for line in libraries.splitlines() if "NEEDED" in line and any(w in line for w in WINDOW_LIBRARIES)]
    for line in wrong:
        print(f"{program} needs {line}")
    bare = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    help_run = subprocess.run([program, "--help"], capture_output=True, text=True, env=bare, timeout=60)
    if help_run.returncode != 0 or "script" not in help_run.stdout:
        print(f"--help without a display: status {help_run.returncode}\n{help_run.stdout}{help_run.stderr}")
        return 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
