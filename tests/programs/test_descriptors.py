"""Standard descriptors that are closed, full or gone: no image is overwritten, and lost output is told."""
import os
import signal
import subprocess
import time

from support import SECONDS, ProgramTest, kalcoctl

OPENING = ('choose "disc.bin"', "start", "pick cboSeqSQ 0", "show listDat txtSQ")
PRINTING = (("--help",), ("--version",), ("script", "--help"), ("demo", "--help"))


class ClosedDescriptors(ProgramTest):
    def play_in_shell(self, redirection):
        self.write("a.kalco", "\n".join(OPENING) + "\n")
        # A file takes the first closed descriptor; from standard input it is the image that does.
        source = ("a.kalco",) if "<&-" in redirection else ()
        return self.in_shell(f'"$@" <a.kalco {redirection}', "script", "--home", self.home, *source)

    def test_output_is_not_printed_over_the_image(self):
        before = self.disc()
        for redirection in (">&-", ">&- 2>&-", ">&- <&-", "<&- >&- 2>&-"):
            with self.subTest(redirection):
                result = self.play_in_shell(redirection)
                self.assertTrue(self.read("disc.bin") == before)
                self.assertEqual(result.returncode, 2)

    def test_other_descriptors_are_not_missed(self):
        before = self.disc()
        for redirection in ("<&-", "2>&-", "<&- 2>&-"):
            with self.subTest(redirection):
                result = self.play_in_shell(redirection)
                self.assertTrue(self.read("disc.bin") == before)
                self.assertEqual(result.returncode, 0)
                self.assertIn(b'"reason": "closed"', result.stdout)

    def test_progress_is_not_written_into_the_new_image(self):
        before = self.disc()
        program = subprocess.Popen(["sh", "-c", 'exec "$@" 2>&-', "sh", kalcoctl(), "demo", "new.bin"], cwd=self.home)
        # Progress is told when the work takes more than two seconds.
        while program.poll() is None and "new.bin.part" not in self.entries():
            time.sleep(0.001)
        program.send_signal(signal.SIGSTOP)
        time.sleep(2.1)
        program.send_signal(signal.SIGCONT)
        self.assertEqual(program.wait(SECONDS), 0)
        self.assertTrue(self.read("new.bin") == before)


class LostOutput(ProgramTest):
    def assert_told(self, result):
        self.assertEqual(result.returncode, 2)
        if result.stderr is not None:
            self.assertIn(b"standard output can't be written", result.stderr)

    def test_help_and_version_on_a_full_disk(self):
        for arguments in PRINTING:
            with self.subTest(arguments), open("/dev/full", "wb") as full:
                self.assert_told(self.run_program(*arguments, stdout=full))

    def test_help_and_version_on_a_closed_output(self):
        for arguments in PRINTING:
            with self.subTest(arguments):
                self.assert_told(self.in_shell('"$@" >&-', *arguments))

    def test_help_and_version_on_a_closed_pipe(self):
        for arguments in PRINTING:
            with self.subTest(arguments):
                self.assert_told(self.run_program(*arguments, stdout=self.closed_pipe()))

    def closed_pipe(self):
        reading, writing = os.pipe()
        os.close(reading)
        self.addCleanup(os.close, writing)
        return writing

    def test_a_script_on_a_full_disk(self):
        self.disc()
        with open("/dev/full", "wb") as full:
            self.assert_told(self.play(*OPENING, stdout=full))

    def test_a_long_script_on_a_full_disk(self):
        self.disc()
        with open("/dev/full", "wb") as full:
            self.assert_told(self.play(*OPENING, *["show listDat"] * 200, stdout=full))

    def test_a_script_on_a_closed_pipe(self):
        self.disc()
        for handler in (signal.SIG_IGN, signal.SIG_DFL):
            with self.subTest(handler):
                self.assert_told(self.play(*OPENING, stdout=self.closed_pipe(),
                                           preexec_fn=lambda: signal.signal(signal.SIGPIPE, handler)))

    def test_a_failed_script_on_a_full_disk(self):
        with open("/dev/full", "wb") as full:
            self.assertEqual(self.play('choose "missing.bin"', "start", "tab 1", stdout=full).returncode, 2)

    def test_nothing_is_lost_where_nothing_is_printed(self):
        with open("/dev/full", "wb") as full:
            self.assertEqual(self.run_program("demo", "a.bin", stdout=full, stderr=subprocess.PIPE).returncode, 0)
