"""The demo image: in use, behind a link, of another mode, broken off."""
import fcntl
import os
import signal
import stat
import subprocess
import time

from support import SECONDS, ProgramTest, kalcoctl


class Replacing(ProgramTest):
    def test_leaves_an_image_that_is_in_use(self):
        locks = (lambda file: fcntl.flock(file, fcntl.LOCK_EX), lambda file: fcntl.lockf(file, fcntl.LOCK_EX))
        for lock in locks:
            with self.subTest(lock), open(self.write("disc.bin", "mine"), "r+b") as file:
                lock(file)
                result = self.run_program("demo", "--force", "disc.bin")
                self.assertEqual(result.returncode, 2)
                self.assertIn(b"kalcoctl demo: disc.bin: another program has it open", result.stderr)
                self.assertEqual(self.read("disc.bin"), b"mine")
                self.assertEqual(self.entries(), ["disc.bin"])

    def test_follows_a_link_and_keeps_the_mode(self):
        whole = self.disc()
        os.mkdir(self.path("elsewhere"))
        self.write("elsewhere/target.bin", "old")
        os.chmod(self.path("elsewhere/target.bin"), 0o604)
        os.symlink("elsewhere/target.bin", self.path("link.bin"))
        self.assertEqual(self.run_program("demo", "--force", "link.bin").returncode, 0)
        self.assertTrue(os.path.islink(self.path("link.bin")))
        self.assertTrue(self.read("elsewhere/target.bin") == whole)
        self.assertEqual(stat.S_IMODE(os.stat(self.path("elsewhere/target.bin")).st_mode), 0o604)
        self.assertEqual(os.listdir(self.path("elsewhere")), ["target.bin"])

    def test_needs_force(self):
        self.write("disc.bin", "mine")
        self.assertEqual(self.run_program("demo", "disc.bin").returncode, 2)
        self.assertEqual(self.read("disc.bin"), b"mine")


class BreakingOff(ProgramTest):
    def broken_off(self, number, *arguments):
        program = subprocess.Popen([kalcoctl(), "demo", *arguments], cwd=self.home, stderr=subprocess.DEVNULL)
        while program.poll() is None and "disc.bin.part" not in self.entries():
            time.sleep(0.001)
        program.send_signal(number)
        return program.wait(SECONDS)

    def test_leaves_no_part(self):
        self.write("disc.bin", "mine")
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number):
                self.assertEqual(self.broken_off(number, "--force", "disc.bin"), -number)
                self.assertEqual(self.entries(), ["disc.bin"])
                self.assertEqual(self.read("disc.bin"), b"mine")


class Seeds(ProgramTest):
    def test_are_numbers_of_64_bits(self):
        for seed in ("-1", "1.5", "x", "1x", "18446744073709551616", "1e3", " 1", "0x10", ""):
            with self.subTest(seed):
                self.assertEqual(self.run_program("demo", "--seed", seed, "disc.bin").returncode, 2)
                self.assertEqual(self.entries(), [])
        self.assertEqual(self.run_program("demo", "--seed", "18446744073709551615", "disc.bin").returncode, 0)
