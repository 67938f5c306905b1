"""Wrong usage: status 2 and a reason, for every command."""
from support import ProgramTest


class WrongUsage(ProgramTest):
    def test_is_status_2(self):
        for arguments in ((), ("--nothing",), ("nothing",), ("script", "--nothing"), ("script", "a", "b"),
                          ("script", "--home"), ("demo",), ("demo", "a", "b"), ("demo", "--nothing", "a"),
                          ("demo", "--seed"), ("demo", "--seed", "x", "a"), ("demo", "a", "script", "b")):
            with self.subTest(arguments):
                result = self.run_program(*arguments)
                self.assertEqual(result.returncode, 2)
                self.assertEqual(result.stdout, b"")
                self.assertNotEqual(result.stderr, b"")
                self.assertEqual(self.entries(), [])

    def test_is_not_to_ask_for_help(self):
        for arguments in (("--help",), ("-h",), ("--version",), ("script", "--help"), ("demo", "-h")):
            with self.subTest(arguments):
                result = self.run_program(*arguments)
                self.assertEqual(result.returncode, 0)
                self.assertNotEqual(result.stdout, b"")
                self.assertEqual(result.stderr, b"")
