"""Saves that are killed, and programs that race for one image. KALCO_KILLS and KALCO_RACES tell how often (60, 20)."""
import os
import random
import signal
import subprocess
import time

from support import SECONDS, ProgramTest, events, kalcoctl

KILLS = int(os.environ.get("KALCO_KILLS", "60"))
RACES = int(os.environ.get("KALCO_RACES", "20"))
SAVES = 24
OPENING = ('choose "disc.bin"', "start")


def player_save(team, player, name):
    return (f"pick cboSeqSQ {team}", f"pick listDat {player}", f'type txtName "{name}"', "click cmdSaveCar")


def team_save(team, name):
    return (f"pick cboSeqSQ {team}", f'type txtSqDec "{name}"', f'type txtSqHEX "{name}"', "click cmdName")


def save(number):
    """One save of several; each changes something whatever came before it."""
    name = "Abcdefgh"[number % 7:] + "xyz"[number % 3]
    if number % 2 == 0:
        return player_save(number % 5, number % 23, name)
    return team_save(number % 5, name[:4])


class Killed(ProgramTest):
    def start(self, actions):
        self.write("story.kalco", "".join(action + "\n" for action in actions))
        return subprocess.Popen([kalcoctl(), "script", "--home", self.home, "story.kalco"], cwd=self.home,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def states(self):
        """The image before the first save, and after each."""
        states = [self.read("disc.bin")]
        for number in range(SAVES):
            self.assertEqual(self.play(*OPENING, *save(number)).returncode, 0)
            states.append(self.read("disc.bin"))
        return states

    def test_leaves_the_image_between_two_saves(self):
        before = self.disc()
        states = self.states()
        numbers = {state: number for number, state in enumerate(states)}
        story = [action for number in range(SAVES) for action in save(number)]
        began = time.monotonic()
        self.write("disc.bin", before)
        self.start((*OPENING, *story)).communicate(timeout=SECONDS)
        whole = min(time.monotonic() - began, 2)  # a disk can stall
        self.assertTrue(self.read("disc.bin") == states[-1])

        chance = random.Random(11)
        seen, taken_back = set(), 0
        for _ in range(KILLS):
            self.write("disc.bin", before)
            program = self.start((*OPENING, *story))
            time.sleep(chance.uniform(0, whole))
            program.kill()
            program.communicate(timeout=SECONDS)
            journal = os.path.exists(self.path("disc.bin.kalco-journal"))
            half = self.read("disc.bin") not in numbers
            told = [event for event in events(self.play(*OPENING)) if event["event"] == "message"]
            self.assertIn(self.read("disc.bin"), numbers)
            self.assertFalse(os.path.exists(self.path("disc.bin.kalco-journal")))
            self.assertTrue(journal or not half)
            self.assertTrue(journal or not told)
            seen.add(numbers[self.read("disc.bin")])
            taken_back += len(told)
        print(f"{KILLS} kills: {len(seen)} different images, {taken_back} saves taken back")
        self.assertGreater(len(seen), 1)


class Racing(ProgramTest):
    """Two programs save into one image as fast as they get hold of it, each into a roster of its own."""

    def start(self, team, names):
        name = f"{team}.kalco"
        story = [action for number, text in enumerate(names) for action in player_save(team, number % 23, text)]
        self.write(name, "".join(action + "\n" for action in (*OPENING, *story)))
        return subprocess.Popen([kalcoctl(), "script", "--home", self.home, name], cwd=self.home,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def test_neither_undoes_the_other(self):
        before = self.disc()
        chance = random.Random(12)
        denied = saved = 0
        for number in range(RACES):
            self.write("disc.bin", before)
            names = [f"N{number % 10}{chance.choice('abcdef')}{k}" for k in range(6)]
            racers = [(team, self.start(team, names)) for team in (10, 20)]
            if number % 3 == 0:
                time.sleep(chance.uniform(0, 0.05))
                racers[0][1].send_signal(signal.SIGKILL)
            counts = []
            for team, program in racers:
                output = program.communicate(timeout=SECONDS)[0].decode()
                counts.append((team, output.count("Salvataggio effettuato con successo")))
                denied += output.count('"denied"') + output.count('"number": 70')
            saved += sum(count for _, count in counts)
            result = self.play(*OPENING, *(action for team, _ in counts
                                           for action in (f"pick cboSeqSQ {team}", "show listDat")))
            self.assertEqual(result.returncode, 0)
            lists = [event["items"] for event in events(result) if event.get("show") == "listDat"]
            for (_, count), items in zip(counts, lists):
                # A program that was killed may have saved more than its output tells.
                self.assertEqual(items[:count], names[:count])
            self.assertEqual(len(self.read("disc.bin")), len(before))
            self.assertFalse(os.path.exists(self.path("disc.bin.kalco-journal")))
        print(f"{RACES} races: {saved} saves told, {denied} programs denied")
        self.assertGreater(saved, 0)


class Beside(ProgramTest):
    JOURNAL = "disc.bin.kalco-journal"

    def messages(self, result):
        return [event["text"] for event in events(result) if event.get("event") == "message"]

    def test_what_is_no_journal_is_left_alone_and_refuses_saves(self):
        before = self.disc()
        self.write(self.JOURNAL, "a text")
        result = self.play(*OPENING, *player_save(3, 3, "Nuovo"))
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(self.messages(result)), 1)
        self.assertIn(".kalco-journal", self.messages(result)[0])
        self.assertEqual(events(result)[-1], {"event": "ended", "reason": "error", "number": 75})
        self.assertTrue(self.read("disc.bin") == before)
        self.assertEqual(self.read(self.JOURNAL), b"a text")

    def test_neither_a_link_nor_a_directory_is_taken_for_one(self):
        before = self.disc()
        self.write("precious", "bytes")
        for make in (lambda path: os.symlink("precious", path), lambda path: os.symlink("missing", path), os.mkdir,
                     os.mkfifo):
            with self.subTest(make):
                make(self.path(self.JOURNAL))
                self.assertEqual(self.play(*OPENING, *player_save(3, 3, "Nuovo")).returncode, 1)
                self.assertTrue(self.read("disc.bin") == before)
                self.assertEqual(self.read("precious"), b"bytes")
                self.assertFalse(os.path.exists(self.path("missing")))
                (os.rmdir if os.path.isdir(self.path(self.JOURNAL)) else os.remove)(self.path(self.JOURNAL))

    def test_an_empty_file_is_removed_and_nothing_is_told(self):
        self.disc()
        self.write(self.JOURNAL, "")
        result = self.play(*OPENING)
        self.assertEqual(self.messages(result), [])
        self.assertFalse(os.path.exists(self.path(self.JOURNAL)))

    def test_a_link_is_followed_first(self):
        self.disc()
        os.mkdir(self.path("elsewhere"))
        os.rename(self.path("disc.bin"), self.path("elsewhere/target.img"))
        os.symlink("elsewhere/target.img", self.path("disc.bin"))
        self.write("elsewhere/target.img.kalco-journal", "")
        result = self.play(*OPENING, *player_save(3, 3, "Nuovo"))
        self.assertEqual(self.messages(result), ["Salvataggio effettuato con successo"])
        self.assertEqual(os.listdir(self.path("elsewhere")), ["target.img"])

    def test_a_save_that_changes_nothing_does_not_touch_the_file(self):
        self.disc()
        os.utime(self.path("disc.bin"), (1000, 1000))
        result = self.play(*OPENING, "pick cboSeqSQ 3", "click cmdSaveCar", "click cmdName")
        self.assertEqual(len(self.messages(result)), 2)
        self.assertEqual(os.stat(self.path("disc.bin")).st_mtime, 1000)

    def test_a_directory_that_cannot_be_written_takes_saves_without_a_journal(self):
        before = self.disc()
        os.mkdir(self.path("closed"))
        os.rename(self.path("disc.bin"), self.path("closed/disc.bin"))
        os.chmod(self.path("closed/disc.bin"), 0o666)
        os.chmod(self.path("closed"), 0o555)
        os.chmod(self.home, 0o777)
        # Nothing is write-protected for root.
        options = {"user": 65534, "group": 65534} if os.geteuid() == 0 else {}
        result = self.play('choose "closed/disc.bin"', "start", *player_save(3, 3, "Nuovo"), **options)
        self.assertEqual(self.messages(result), ["Salvataggio effettuato con successo"])
        self.assertFalse(self.read("closed/disc.bin") == before)
        self.assertEqual(os.listdir(self.path("closed")), ["disc.bin"])
