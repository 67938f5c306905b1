"""The scripts of examples/ do what they say."""
import os

from support import ProgramTest, events

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "examples")
SAVED = "Salvataggio effettuato con successo"
WRITTEN = "File creato con successo"


class Examples(ProgramTest):
    """For each: the information boxes, the side files, and how many bytes of the demo image change."""

    EXPECTED = {
        "rename-a-player": ([SAVED], [], 11),
        "copy-a-player": ([WRITTEN, WRITTEN, WRITTEN, SAVED],
                          ["Export/Italy.DAT", "Export/Spain.DAT", "Transfer/SPAIN.DAT"], 18),
        "copy-a-formation": ([WRITTEN, SAVED, SAVED], ["Moduli&Barre/ITALY.bfr"], 10),
        "set-pieces": ([SAVED, WRITTEN, SAVED], ["Kickers&Capitani/ITALY.kcp"], 10),
        "swap-shirt-numbers": ([SAVED, WRITTEN], ["N° Maglia/NAZ_ITALY.num"], 2),
    }

    def test_are_all_listed_here(self):
        self.assertEqual(sorted(os.listdir(EXAMPLES)), sorted(name + ".kalco" for name in self.EXPECTED))

    def test_do_what_they_say(self):
        for name, (boxes, files, changed) in self.EXPECTED.items():
            with self.subTest(name):
                before = self.disc()
                home = self.path(name)
                os.mkdir(home)
                os.rename(self.path("disc.bin"), os.path.join(home, "disc.bin"))
                script = os.path.join(EXAMPLES, name + ".kalco")
                result = self.run_program("script", "--home", ".", script, cwd=home)
                self.assertEqual((result.returncode, result.stderr), (0, b""))
                told = events(result)
                self.assertEqual([line for line in told if line.get("event") == "refused"], [])
                self.assertEqual([line["text"] for line in told if line.get("icon") == "information"], boxes)
                found = [os.path.relpath(os.path.join(at, file), home) for at, _, all in os.walk(home) for file in all]
                self.assertEqual(sorted(found), sorted([*files, "disc.bin"]))
                after = self.read(os.path.join(name, "disc.bin"))
                self.assertEqual(len(after), len(before))
                self.assertEqual(sum(a != b for a, b in zip(before, after)), changed)
