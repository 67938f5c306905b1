"""What the tests of the real programs share."""
import json
import os
import shutil
import subprocess
import tempfile
import unittest

SECONDS = 60


def kalcoctl():
    return os.environ["KALCO_KALCOCTL"]


class ProgramTest(unittest.TestCase):
    """Each test has an empty directory of its own, self.home, in which its programs run."""

    _demo = None

    def setUp(self):
        self.home = tempfile.mkdtemp(prefix="kalco-programs-")
        self.addCleanup(shutil.rmtree, self.home, ignore_errors=True)

    def path(self, *below):
        return os.path.join(self.home, *below)

    def write(self, name, content):
        with open(self.path(name), "wb") as file:
            file.write(content if isinstance(content, bytes) else content.encode())
        return self.path(name)

    def read(self, name):
        with open(self.path(name), "rb") as file:
            return file.read()

    def entries(self):
        return sorted(os.listdir(self.home))

    def disc(self):
        """Puts disc.bin, a demo image, into the directory, and returns its bytes."""
        if ProgramTest._demo is None:
            with tempfile.TemporaryDirectory(prefix="kalco-demo-") as home:
                path = os.path.join(home, "disc.bin")
                subprocess.run([kalcoctl(), "demo", path], check=True, timeout=SECONDS)
                with open(path, "rb") as file:
                    ProgramTest._demo = file.read()
        self.write("disc.bin", ProgramTest._demo)
        return ProgramTest._demo

    def run_program(self, *arguments, **options):
        """Runs kalcoctl; its output is captured unless the options say where it goes."""
        options.setdefault("stdout", subprocess.PIPE)
        options.setdefault("stderr", subprocess.PIPE)
        options.setdefault("cwd", self.home)
        options.setdefault("timeout", SECONDS)
        if "stdin" not in options and "input" not in options:
            options["stdin"] = subprocess.DEVNULL
        return subprocess.run([kalcoctl(), *arguments], check=False, **options)

    def play(self, *actions, **options):
        """Plays a script from standard input, with the directory as the program's."""
        script = "".join(action + "\n" for action in actions).encode()
        return self.run_program("script", "--home", self.home, input=script, **options)

    def in_shell(self, command, *arguments, **options):
        """Runs a shell command in which "$@" stands for kalcoctl and the arguments."""
        options.setdefault("cwd", self.home)
        options.setdefault("timeout", SECONDS)
        return subprocess.run(["sh", "-c", command, "sh", kalcoctl(), *arguments], check=False, capture_output=True,
                              **options)


def events(result):
    """The lines that a script printed, as objects."""
    return [json.loads(line) for line in result.stdout.decode().splitlines()]
