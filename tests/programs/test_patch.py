"""patch: against a reader and writers made from the table of the format alone."""
import fcntl
import json
import os
import random
import sys

from support import ProgramTest

sys.path.insert(0, os.path.join(os.path.dirname(__file__), ".."))
import ppf_reference as ppf  # noqa: E402

ROW = "id,{}\r\nt10p03,{}\r\n"


class PatchTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.original = self.disc()

    def expect(self, status, *arguments):
        result = self.run_program(*arguments)
        self.assertEqual(result.returncode, status, result.stderr.decode())
        return result.stdout.decode()

    def refuse(self, status, *arguments):
        """What a command that changes no file tells."""
        before = {name: self.read(name) for name in self.entries()}
        result = self.run_program(*arguments)
        self.assertEqual(result.returncode, status, result.stderr.decode())
        self.assertEqual({name: self.read(name) for name in self.entries()}, before)
        return result.stderr.decode()

    def edited(self, *cells, name="edited.bin", source=None):
        """An image in which the cells, (column, value), of one player are others."""
        self.write(name, self.original if source is None else source)
        for column, value in cells:
            self.write("cells.csv", ROW.format(column, value))
            self.expect(0, "import", name, "cells.csv")
        return self.read(name)

    def random_edit(self, seed):
        """Bytes that differ anywhere, in the user data and elsewhere, over sector ends."""
        rng = random.Random(seed)
        image = bytearray(self.original)
        for _ in range(30):
            size = rng.randint(1, 700)
            start = rng.randrange(len(image) - size)
            image[start:start + size] = rng.randbytes(size)
        return bytes(image)


class Make(PatchTest):
    def test_the_reference_reads_what_is_written(self):
        for seed in range(4):
            image = self.random_edit(seed)
            self.write("edited.bin", image)
            self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", "p.ppf", "--description", "Autunno")
            patch = self.read("p.ppf")
            parts = ppf.read(patch)
            self.assertEqual((parts["version"], parts["description"], parts["type"]), (3, b"Autunno", 0))
            self.assertEqual(parts["block"], self.original[0x9320:0x9320 + 1024])
            self.assertEqual(ppf.apply(self.original, patch), image)
            self.assertEqual(ppf.undo(image, patch), self.original)
            for offset, new, old in parts["records"]:
                self.assertEqual(offset // 2352, (offset + len(new) - 1) // 2352)
                self.assertTrue(all(a != b for a, b in zip(new, old)))

    def test_equal_images_give_no_file(self):
        self.write("edited.bin", self.original)
        self.assertIn("the same", self.refuse(1, "patch", "make", "disc.bin", "edited.bin", "-o", "p.ppf"))
        self.assertNotIn("p.ppf", self.entries())

    def test_two_lengths_are_refused(self):
        self.write("edited.bin", self.original[:-2352])
        self.assertIn("length", self.refuse(2, "patch", "make", "disc.bin", "edited.bin", "-o", "p.ppf"))

    def test_an_images_own_name_is_refused(self):
        self.edited(("speed", 19))
        for name in ("disc.ppf", "./edited.PPF", self.path("edited.ppf")):
            self.assertIn("emulators", self.refuse(2, "patch", "make", "disc.bin", "edited.bin", "-o", name))
            self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", name, "--force")
        self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", "other.ppf")

    def test_never_writes_over_an_image(self):
        self.edited(("speed", 19))
        for image in ("disc.bin", "edited.bin"):
            self.refuse(2, "patch", "make", "disc.bin", "edited.bin", "-o", image)

    def test_something_else_is_no_image(self):
        self.write("packed.bin", b"PK\3\4" + bytes(100))
        self.assertIn("unzip", self.refuse(2, "patch", "make", "packed.bin", "disc.bin", "-o", "p.ppf"))


class Apply(PatchTest):
    def make(self, image, name="p.ppf"):
        self.write("edited.bin", image)
        self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", name, "--force")

    def test_there_and_back(self):
        image = self.edited(("speed", 19), ("name", "Rossi"))
        self.make(image)
        lines = ["t10p03 name: ", "t10p03 speed: "]
        for dry in (["--dry-run"], []):
            out = self.expect(0, "patch", "apply", "disc.bin", "p.ppf", *dry).splitlines()
            self.assertEqual([line[:len(start)] for line, start in zip(out, lines)], lines)
            self.assertEqual(len(out), 2)
            self.assertEqual(self.read("disc.bin"), self.original if dry else image)
        self.assertIn("already", self.expect(0, "patch", "apply", "disc.bin", "p.ppf"))
        self.assertEqual(self.read("disc.bin"), image)
        self.expect(0, "check", "--all", "disc.bin")
        self.expect(0, "patch", "undo", "disc.bin", "p.ppf")
        self.assertEqual(self.read("disc.bin"), self.original)
        self.assertIn("not applied", self.expect(0, "patch", "undo", "disc.bin", "p.ppf"))

    def test_two_patches_in_one_sector_in_either_order(self):
        one = self.edited(("speed", 19), name="one.bin")
        two = self.edited(("height", 199), name="two.bin")
        both = self.edited(("height", 199), name="both.bin", source=one)
        for name, image in (("1.ppf", one), ("2.ppf", two)):
            self.write("edited.bin", image)
            self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", name)
        for there in (("1.ppf", "2.ppf"), ("2.ppf", "1.ppf")):
            for back in (("1.ppf", "2.ppf"), ("2.ppf", "1.ppf")):
                for patch in there:
                    self.expect(0, "patch", "apply", "disc.bin", patch)
                    self.expect(0, "check", "--all", "disc.bin")
                self.assertEqual(self.read("disc.bin"), both)
                for patch in back:
                    self.expect(0, "patch", "undo", "disc.bin", patch)
                    self.expect(0, "check", "--all", "disc.bin")
                self.assertEqual(self.read("disc.bin"), self.original)

    def test_a_conflict_is_told_by_meaning_and_refuses_all(self):
        old = self.edited(("positivity", 13), name="disc.bin")
        image = self.edited(("positivity", 17), ("name", "Rossi"), source=old)
        self.original = old
        self.make(image)
        self.edited(("positivity", 15), name="disc.bin")
        for command in ("apply", "undo"):
            told = self.refuse(1, "patch", command, "disc.bin", "p.ppf")
            expected = 13 if command == "apply" else 17
            self.assertIn(f"p.ppf: t10p03 positivity: the patch expects {expected}, the image has 15\n", told)

    def test_a_conflict_outside_all_fields(self):
        image = bytearray(self.original)
        image[2352 * 2410 + 100] ^= 0xFF
        self.make(bytes(image))
        image[2352 * 2410 + 100] ^= 0x0F
        self.write("disc.bin", bytes(image))
        told = self.refuse(1, "patch", "apply", "disc.bin", "p.ppf")
        self.assertIn(f"position {2352 * 2410 + 101}: the patch expects 1 other bytes", told)

    def test_an_image_that_it_was_not_made_for(self):
        self.make(self.edited(("speed", 19)))
        other = bytearray(self.original)
        other[0x9320 + 500] ^= 1
        self.write("disc.bin", bytes(other))
        self.assertIn("another image", self.refuse(2, "patch", "apply", "disc.bin", "p.ppf"))
        self.expect(0, "patch", "apply", "disc.bin", "p.ppf", "--force")
        self.assertIn("another image", self.refuse(2, "patch", "undo", "disc.bin", "p.ppf"))
        self.expect(0, "patch", "undo", "disc.bin", "p.ppf", "--force")
        self.assertEqual(self.read("disc.bin"), bytes(other))

    def test_patches_of_others(self):
        image = self.random_edit(5)
        records = ppf.runs(self.original, image)
        forms = [dict(version=1), dict(version=2), dict(version=2, trailer=(b"text", 4))]
        for check in (False, True):
            for undo in (False, True):
                for image_type in (0, 1):
                    forms.append(dict(version=3, check=check, undo=undo, image_type=image_type))
        forms += [dict(version=3, trailer=(b"text", size)) for size in (2, 4)]
        for form in forms:
            self.write("disc.bin", self.original)
            self.write("p.ppf", ppf.write(records, self.original, **form))
            self.expect(0, "patch", "apply", "disc.bin", "p.ppf")
            got, where = self.read("disc.bin"), range(0, len(image), 2352)
            for start in where:  # EDC and parities of sectors that fitted are renewed
                self.assertEqual(got[start:start + 2072], image[start:start + 2072], form)
            if form["version"] == 3 and form.get("undo", True):
                self.expect(0, "patch", "undo", "disc.bin", "p.ppf")
                got = self.read("disc.bin")
                for start in where:
                    self.assertEqual(got[start:start + 2072], self.original[start:start + 2072], form)
            else:
                self.assertIn("old bytes", self.refuse(2, "patch", "undo", "disc.bin", "p.ppf", "--force"))

    def test_cut_off_anywhere_but_behind_a_record(self):
        self.make(self.edited(("speed", 19)))
        patch = self.read("p.ppf")
        ends, at = set(), 1084
        for _, new, _ in ppf.read(patch)["records"]:
            at += 9 + 2 * len(new)
            ends.add(at)
        sizes = set(range(0, len(patch), 37)) | {at - 1, 5, 6, 56, 60, 1083, 1084}
        for size in sorted(sizes - ends):
            self.write("p.ppf", patch[:size])
            self.refuse(2, "patch", "apply", "disc.bin", "p.ppf")
            self.refuse(2, "patch", "show", "p.ppf")

    def test_beyond_the_end(self):
        self.write("p.ppf", ppf.write([(len(self.original), b"x", b"y")], self.original))
        self.assertIn("beyond", self.refuse(2, "patch", "apply", "disc.bin", "p.ppf"))


    def test_a_text_at_the_end_whatever_its_length_takes(self):
        records = ppf.runs(self.original, self.edited(("speed", 19)))
        for size in (2, 4):
            self.write("p.ppf", ppf.write(records, self.original, description=b"x", trailer=(b" by hand ", size)))
            self.assertIn("by hand", self.expect(0, "patch", "show", "p.ppf"))
            self.assertIn("speed", self.expect(0, "patch", "apply", "disc.bin", "p.ppf", "--dry-run"))

    def test_an_image_in_use_is_refused(self):
        self.make(self.edited(("speed", 19)))
        with open(self.path("disc.bin"), "r+b") as file:
            fcntl.flock(file, fcntl.LOCK_EX)
            for command in (("apply",), ("undo",)):
                told = self.refuse(2, "patch", *command, "disc.bin", "p.ppf")
                self.assertTrue(told.startswith(f"kalcoctl patch {command[0]}: disc.bin: "), told)
            self.assertIn("speed", self.expect(0, "patch", "show", "p.ppf", "disc.bin"))
            self.assertIn("speed", self.expect(0, "patch", "apply", "disc.bin", "p.ppf", "--dry-run"))

    def test_changes_as_json(self):
        self.make(self.edited(("speed", 19)))
        for command in (("patch", "show", "p.ppf", "disc.bin"), ("patch", "apply", "disc.bin", "p.ppf", "--dry-run"),
                        ("patch", "apply", "disc.bin", "p.ppf")):
            lines = self.expect(0, *command, "--json").splitlines()
            self.assertEqual(len(lines), 1)
            change = json.loads(lines[0])
            self.assertEqual((change["sheet"], change["id"], change["field"], change["new"]), ("players", "t10p03", "speed", "19"))
        self.assertEqual(self.expect(0, "patch", "apply", "disc.bin", "p.ppf", "--json"), "")


class Show(PatchTest):
    def test_alone(self):
        self.write("p.ppf", ppf.write([(337000, b"abc", b"xyz")], self.original, description=b"Autunno"))
        out = self.expect(0, "patch", "show", "p.ppf").splitlines()
        self.assertEqual(out, ["kind: PPF 3.0, BIN", "description: Autunno", "block check: yes", "undo: yes", "records: 1",
                               "bytes: 3", "positions: 337001 to 337003"])

    def test_a_description_with_accents(self):
        self.edited(("speed", 19))
        self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", "p.ppf", "--description", "Citt\u00e0 d'oggi")
        self.assertIn("description: Citt\u00e0 d'oggi\n", self.expect(0, "patch", "show", "p.ppf"))
        self.assertEqual(json.loads(self.expect(0, "patch", "show", "p.ppf", "--json"))["description"], "Citt\u00e0 d'oggi")
        self.write("p.ppf", ppf.write([(337000, b"abc", b"xyz")], self.original, description="Citt\u00e0\tnuova".encode("latin-1")))
        self.assertIn("description: Citt\u00e0 nuova\n", self.expect(0, "patch", "show", "p.ppf"))

    def test_conflicts_for_an_image(self):
        self.edited(("speed", 19))
        self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", "p.ppf")
        self.edited(("speed", 12), name="disc.bin")
        told = self.refuse(1, "patch", "show", "p.ppf", "disc.bin")
        self.assertIn("t10p03 speed: the patch expects ", told)

    def test_for_an_image(self):
        image = bytearray(self.edited(("speed", 19)))
        image[2352 * 2410 + 100:2352 * 2410 + 103] = bytes(b ^ 0xFF for b in image[2352 * 2410 + 100:2352 * 2410 + 103])
        self.write("edited.bin", bytes(image))
        self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", "p.ppf")
        before = self.read("disc.bin")
        out = self.expect(0, "patch", "show", "p.ppf", "disc.bin").splitlines()
        self.assertEqual(len(out), 2)
        self.assertRegex(out[0], r"^t10p03 speed: \d+ -> 19$")
        self.assertEqual(out[1], f"position {2352 * 2410 + 101}: 3 bytes")
        self.assertIn('"field":"speed"', self.expect(0, "patch", "show", "p.ppf", "disc.bin", "--json"))
        self.assertEqual(self.read("disc.bin"), before)


class KeepUndo(PatchTest):
    def test_an_import_is_taken_back(self):
        self.write("cells.csv", ROW.format("name,speed", "Rossi,19"))
        self.expect(0, "import", "disc.bin", "cells.csv", "--keep-undo", "u.ppf", "--dry-run")
        self.assertNotIn("u.ppf", self.entries())
        self.expect(0, "import", "disc.bin", "cells.csv", "--keep-undo", "u.ppf")
        self.assertNotEqual(self.read("disc.bin"), self.original)
        self.assertIn("exists", self.refuse(2, "import", "disc.bin", "cells.csv", "--keep-undo", "u.ppf"))
        self.expect(0, "patch", "undo", "disc.bin", "u.ppf")
        self.assertEqual(self.read("disc.bin"), self.original)

    def test_an_applied_patch_is_taken_back(self):
        self.edited(("speed", 19))
        self.expect(0, "patch", "make", "disc.bin", "edited.bin", "-o", "p.ppf")
        self.assertIn("emulators", self.refuse(2, "patch", "apply", "disc.bin", "p.ppf", "--keep-undo", "disc.ppf"))
        self.expect(0, "patch", "apply", "disc.bin", "p.ppf", "--keep-undo", "u.ppf")
        self.expect(0, "patch", "undo", "disc.bin", "u.ppf")
        self.assertEqual(self.read("disc.bin"), self.original)

    def test_nothing_is_kept_of_nothing(self):
        self.write("cells.csv", "id\r\nt10p03\r\n")
        self.expect(0, "import", "disc.bin", "cells.csv", "--keep-undo", "u.ppf")
        self.assertNotIn("u.ppf", self.entries())
