"""Scripts that can't be read or echoed, and homes that can't be used."""
import os
import resource
import subprocess

from support import ProgramTest, events, kalcoctl

NOBODY = 65534
START = ('choose "disc.bin"', "start")


class ScriptSources(ProgramTest):
    def test_a_read_error_is_no_end(self):
        before = self.disc()
        result = self.run_program("script", "--home", self.home, self.home)
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"can't be read on", result.stderr)
        self.assertEqual(result.stdout, b"")
        # Behind some lines the window is open; it is not closed as at the end of the script.
        result = self.in_shell('{ "$@" <&-; } </dev/null', "script", "--home", self.home)
        self.assertEqual(result.returncode, 2)
        self.assertTrue(self.read("disc.bin") == before)

    def test_a_read_error_of_standard_input(self):
        directory = os.open(self.home, os.O_RDONLY)
        try:
            result = self.run_program("script", "--home", self.home, stdin=directory)
        finally:
            os.close(directory)
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"kalcoctl script: standard input: line 1: ", result.stderr)
        self.assertEqual(result.stdout, b"")

    def test_a_hyphen_is_standard_input(self):
        self.disc()
        script = "\n".join([*START, "show ImagePath"]).encode()
        result = self.run_program("script", "--home", self.home, "-", input=script)
        self.assertEqual(result.returncode, 0)
        self.assertEqual(events(result)[1], {"show": "ImagePath", "value": "disc.bin"})

    def test_a_missing_script(self):
        result = self.run_program("script", "--home", self.home, "missing.kalco")
        self.assertEqual(result.returncode, 2)
        self.assertTrue(result.stderr.startswith(b"kalcoctl script: missing.kalco: "))


class Echoes(ProgramTest):
    def complaint(self, line):
        result = self.play(line)
        self.assertEqual(result.returncode, 2)
        return result.stderr

    def test_are_cut_at_80_characters(self):
        self.assertIn(b" " + b"x" * 80 + b"...\n", self.complaint("x" * 5000))
        self.assertLess(len(self.complaint("click " + "x" * 5000)), 200)
        self.assertLess(len(self.complaint("start " + "x " * 5000)), 200)

    def test_show_control_characters_as_escapes(self):
        self.assertIn(rb"\x1b]0;x\x07", self.complaint("\x1b]0;x\x07"))
        self.assertIn(rb"\xc2\x9b", self.complaint("tab \x9b"))

    def test_name_the_command_the_file_and_the_line(self):
        self.write("a.kalco", "\nnonsense\n")
        result = self.run_program("script", "--home", self.home, "a.kalco")
        self.assertEqual(result.stderr, b"kalcoctl script: a.kalco: line 2: unknown action nonsense\n")

    def test_of_a_path_with_a_zero_byte(self):
        before = self.disc()
        self.assertIn(b"zero byte", self.complaint('choose "disc.bin\\u0000x"'))
        self.assertTrue(self.read("disc.bin") == before)


class Homes(ProgramTest):
    def refused(self, home, **options):
        before = self.disc()
        result = self.run_program("script", "--home", home, input=b'choose "disc.bin"\nstart\n', **options)
        self.assertEqual(result.returncode, 2)
        self.assertEqual(result.stdout, b"")
        self.assertTrue(result.stderr.startswith(b"kalcoctl script: " + home.encode() + b": "), result.stderr)
        self.assertTrue(self.read("disc.bin") == before)

    def test_have_to_be_directories(self):
        self.write("file", "x")
        os.symlink("nowhere", self.path("dangling"))
        for home in ("missing", "file", "file/below", "dangling", "/dev/null", ""):
            with self.subTest(home):
                self.refused(home)
        self.assertEqual(self.entries(), ["dangling", "disc.bin", "file"])

    def test_have_to_be_writable(self):
        os.mkdir(self.path("closed"), 0o555)
        os.chmod(self.home, 0o777)
        # Nothing is closed to root.
        self.refused("closed", user=NOBODY if os.geteuid() == 0 else None)

    def test_are_looked_at_before_the_script(self):
        result = self.run_program("script", "--home", "missing", "missing.kalco")
        self.assertEqual(result.returncode, 2)
        self.assertTrue(result.stderr.startswith(b"kalcoctl script: missing: "))

    def test_of_an_installed_program_are_the_users(self):
        """A program in one of the system's directories writes nothing beside itself, not even for root."""
        place = "/usr/games"
        self.disc()
        os.mkdir(self.path("bin"))
        os.link(kalcoctl(), self.path("bin", "kalcoctl")) if same_device(kalcoctl(), self.home) else \
            self.write("bin/kalcoctl", open(kalcoctl(), "rb").read())
        os.chmod(self.path("bin", "kalcoctl"), 0o755)
        command = f'mount --bind bin {place} && {place}/kalcoctl script && ls {place}'
        namespace = ["unshare", "--mount", "--map-root-user"]
        if subprocess.run([*namespace, "mount", "--bind", self.path("bin"), place], capture_output=True,
                          check=False).returncode != 0:
            self.skipTest("no name space of its own can be made here")
        result = subprocess.run([*namespace, "sh", "-c", command], cwd=self.home, input=b'choose "disc.bin"\nstart\n',
                                capture_output=True, check=False, env={**os.environ, "XDG_DATA_HOME": self.path("data")})
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertTrue(result.stdout.endswith(b"kalcoctl\n"))
        self.assertEqual(os.listdir(self.path("bin")), ["kalcoctl"])
        self.assertEqual(os.listdir(self.path("data", "kalco")), ["Export"])


def same_device(a, b):
    return os.stat(a).st_dev == os.stat(b).st_dev


class Memory(ProgramTest):
    def test_that_there_is_not_ends_like_a_run_time_error(self):
        with open(kalcoctl(), "rb") as program:
            if b"__asan_init" in program.read():
                self.skipTest("the sanitizer takes all the addresses there are")
        before = self.disc()
        # A million lines want more than this.
        self.write("lines.DAT", b"\n" * (1 << 20))
        limit = 40 << 20
        result = self.play(*START, 'choose "lines.DAT"', "tab 3", "click cmdTeam1", "show ListVende",
                           preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (limit, limit)))
        self.assertEqual(result.returncode, 1)
        self.assertEqual(events(result)[-1], {"event": "ended", "reason": "error", "number": 7})
        self.assertTrue(self.read("disc.bin") == before)
