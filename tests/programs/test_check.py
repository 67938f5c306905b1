"""check and repair on whole files."""
import fcntl
import json
import os
import pty
import random
import resource
import signal
import subprocess
import time

from support import ProgramTest, kalcoctl

SECTOR = 2352
SYNC = b"\0" + 10 * b"\xff" + b"\0"


def summary(sectors, bad, mode1=0, form1=None, form2=0, other=0):
    form1 = sectors - mode1 - form2 - other if form1 is None else form1
    return (f"{sectors} sectors ({mode1} Mode 1, {form1} Mode 2 Form 1, {form2} Form 2, {other} others), "
            f"{bad} bad\n")


class CheckTest(ProgramTest):
    def change(self, disc, position, data):
        """The disc with the bytes at a position, which counts from 1, also in disc.bin."""
        disc = disc[:position - 1] + data + disc[position - 1 + len(data):]
        self.write("disc.bin", disc)
        return disc

    def expect(self, status, out, *arguments, err=""):
        done = self.run_program(*arguments)
        self.assertEqual(done.stdout.decode(), out)
        self.assertEqual(done.stderr.decode(), err)
        self.assertEqual(done.returncode, status)

    def refuse(self, part, *arguments, status=2):
        done = self.run_program(*arguments)
        self.assertEqual(done.stdout, b"")
        self.assertEqual(done.returncode, status)
        error = done.stderr.decode()
        self.assertEqual(error.count("\n"), 1, error)
        self.assertTrue(error.startswith(f"kalcoctl {arguments[0]}: "), error)
        self.assertIn(part, error)


class Check(CheckTest):
    def test_a_demo_image_fits(self):
        self.disc()
        self.expect(0, summary(42, 0), "check", "disc.bin")
        self.expect(0, summary(2416, 0), "check", "--all", "disc.bin")

    def test_a_bad_sector_is_named(self):
        # 2200000 lies in sector 935, which holds records; 100 in the system area; 3000000 in no table.
        disc = self.change(self.disc(), 2200000, b"????")
        self.change(disc, 3000000, b"????")
        table = "sector 935 (00:14:35) at 2199121: EDC, P, Q\n"
        self.expect(1, table + summary(42, 1), "check", "disc.bin")
        other = "sector 1275 (00:19:00) at 2998801: EDC, P, Q\n"
        self.expect(1, table + other + summary(2416, 2), "check", "--all", "disc.bin")
        self.expect(1, '{"sector":935,"position":2199121,"bad":["edc","p","q"]}\n'
                       '{"sectors":42,"bad":1,"mode1":0,"form1":42,"form2":0,"other":0}\n',
                    "check", "--json", "disc.bin")

    def test_each_field_alone(self):
        disc = self.disc()
        start = 935 * SECTOR
        for offset, name in ((2072, "EDC"), (2076, "P"), (2247, "P"), (2248, "Q"), (2351, "Q")):
            place = start + offset
            self.change(disc, place + 1, bytes([disc[place] ^ 0x40]))
            self.expect(1, f"sector 935 (00:14:35) at 2199121: {name}\n" + summary(42, 1), "check", "disc.bin")

    def test_the_system_area(self):
        disc = self.disc()
        self.change(disc, 3 * SECTOR + 2072 + 1, bytes(4))
        self.expect(0, summary(2416, 0), "check", "--all", "disc.bin")
        self.change(disc, 3 * SECTOR + 2072 + 1, b"\1\0\0\0")
        bad = "sector 3 (00:02:03) at 7057: EDC\n"
        self.expect(1, bad + summary(2416, 1), "check", "--all", "disc.bin")
        # repair leaves it alone.
        before = self.read("disc.bin")
        self.expect(0, summary(2416, 0), "repair", "--all", "disc.bin")
        self.assertEqual(self.read("disc.bin"), before)

    def test_audio_in_the_middle_and_form_2(self):
        disc = bytearray(self.disc())
        audio = random.Random(1).randbytes(100 * SECTOR)
        disc[100 * SECTOR:200 * SECTOR] = audio
        form2 = SYNC + bytes.fromhex("00055002") + 2 * bytes.fromhex("00002800") + random.Random(2).randbytes(2324)
        disc[300 * SECTOR:301 * SECTOR] = form2 + bytes(4)
        disc[301 * SECTOR:302 * SECTOR] = form2 + b"\1\2\3\4"
        self.write("disc.bin", bytes(disc))
        bad = f"sector 301 (00:06:01) at {301 * SECTOR + 1}: EDC\n"
        self.expect(1, bad + summary(2416, 1, form2=2, other=100), "check", "--all", "disc.bin")
        self.expect(0, bad + summary(2416, 1, form2=2, other=100), "repair", "--all", "disc.bin")
        repaired = self.read("disc.bin")
        self.assertEqual(repaired[:302 * SECTOR - 4] + repaired[302 * SECTOR:],
                         bytes(disc[:302 * SECTOR - 4] + disc[302 * SECTOR:]))
        self.expect(0, summary(2416, 0, form2=2, other=100), "check", "--all", "disc.bin")

    def test_what_is_no_raw_image(self):
        disc = self.disc()
        for command in ("check", "repair"):
            self.write("odd.bin", disc[:-1])
            for flags in ((), ("--all",)):
                self.refuse("no multiple of 2352", command, "odd.bin", *flags)
            self.write("short.bin", disc[:2403 * SECTOR])
            self.refuse("too short", command, "short.bin")
            self.expect(0, summary(2403, 0), command, "--all", "short.bin")
            self.write("enough.bin", disc[:2404 * SECTOR])
            self.expect(0, summary(42, 0), command, "enough.bin")
            self.write("packed.bin", b"PK\3\4" + disc[4:0x9319 - 1] + bytes(8) + disc[0x9319 + 7:])
            self.refuse("zip", command, "packed.bin")
            self.refuse("No such file", command, "none.bin")
            self.refuse("", command, self.home)
        self.assertEqual(self.entries(), ["disc.bin", "enough.bin", "odd.bin", "packed.bin", "short.bin"])

    def test_without_a_volume_descriptor(self):
        disc = self.disc()
        self.write("disc.bin", disc[:16 * SECTOR] + 2 * disc[:SECTOR] + disc[18 * SECTOR:])
        done = self.run_program("check", "disc.bin")
        self.assertEqual(done.returncode, 0)
        self.assertEqual(done.stdout.decode(), summary(42, 0))
        self.assertIn("no volume descriptor", done.stderr.decode())

    def test_an_empty_file_has_no_sectors(self):
        self.write("empty.bin", b"")
        done = self.run_program("check", "--all", "empty.bin")
        self.assertEqual((done.returncode, done.stdout.decode()), (0, summary(0, 0)))
        self.refuse("too short", "check", "empty.bin")

    def test_an_image_in_use_is_read_all_the_same(self):
        self.disc()
        with open(self.path("disc.bin"), "r+b") as file:
            fcntl.flock(file, fcntl.LOCK_EX)
            self.expect(0, summary(42, 0), "check", "disc.bin")
            self.expect(0, summary(42, 0), "repair", "--dry-run", "disc.bin")
            self.refuse("another program", "repair", "disc.bin")

    def test_five_gigabytes(self):
        disc = self.disc()
        sectors = 5_000_000_000 // SECTOR + 1
        with open(self.path("disc.bin"), "r+b") as file:
            file.truncate(sectors * SECTOR)
            file.seek((sectors - 1) * SECTOR)
            file.write(disc[935 * SECTOR:936 * SECTOR - 1] + bytes([disc[936 * SECTOR - 1] ^ 1]))
        try:
            file_end = (sectors - 1) * SECTOR + 1
            self.expect(0, summary(42, 0), "check", "disc.bin")
            bad = f"sector 2125850 (472:26:50) at {file_end}: Q\n"
            counts = summary(sectors, 1, other=sectors - 2417)
            self.expect(1, bad + counts, "check", "--all", "disc.bin")
            self.expect(0, bad + counts, "repair", "--all", "disc.bin")
            with open(self.path("disc.bin"), "rb") as file:
                file.seek((sectors - 1) * SECTOR)
                self.assertEqual(file.read(), disc[935 * SECTOR:936 * SECTOR])
            self.assertLess(os.stat(self.path("disc.bin")).st_blocks * 512, 20_000_000)
        finally:
            os.remove(self.path("disc.bin"))

    def test_lost_output(self):
        self.disc()
        with open("/dev/full", "wb") as full:
            done = self.run_program("check", "disc.bin", stdout=full)
        self.assertEqual(done.returncode, 2)


class Repair(CheckTest):
    def edit(self, disc, seed):
        """Random edits by the editor itself."""
        chance = random.Random(seed)
        lines = ['choose "disc.bin"', "start"]
        for _ in range(6):
            lines += [f"pick cboSeqSQ {chance.randrange(63)}", f"pick listDat {chance.randrange(23)}",
                      f'type txtName "N{chance.randrange(1000)}"', f"pick cboVel {chance.randrange(8)}",
                      f"pick cboAttacco {chance.randrange(8)}", "click cmdSaveCar"]
        lines += ["tab 4", f"pick cboSeqSQ2 {chance.randrange(86)}", f"pick cboMod {chance.randrange(16)}",
                  "click cmdModifica"]
        done = self.play(*lines)
        self.assertEqual(done.returncode, 0, done.stderr)
        edited = self.read("disc.bin")
        self.assertNotEqual(edited, disc)
        return edited

    def sectors(self, disc):
        return [disc[at:at + SECTOR] for at in range(0, len(disc), SECTOR)]

    def test_after_random_edits_all_fits_and_nothing_else_changes(self):
        for seed in range(3):
            disc = self.disc()
            edited = self.edit(disc, seed)
            changed = {k for k, (a, b) in enumerate(zip(self.sectors(disc), self.sectors(edited))) if a != b}
            done = self.run_program("check", "--json", "disc.bin")
            self.assertEqual(done.returncode, 1)
            lines = [json.loads(line) for line in done.stdout.splitlines()]
            self.assertEqual({line["sector"] for line in lines[:-1]}, changed)

            tried = self.run_program("repair", "--dry-run", "--json", "disc.bin")
            self.assertEqual((tried.returncode, tried.stdout), (0, done.stdout))
            self.assertEqual(self.read("disc.bin"), edited)
            repaired = self.run_program("repair", "--json", "disc.bin")
            self.assertEqual((repaired.returncode, repaired.stdout), (0, done.stdout))

            for a, b in zip(self.sectors(edited), self.sectors(self.read("disc.bin"))):
                self.assertEqual(a[:2072], b[:2072])
            self.expect(0, summary(2416, 0), "check", "--all", "disc.bin")

    def test_with_nothing_to_do_nothing_is_written(self):
        self.change(self.disc(), 2200000, b"????")
        self.run_program("repair", "disc.bin")
        os.utime(self.path("disc.bin"), ns=(10**18, 10**18))
        before = os.stat(self.path("disc.bin"))
        for flags in ((), ("--all",), ("--dry-run",)):
            self.expect(0, summary(2416 if flags == ("--all",) else 42, 0), "repair", "disc.bin", *flags)
        after = os.stat(self.path("disc.bin"))
        self.assertEqual((after.st_mtime_ns, after.st_ino, after.st_size),
                         (before.st_mtime_ns, before.st_ino, before.st_size))
        self.assertEqual(self.entries(), ["disc.bin"])

    def test_only_the_chosen_sectors(self):
        disc = self.change(self.disc(), 2200000, b"????")
        disc = self.change(disc, 3000000, b"????")
        self.run_program("repair", "disc.bin")
        changed = [k for k, (a, b) in enumerate(zip(self.sectors(disc), self.sectors(self.read("disc.bin")))) if a != b]
        self.assertEqual(changed, [935])
        self.run_program("repair", "--all", "disc.bin")
        changed = [k for k, (a, b) in enumerate(zip(self.sectors(disc), self.sectors(self.read("disc.bin")))) if a != b]
        self.assertEqual(changed, [935, 1275])

    def test_a_header_is_never_rewritten(self):
        disc = self.change(self.disc(), 935 * SECTOR + 12 + 1, b"\xff\xff\xff")
        self.expect(0, summary(42, 0), "repair", "disc.bin")
        self.assertEqual(self.read("disc.bin"), disc)
        self.change(disc, 2200000, b"????")
        self.run_program("repair", "disc.bin")
        self.assertEqual(self.read("disc.bin")[935 * SECTOR:935 * SECTOR + 16], disc[935 * SECTOR:935 * SECTOR + 16])

    def test_a_committed_repair_stands_when_its_output_is_lost(self):
        self.change(self.disc(), 2200000, b"????")
        with open("/dev/full", "wb") as full:
            self.assertEqual(self.run_program("repair", "disc.bin", stdout=full).returncode, 2)
        self.expect(0, summary(42, 0), "check", "disc.bin")

    def test_no_room_for_the_journal(self):
        disc = self.change(self.disc(), 2200000, b"????")
        done = self.run_program("repair", "disc.bin", preexec_fn=limit_files)
        self.assertEqual(done.returncode, 2)
        self.assertEqual(done.stdout, b"")
        self.assertEqual(self.read("disc.bin"), disc)
        self.assertEqual(self.entries(), ["disc.bin"])


def limit_files():
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (3000, 3000))


class SlowWork(CheckTest):
    """A check that takes more than a second: it is stopped for so long as soon as it has begun."""

    def run_slowly(self, side, main):
        """Yields the running check, whose errors go to `side`, and what has arrived of them at `main` so far."""
        with open(self.path("big.bin"), "wb") as file:
            file.truncate(1_000_000 * SECTOR)
        try:
            with subprocess.Popen([kalcoctl(), "check", "--all", "big.bin"], cwd=self.home,
                                  stdout=subprocess.DEVNULL, stderr=side) as running:
                os.close(side)
                shown = b""
                while b"\n" not in shown:  # what it tells first
                    shown += os.read(main, 4096)
                time.sleep(0.02)
                running.send_signal(signal.SIGSTOP)
                time.sleep(1.2)
                running.send_signal(signal.SIGCONT)
                yield running, shown
        finally:
            os.close(main)
            os.remove(self.path("big.bin"))

    @staticmethod
    def rest(main):
        """What arrives until the other side is closed."""
        shown = b""
        try:
            while part := os.read(main, 4096):
                shown += part
        except OSError:  # how a terminal ends
            pass
        return shown

    def test_progress_goes_to_a_terminal_and_away(self):
        main, side = pty.openpty()
        for running, shown in self.run_slowly(side, main):
            shown += self.rest(main)
        self.assertEqual(running.returncode, 0)
        self.assertRegex(shown, rb"\rkalcoctl check: \d+ %")
        self.assertTrue(shown.endswith(b"\r\x1b[K"), shown[-40:])

    def test_without_a_terminal_nothing_tells_of_it(self):
        main, side = os.pipe()
        for running, shown in self.run_slowly(side, main):
            error = (shown + self.rest(main)).decode()
        self.assertEqual(running.returncode, 0)
        self.assertEqual(error.count("\n"), 1)
        self.assertIn("no volume descriptor", error)
        self.assertNotIn("%", error)
