"""report: one page that stands on its own, whatever the image holds."""
import json
import random
import re
import xml.etree.ElementTree as ElementTree

from support import ProgramTest

XHTML = "{http://www.w3.org/1999/xhtml}"


class Report(ProgramTest):
    def report(self, image="disc.bin"):
        result = self.run_program("report", image, "-o", "page.html")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, b"", b""))
        return self.read("page.html").decode()

    def players(self):
        rows = self.run_program("export", "disc.bin", "--format", "json", "--sheet", "players").stdout.decode()
        return {row["id"]: row for row in map(json.loads, rows.splitlines())}

    def test_is_well_formed_and_tells_every_player(self):
        self.disc()
        page = self.report()
        self.assertLess(len(page.encode()), 6_000_000)
        root = ElementTree.fromstring(page)
        rows = {row.get("id"): row for row in root.iter(XHTML + "tr") if row.get("id")}
        players = self.players()
        self.assertEqual(rows.keys(), players.keys())
        for id, player in players.items():
            cells = ["".join(cell.itertext()) for cell in rows[id]]
            self.assertEqual(cells[1], player["name"])
            self.assertTrue(cells[2].startswith(player["role"]))
            self.assertEqual(cells[7:23], [str(player[skill]) for skill in (
                "attack", "defence", "balance", "stamina", "speed", "acceleration", "passing", "shot_power",
                "shot_accuracy", "jump", "heading", "technique", "dribbling", "curve", "positivity", "reaction")])

    def test_links_lead_somewhere_and_nothing_is_loaded(self):
        self.disc()
        page = self.report()
        root = ElementTree.fromstring(page)
        ids = [element.get("id") for element in root.iter() if element.get("id")]
        self.assertEqual(len(ids), len(set(ids)))
        for element in root.iter():
            for name in ("src", "srcset", "action", "data", "{http://www.w3.org/1999/xlink}href"):
                self.assertIsNone(element.get(name))
            target = element.get("href")
            if target is not None:
                self.assertEqual(target[0], "#")
                self.assertIn(target[1:], ids)
        for reference in re.findall(r"url\(([^)]*)\)", page):
            self.assertEqual(reference[0], "#")
            self.assertIn(reference[1:], ids)
        self.assertNotIn("@import", page)

    def test_headings_are_in_order(self):
        self.disc()
        root = ElementTree.fromstring(self.report())
        levels = [int(element.tag[-1]) for element in root.iter() if re.fullmatch(re.escape(XHTML) + "h[1-6]", element.tag)]
        self.assertEqual(levels[0], 1)
        self.assertEqual(levels.count(1), 1)
        for above, level in zip(levels, levels[1:]):
            self.assertLessEqual(level, above + 1)

    def test_texts_of_the_disc_stay_texts(self):
        self.disc()
        self.write("odd.csv", 'id,name\r\nt00p01,"<b>&""\'</b"\r\nt00p02,</script>\r\n')
        self.assertEqual(self.run_program("import", "disc.bin", "odd.csv").returncode, 0)
        root = ElementTree.fromstring(self.report())
        names = {row.get("id"): row[1][-1].tail for row in root.iter(XHTML + "tr") if row.get("id") in ("t00p01", "t00p02")}
        self.assertEqual(names, {"t00p01": "<b>&\"'</b", "t00p02": "</script>"})

    def test_odd_bytes_everywhere_make_a_page_too(self):
        image = bytearray(self.disc())
        image[0x9400:] = random.Random(1).randbytes(len(image) - 0x9400)
        self.write("disc.bin", bytes(image))
        result = self.run_program("report", "disc.bin", "-o", "page.html")
        self.assertEqual(result.returncode, 0)
        ElementTree.fromstring(self.read("page.html").decode())

    def test_the_image_is_read_only(self):
        before = self.disc()
        self.report()
        self.assertEqual(self.read("disc.bin"), before)
        self.assertEqual(self.entries(), ["disc.bin", "page.html"])
        result = self.run_program("report", "disc.bin", "-o", "disc.bin")
        self.assertEqual(result.returncode, 2)
        self.assertEqual(self.read("disc.bin"), before)

    def test_needs_an_image_and_a_file_to_write(self):
        self.disc()
        for arguments in (("report", "disc.bin"), ("report", "-o", "page.html"), ("report", "none.bin", "-o", "page.html"),
                          ("report", "disc.bin", "-o", "none/page.html")):
            with self.subTest(arguments):
                result = self.run_program(*arguments)
                self.assertEqual((result.returncode, result.stdout), (2, b""))
                self.assertNotEqual(result.stderr, b"")
                self.assertEqual(self.entries(), ["disc.bin"])
