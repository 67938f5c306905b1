"""export, import, diff and find: their files, lines and statuses."""
import csv
import fcntl
import io
import json
import os
import random

from support import ProgramTest

PLAYERS = 63 * 23 + 462
SHEETS = {"players": PLAYERS, "teams": 95, "formations": 87, "bars": 86, "numbers": 87, "set_pieces": 87, "links": 32}
RECORDS = 2179493  # the position of the first player's record


class SheetsTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.image = self.disc()

    def command(self, *arguments, status=0):
        """Runs it; the status and an empty standard error are part of what it must do."""
        result = self.run_program(*arguments)
        self.assertEqual(result.returncode, status, result.stderr.decode())
        if status == 0:
            self.assertEqual(result.stderr, b"")
        return result.stdout.decode()

    def refusal(self, status, *arguments):
        """The lines of standard error of a command that fails and changes nothing."""
        before = self.read("disc.bin")
        result = self.run_program(*arguments)
        self.assertEqual(result.returncode, status, result.stderr.decode())
        self.assertEqual(result.stdout, b"")
        self.assertEqual(self.read("disc.bin"), before)
        return result.stderr.decode().splitlines()

    def rows(self, *arguments):
        return list(csv.DictReader(io.StringIO(self.command("export", "disc.bin", *arguments), newline="")))

    def row(self, row_id, sheet="players"):
        return next(row for row in self.rows("--sheet", sheet) if row["id"] == row_id)


class Export(SheetsTest):
    def test_is_the_players_as_csv(self):
        text = self.command("export", "disc.bin")
        self.assertTrue(text.startswith("id,team,rev,name,role,out_of_role,"))
        self.assertTrue(text.endswith("\r\n"))
        rows = self.rows()
        self.assertEqual(len(rows), PLAYERS)
        self.assertEqual([rows[0]["id"], rows[1449]["id"], rows[-1]["id"]], ["t00p01", "m001", "m462"])

    def test_reads_what_is_stored(self):
        row = self.row("t00p01")
        record = self.image[RECORDS - 1:RECORDS + 11]
        words = [int.from_bytes(record[i:i + 4], "little") for i in (0, 4, 8)]
        self.assertEqual(int(row["height"]), 148 + (words[0] >> 20 & 63))
        self.assertEqual(int(row["age"]), 15 + (words[1] >> 5 & 31))
        self.assertEqual(int(row["speed"]), 12 + (words[1] >> 23 & 7))
        self.assertEqual(row["foot"], ("Destro", "Sinistro", "Ambi", "#3")[words[2] >> 30])
        self.assertEqual(row["out_of_role"], ("No", "Si")[words[0] >> 31])

    def test_has_every_sheet_as_json(self):
        counts = {}
        for line in self.command("export", "disc.bin", "--format", "json").splitlines():
            row = json.loads(line)
            counts[row["sheet"]] = counts.get(row["sheet"], 0) + 1
            self.assertTrue(all(isinstance(value, str) for value in row.values()))
        self.assertEqual(list(counts.items()), list(SHEETS.items()))

    def test_of_one_sheet(self):
        for sheet, count in SHEETS.items():
            rows = self.rows("--sheet", sheet)
            self.assertEqual(len(rows), count)
            lines = self.command("export", "disc.bin", "--sheet", sheet, "--format", "json").splitlines()
            self.assertEqual([json.loads(line) for line in lines], [{"sheet": sheet, **row} for row in rows])

    def test_follows_the_files_name(self):
        self.command("export", "disc.bin", "-o", "a.json")
        self.assertTrue(self.read("a.json").startswith(b'{"sheet":"players","id":"t00p01"'))
        self.command("export", "disc.bin", "-o", "a.txt")
        self.assertTrue(self.read("a.txt").startswith(b"id,team"))
        self.command("export", "disc.bin", "-o", "a.json", "--format", "csv")
        self.assertTrue(self.read("a.json").startswith(b"id,team"))
        self.assertEqual(self.entries(), ["a.json", "a.txt", "disc.bin"])

    def test_takes_another_separator(self):
        text = self.command("export", "disc.bin", "--sheet", "bars", "--separator", ";", "--bom")
        self.assertTrue(text.startswith("\ufeffid;offense;defense;power;speed;technique\r\n"))
        self.assertTrue(self.command("export", "disc.bin", "--separator", "\\t").startswith("id\tteam\t"))

    def test_is_never_the_image(self):
        os.symlink("disc.bin", self.path("link.csv"))
        for name in ("disc.bin", "link.csv"):
            lines = self.refusal(2, "export", "disc.bin", "-o", name)
            self.assertEqual(lines, [f"kalcoctl export: {name}: that is the image itself"])

    def test_refuses_wrong_usage(self):
        for arguments in (("--sheet", "player"), ("--sheet", ""), ("--format", "xls"), ("--separator", "ab"),
                          ("--separator", "a"), ("--separator", '"'), ("--separator", ""),
                          ("--format", "json", "--bom"), ("--format", "json", "--separator", ";"), ("-o",), ("x",)):
            with self.subTest(arguments):
                self.assertTrue(self.refusal(2, "export", "disc.bin", *arguments))
        self.assertTrue(self.refusal(2, "export", "none.bin"))
        self.assertTrue(self.refusal(2, "export", "disc.bin", "-o", "none/a.csv"))
        self.write("short.bin", b"x" * 2352 * 100)
        self.assertTrue(self.refusal(2, "export", "short.bin"))


class Import(SheetsTest):
    def test_of_an_export_writes_nothing(self):
        os.utime(self.path("disc.bin"), (1, 1))
        for arguments in (("-o", "a.csv"), ("-o", "b.csv", "--separator", ";", "--bom"), ("-o", "c.json")):
            self.command("export", "disc.bin", *arguments)
            self.assertEqual(self.command("import", "disc.bin", arguments[1]), "")
        for sheet in SHEETS:
            self.command("export", "disc.bin", "--sheet", sheet, "-o", "d.csv")
            self.assertEqual(self.command("import", "disc.bin", "d.csv", "--sheet", sheet), "")
        self.assertEqual(self.read("disc.bin"), self.image)
        self.assertEqual(os.stat(self.path("disc.bin")).st_mtime, 1)
        self.assertEqual(self.entries(), ["a.csv", "b.csv", "c.json", "d.csv", "disc.bin"])

    def test_changes_the_bits_of_a_field(self):
        old = int(self.row("t00p01")["speed"])
        new = 19 if old != 19 else 12
        self.write("a.csv", f"id,speed\r\nt00p01,{new}\r\n")
        line = f"t00p01 speed: {old} -> {new}\n"
        self.assertEqual(self.command("import", "disc.bin", "a.csv", "--dry-run"), line)
        self.assertEqual(self.read("disc.bin"), self.image)
        self.assertEqual(self.command("import", "disc.bin", "a.csv"), line)
        after = self.read("disc.bin")
        word = int.from_bytes(self.image[RECORDS + 3:RECORDS + 7], "little")
        word = word & ~(7 << 23) | (new - 12) << 23
        self.assertEqual(after[RECORDS + 3:RECORDS + 7], word.to_bytes(4, "little"))
        sector = (RECORDS - 1) // 2352
        changed = {place for place in range(len(after)) if after[place] != self.image[place]}
        allowed = set(range(RECORDS + 3, RECORDS + 7)) | set(range(sector * 2352 + 2072, sector * 2352 + 2352))
        self.assertLessEqual(changed, allowed)
        self.assertEqual(len(after), len(self.image))
        self.assertEqual(self.entries(), ["a.csv", "disc.bin"])

    def test_tells_changes_as_json(self):
        old = self.row("t04", "teams")["full"]
        self.write("a.json", '{"sheet":"teams","id":"t04","full":"Ab C"}\n')
        self.assertEqual([json.loads(line) for line in
                          self.command("import", "disc.bin", "a.json", "--json").splitlines()],
                         [{"sheet": "teams", "id": "t04", "field": "full", "old": old, "new": "Ab C"}])
        self.assertEqual(self.row("t04", "teams")["full"], "Ab C")

    def test_tells_all_mistakes_at_once(self):
        self.write("a.csv", "id;speed;colour;name\r\n\r\nt00p01;20;;\r\nt00p99;;;\r\nt00p02;;;much too long\r\n")
        self.assertEqual(self.refusal(1, "import", "disc.bin", "a.csv"),
                         ["kalcoctl import: a.csv:1:colour: unknown column",
                          'kalcoctl import: a.csv:3:speed: "20": out of range: 12 to 19',
                          'kalcoctl import: a.csv:4:id: unknown id "t00p99"',
                          'kalcoctl import: a.csv:5:name: "much too long": too long: 13 bytes, there is room for 10'])

    def test_keeps_two_peoples_edits_apart(self):
        self.command("export", "disc.bin", "-o", "a.csv")
        text = self.read("a.csv").decode()
        name = self.row("t10p03")["name"]
        self.write("b.csv", "id,name\r\nt10p03,Someone\r\n")
        self.command("import", "disc.bin", "b.csv")
        self.write("a.csv", text.replace(f",{name},", ",Other,"))
        lines = self.refusal(1, "import", "disc.bin", "a.csv")
        self.assertEqual(len(lines), 1)
        self.assertRegex(lines[0], r"^kalcoctl import: a\.csv:234:rev: .* r[0-9A-F]{8}$")
        self.assertEqual(self.command("import", "disc.bin", "a.csv", "--force"), "t10p03 name: Someone -> Other\n")

    def test_tells_mistakes_of_every_kind(self):
        self.write("a.csv", "id,team,cost,foot,name\r\nt10p03,t11,251,destro,\u0141\r\nt57p01,,5,,\r\nT10P03,,,,\r\n"
                            "t10p03,,,,\r\n,,1,,\r\n")
        lines = self.refusal(1, "import", "disc.bin", "a.csv")
        self.assertEqual([line.split(": ")[1] for line in lines],
                         ["a.csv:2:team", "a.csv:2:cost", "a.csv:2:foot", "a.csv:2:name", "a.csv:3:cost", "a.csv:4:id",
                          "a.csv:5:id", "a.csv:6:id"])
        self.assertIn("read-only", lines[0])
        self.assertIn("read-only", lines[4])

    def test_takes_files_as_spreadsheets_save_them(self):
        line = f"t10p03 speed: {self.row('t10p03')['speed']} -> 19\n"
        for text in ("\ufeffid;speed\r\nt10p03;19\r\n", "id\tspeed\nt10p03\t19\n", "speed,id\r19,t10p03\r",
                     '"id","speed",\r\n"t10p03","19",\r\n,,\r\n'):
            self.write("a.csv", text)
            self.assertEqual(self.command("import", "disc.bin", "a.csv", "--dry-run"), line)

    def test_refuses_what_is_no_table(self):
        self.write("a.csv", b"id,name\r\nt00p01,\xd1\r\n")
        self.assertEqual(self.refusal(1, "import", "disc.bin", "a.csv"), ["kalcoctl import: a.csv:2:: not UTF-8"])
        for content in (b"", b"PK\x03\x04", b"{}", b"name\r\nx\r\n", b'{"id":', b"id\r\n\"x", os.urandom(5000)):
            self.write("a.csv", content)
            self.assertTrue(self.refusal(1, "import", "disc.bin", "a.csv"), content[:20])

    def test_refuses_wrong_usage(self):
        self.write("a.csv", "id,speed\r\nt00p01,15\r\n")
        for arguments in (("disc.bin",), ("disc.bin", "none.csv"), ("none.bin", "a.csv"), ("a.csv", "a.csv"),
                          ("disc.bin", "a.csv", "--sheet", "x"), ("disc.bin", "a.csv", "b")):
            with self.subTest(arguments):
                self.assertTrue(self.refusal(2, "import", *arguments))

    def test_of_both_rows_of_a_record(self):
        old = int(self.row("t31p23")["speed"])
        self.assertEqual(int(self.row("t32p01")["speed"]), old)
        one, other = [speed for speed in (12, 13, 14) if speed != old][:2]
        self.write("a.csv", f"id,speed\r\nt31p23,{old}\r\nt32p01,{one}\r\n")
        self.assertEqual(self.command("import", "disc.bin", "a.csv"), f"t32p01 speed: {old} -> {one}\n")
        self.assertEqual(int(self.row("t31p23")["speed"]), one)
        self.write("a.csv", f"id,speed\r\nt31p23,{old}\r\nt32p01,{other}\r\n")
        self.assertEqual(len(self.refusal(1, "import", "disc.bin", "a.csv")), 1)


class ImportAndTheChecks(SheetsTest):
    """Every changed sector whose EDC and parities fitted before has fitting ones again; others keep what they have."""

    # A name over a sector's end would change two; these are one record and one name table entry each.
    CELLS = "id,name,speed\r\nt10p03,Rossi,%s\r\nm100,Bianchi,%s\r\n"

    def changed_sectors(self, before, after):
        return [start // 2352 for start in range(0, len(after), 2352) if before[start:start + 2352] != after[start:start + 2352]]

    def import_cells(self, speed="19", other="18"):
        self.write("a.csv", self.CELLS % (speed, other))
        self.command("import", "disc.bin", "a.csv")
        return self.read("disc.bin")

    def test_are_renewed(self):
        self.command("check", "disc.bin", "--all")
        after = self.import_cells()
        self.assertGreater(len(self.changed_sectors(self.image, after)), 1)
        self.command("check", "disc.bin", "--all")
        for sector in self.changed_sectors(self.image, after):
            start = sector * 2352
            self.assertNotEqual(self.image[start + 2072:start + 2352], after[start + 2072:start + 2352])

    def test_stay_as_they_are_where_they_did_not_fit(self):
        good = self.import_cells()
        sectors = self.changed_sectors(self.image, good)
        for wrong in (2072, 2076, 2300, 2351):
            with self.subTest(wrong):
                before = bytearray(self.image)
                before[sectors[0] * 2352 + wrong] ^= 0x40
                self.write("disc.bin", bytes(before))
                after = self.import_cells()
                for sector in sectors:
                    checks = slice(sector * 2352 + 2072, sector * 2352 + 2352)
                    expected = before if sector == sectors[0] else good
                    self.assertEqual(after[checks], expected[checks])
                    self.assertEqual(after[sector * 2352:checks.start], good[sector * 2352:checks.start])

    def test_of_a_raw_image_without_headers_are_data(self):
        plain = bytearray(self.image)
        for start in range(17 * 2352, len(plain), 2352):
            plain[start:start + 12] = bytes(12)
        self.write("disc.bin", bytes(plain))
        after = self.import_cells()
        for start in range(0, len(after), 2352):
            self.assertEqual(after[start + 2072:start + 2352], plain[start + 2072:start + 2352])

    def test_nothing_is_written_when_nothing_changes(self):
        self.command("export", "disc.bin", "-o", "a.csv")
        broken = bytearray(self.image)
        broken[len(broken) - 1] ^= 1
        broken[RECORDS // 2352 * 2352 + 2100] ^= 1
        self.write("disc.bin", bytes(broken))
        os.utime(self.path("disc.bin"), (1000, 1000))
        self.assertEqual(self.command("import", "disc.bin", "a.csv"), "")
        self.assertEqual(self.read("disc.bin"), bytes(broken))
        self.assertEqual(os.stat(self.path("disc.bin")).st_mtime, 1000)


class InUse(SheetsTest):
    def test_is_refused_for_what_writes_and_read_by_the_rest(self):
        self.write("a.csv", "id,speed\r\nt00p01,19\r\nt00p02,12\r\n")
        with open(self.path("disc.bin"), "r+b") as file:
            fcntl.flock(file, fcntl.LOCK_EX)
            lines = self.refusal(2, "import", "disc.bin", "a.csv", "--keep-undo", "u.ppf")
            self.assertRegex(lines[0], r"^kalcoctl import: disc\.bin: .*another program")
            self.assertEqual(self.entries(), ["a.csv", "disc.bin"])
            self.assertIn("speed", self.command("import", "disc.bin", "a.csv", "--dry-run"))
            self.command("find", "disc.bin")
            self.command("export", "disc.bin")
            self.command("report", "disc.bin", "-o", "page.html")


class LostOutput(SheetsTest):
    def test_is_trouble_and_a_save_that_was_committed_stands(self):
        self.write("a.csv", "id,name\r\nt10p03,Rossi\r\n")
        for arguments in (("export", "disc.bin"), ("find", "disc.bin"), ("import", "disc.bin", "a.csv")):
            with self.subTest(arguments), open("/dev/full", "wb") as full:
                result = self.run_program(*arguments, stdout=full)
                self.assertEqual(result.returncode, 2)
                self.assertIn(b"standard output", result.stderr)
        self.assertEqual(self.row("t10p03")["name"], "Rossi")


class WholeDisc(SheetsTest):
    """Every value that can be stored comes back: random bytes in all tables, through each format."""

    def setUp(self):
        super().setUp()
        chance = random.Random(5)
        image = bytearray(self.image)
        for start in range(24 * 2352, len(image), 2352):
            image[start + 24:start + 2072] = chance.randbytes(2048)
        self.image = bytes(image)
        self.write("disc.bin", self.image)

    def test_of_random_bytes_comes_back_as_it_was(self):
        for name in ("all.json", "all.fods", *(sheet + ".csv" for sheet in SHEETS)):
            with self.subTest(name):
                options = ["--sheet", name[:-4]] if name.endswith(".csv") else []
                self.command("export", "disc.bin", "-o", name, *options)
                self.assertEqual(self.command("import", "disc.bin", name, *options), "")
                self.assertEqual(self.read("disc.bin"), self.image)

    def test_of_random_bytes_becomes_another_by_their_difference(self):
        random_image = self.image
        for name in ("d.fods", "d.csv"):
            self.write("old.bin", ProgramTest._demo)
            for sheet in SHEETS:
                arguments = ["--sheet", sheet]
                text = self.command("diff", "old.bin", "disc.bin", "--format", name[2:], *arguments, status=1)
                self.write(name, text)
                self.command("import", "old.bin", name, *arguments)
            self.assertEqual(self.command("diff", "old.bin", "disc.bin"), "")
        self.assertEqual(self.read("disc.bin"), random_image)


class Diff(SheetsTest):
    def setUp(self):
        super().setUp()
        self.write("new.bin", self.image)
        self.write("a.json", '{"sheet":"players","id":"t00p02","name":"NEW"}\n'
                             '{"sheet":"bars","id":"t03","defense":"#77"}\n'
                             '{"sheet":"teams","id":"t00","t1":"\\"\\""}\n')
        self.lines = self.command("import", "new.bin", "a.json")

    def test_is_nothing_between_equals(self):
        for arguments in ((), ("--format", "json"), ("--bytes",), ("--sheet", "teams")):
            self.assertEqual(self.command("diff", "disc.bin", "disc.bin", *arguments), "")
        self.assertTrue(self.command("diff", "disc.bin", "disc.bin", "--format", "csv").startswith("id,name,role,"))

    def test_tells_what_an_import_did(self):
        self.assertEqual(len(self.lines.splitlines()), 3)
        self.assertEqual(self.command("diff", "disc.bin", "new.bin", status=1), self.lines)
        self.assertEqual(self.command("diff", "disc.bin", "new.bin", "--bytes", status=1), self.lines)
        self.assertEqual(self.command("diff", "disc.bin", "new.bin", "--sheet", "bars", status=1),
                         self.lines.splitlines()[2] + "\n")
        self.assertEqual(self.command("diff", "disc.bin", "new.bin", "--sheet", "links"), "")
        changes = [json.loads(line) for line in
                   self.command("diff", "disc.bin", "new.bin", "--format", "json", status=1).splitlines()]
        self.assertEqual([(each["sheet"], each["id"], each["field"], each["new"]) for each in changes],
                         [("players", "t00p02", "name", "NEW"), ("teams", "t00", "t1", ""),
                          ("bars", "t03", "defense", "#77")])

    def test_is_a_table_that_an_import_takes(self):
        for sheet in ("players", "teams", "bars"):
            text = self.command("diff", "disc.bin", "new.bin", "--sheet", sheet, "--format", "csv", status=1)
            self.assertEqual(len(text.splitlines()), 2)
            self.write(sheet + ".csv", text)
            self.command("import", "disc.bin", sheet + ".csv", "--sheet", sheet)
        self.assertEqual(self.command("diff", "disc.bin", "new.bin", "--bytes"), "")

    def test_of_one_sheet_has_its_own_status(self):
        self.assertEqual(self.command("diff", "disc.bin", "new.bin", "--format", "csv", "--sheet", "links").count("\n"), 1)

    def test_tells_other_bytes(self):
        other = bytearray(self.image)
        for place in (2352 * 20 + 100, 2352 * 20 + 101, 2352 * 20 + 2080, 404716 + 15, RECORDS - 1):
            other[place] ^= 0x08
        self.write("other.bin", bytes(other))
        self.assertEqual(self.command("diff", "disc.bin", "other.bin"), "")
        self.assertEqual(self.command("diff", "disc.bin", "other.bin", "--bytes", status=1),
                         f"position {2352 * 20 + 101}: 2 bytes\nposition {404717 + 15}: 1 bytes\n"
                         f"position {RECORDS}: 1 bytes\n")
        self.write("longer.bin", self.image + b"\x01" * 2352)
        self.assertEqual(self.command("diff", "disc.bin", "longer.bin", "--bytes", status=1),
                         f"position {len(self.image) + 1}: 2352 bytes\n")
        self.assertTrue(self.refusal(2, "diff", "disc.bin", "other.bin", "--bytes", "--format", "csv"))


class Find(SheetsTest):
    def test_is_status_1_when_nobody_fits(self):
        self.assertEqual(self.command("find", "disc.bin", "nobody at all", status=1), "")
        self.assertEqual(self.command("find", "disc.bin", "--where", "speed = 12 and speed = 13", status=1), "")

    def test_gives_rows_as_export_does(self):
        where = "role = Terzino and speed >= 16 and age < 24"
        expected = [row for row in self.rows()
                    if row["role"] == "Terzino" and int(row["speed"]) >= 16 and int(row["age"]) < 24]
        text = self.command("find", "disc.bin", "--where", where, "--format", "csv")
        self.assertEqual(list(csv.DictReader(io.StringIO(text, newline=""))), expected)
        lines = self.command("find", "disc.bin", "--where", where, "--format", "json").splitlines()
        self.assertEqual([json.loads(line) for line in lines], [{"sheet": "players", **row} for row in expected])
        lines = self.command("find", "disc.bin", "--where", where, "--sort", "age").splitlines()
        expected.sort(key=lambda row: int(row["age"]))
        self.assertEqual([line.split(" ")[0] for line in lines], [row["id"] for row in expected])

    def test_folds_case_and_accents(self):
        self.write("a.csv", "id,name\r\nm007,\u00c8z\u00e9qui\u00ebl\r\n")
        self.command("import", "disc.bin", "a.csv")
        self.assertTrue(self.command("find", "disc.bin", "EZEQUIEL").startswith("m007 \u00c8z\u00e9qui\u00ebl"))

    def test_refuses_wrong_usage(self):
        for arguments in (("--where", "colour = 1"), ("--where", "role < x"), ("--where", "speed ="), ("--sort", "colour"),
                          ("--format", "fods"), ("a", "b")):
            with self.subTest(arguments):
                self.assertTrue(self.refusal(2, "find", "disc.bin", *arguments))


class WriteProtected(SheetsTest):
    def test_images_are_read(self):
        os.chmod(self.path("disc.bin"), 0o400)
        self.write("a.csv", "id,speed\r\nt00p01,\r\n")
        self.command("export", "disc.bin", "-o", "b.csv")
        self.command("diff", "disc.bin", "disc.bin", "--bytes")
        self.command("find", "disc.bin")
        self.command("import", "disc.bin", "a.csv", "--dry-run")
