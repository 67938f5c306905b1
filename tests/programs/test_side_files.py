"""Side files: exports that replace whole or not at all, sizes that are bounded, disks that are full."""
import os
import resource
import stat

from support import ProgramTest, events

START = ('choose "disc.bin"', "start", "pick cboSeqSQ 10")
EXPORT = "Export/Italy.DAT"
MESSAGE = {"event": "message", "icon": "information", "buttons": "ok", "text": "File creato con successo",
           "answer": "ok"}


def error(number):
    return {"event": "ended", "reason": "error", "number": number}


def at_most(size):
    """A limit of the size of files, for the program that is started."""
    return lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))


class Exports(ProgramTest):
    def setUp(self):
        super().setUp()
        self.image = self.disc()
        os.mkdir(self.path("Export"))

    def export(self, **options):
        result = self.play(*START, "click cmdExp", **options)
        self.assertTrue(self.read("disc.bin") == self.image)
        return events(result)

    def only_export(self):
        return os.listdir(self.path("Export")) == [os.path.basename(EXPORT)]

    def test_replace_the_old_file(self):
        self.write(EXPORT, "old")
        self.assertIn(MESSAGE, self.export())
        self.assertTrue(self.read(EXPORT).startswith(b"[data]\r\n"))
        self.assertTrue(self.only_export())

    def test_leave_the_old_file_on_a_full_disk(self):
        self.write(EXPORT, "old")
        for size in (0, 1, 100):
            with self.subTest(size):
                told = self.export(preexec_fn=at_most(size))
                self.assertEqual(told[-1], error(61))
                self.assertNotIn(MESSAGE, told)
                self.assertEqual(self.read(EXPORT), b"old")
                self.assertTrue(self.only_export())

    def test_fail_on_pipes_devices_and_directories(self):
        def device(path):
            os.symlink("/dev/full", path)
        for make in (os.mkfifo, device, os.mkdir):
            with self.subTest(make):
                make(self.path(EXPORT))
                self.assertEqual(self.export()[-1], error(75))
                self.assertTrue(self.only_export())
                (os.rmdir if make is os.mkdir else os.remove)(self.path(EXPORT))

    def test_follow_links_and_keep_the_mode(self):
        self.write("kept.DAT", "old")
        os.chmod(self.path("kept.DAT"), 0o640)
        os.symlink("../kept.DAT", self.path(EXPORT))
        self.assertIn(MESSAGE, self.export())
        self.assertTrue(os.path.islink(self.path(EXPORT)))
        self.assertTrue(self.read("kept.DAT").startswith(b"[data]\r\n"))
        self.assertEqual(stat.S_IMODE(os.stat(self.path("kept.DAT")).st_mode), 0o640)

    def test_are_empty_after_an_error_as_ever(self):
        self.write(EXPORT, "old")
        self.write("short.DAT", self.team_file(22))
        told = events(self.play(*START, 'choose "short.DAT"', "click cmdImp", "click cmdExp"))
        self.assertEqual(told[-1], error(5))
        self.assertEqual(self.read(EXPORT), b"")

    @staticmethod
    def team_file(players):
        head = "[data]\r\nintro=\r\nid=n\r\nlongname=Italy\r\nshortname=ITA\r\n"
        return head + "".join(f"p{k}=1,2,3,NAME\r\n" for k in range(1, players + 1))


class LargeFiles(ProgramTest):
    def setUp(self):
        super().setUp()
        self.image = self.disc()

    def play_import(self, content, *actions):
        self.write("large.side", content)
        result = self.play('choose "disc.bin"', "start", *actions)
        self.assertTrue(self.read("disc.bin") == self.image)
        return events(result)

    def test_are_error_7_by_each_operations_own_route(self):
        large = b"0" * ((1 << 20) + 1)
        team = self.play_import(large, "pick cboSeqSQ 0", 'choose "large.side"', "click cmdImp")
        self.assertEqual(team[-1], error(7))
        transfer = self.play_import(large, "tab 3", 'choose "large.side"', "click cmdTeam1", "show ListVende")
        self.assertEqual(transfer[-1]["reason"], "closed")
        self.assertEqual(transfer[-2]["items"], [])
        bars = self.play_import(large, "tab 4", "pick cboSeqSQ2 0", 'choose "large.side"', "click cmdImport")
        self.assertEqual(bars[-1], error(7))
        numbers = self.play_import(large, "tab 5", "pick cboSQNum 0", 'choose "large.side"', "click cmdImpNum")
        self.assertEqual([line["event"] for line in numbers], ["dialog", "dialog", "ended"])
        self.assertEqual(numbers[-1]["reason"], "closed")
        kickers = self.play_import(large, "tab 2", "pick cboSquadra 0", 'choose "large.side"', "click cmdImpKick")
        self.assertEqual(kickers[-2], {"event": "message", "icon": "stop", "buttons": "ok", "text": "Memoria esaurita",
                                       "answer": "ok"})
        self.assertEqual(kickers[-1]["reason"], "closed")

    def test_of_one_line_are_read_up_to_its_end(self):
        self.write("large.side", b"000102030405\r\n" + b"0" * (5 << 20))
        told = events(self.play('choose "disc.bin"', "start", "tab 2", "pick cboSquadra 0", 'choose "large.side"',
                                "click cmdImpKick"))
        self.assertEqual(told[-2]["text"], "Salvataggio effettuato con successo")
        self.assertEqual(len(self.read("disc.bin")), len(self.image))


class FileSizeLimits(ProgramTest):
    def test_are_error_61_of_a_save(self):
        image = self.disc()
        told = events(self.play('choose "disc.bin"', "start", "pick cboSeqSQ 0", "pick listDat 3",
                                'type txtName "Bianchi"', "click cmdSaveCar", preexec_fn=at_most(1024)))
        self.assertEqual(told[-1], error(61))
        self.assertTrue(self.read("disc.bin") == image)
