"""export and import of workbooks, with a real spreadsheet in between where one is installed."""
import os
import re
import shutil
import subprocess
import unittest
import xml.etree.ElementTree as ElementTree

from support import ProgramTest

for prefix, name in (("office", "office"), ("table", "table"), ("text", "text"), ("style", "style"), ("config", "config"),
                     ("number", "datastyle"), ("fo", "xsl-fo-compatible")):
    ElementTree.register_namespace(prefix, f"urn:oasis:names:tc:opendocument:xmlns:{name}:1.0")

OFFICE = shutil.which("soffice") or shutil.which("libreoffice")
TABLE = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
OFFICE_NAME = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"


class Workbook(ProgramTest):
    def setUp(self):
        super().setUp()
        self.image = self.disc()
        self.assertEqual(self.run_program("export", "disc.bin", "-o", "book.fods").returncode, 0)

    def import_book(self, name, *options):
        """The lines of the changes."""
        result = self.run_program("import", "disc.bin", name, *options)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return result.stdout.decode().splitlines()

    def edit(self, sheet, edits):
        """Types texts into cells of book.fods: {(id, column): text}."""
        tree = ElementTree.parse(self.path("book.fods"))
        table = next(each for each in tree.iter(TABLE + "table") if each.get(TABLE + "name") == sheet)
        rows = list(table.iter(TABLE + "table-row"))
        names = ["".join(cell.itertext()) for cell in rows[0]]
        by_id = {"".join(row[0].itertext()): row for row in rows}
        for (id, column), text in edits.items():
            cell = by_id[id][names.index(column)]
            for child in list(cell):
                cell.remove(child)
            cell.attrib.pop(OFFICE_NAME + "value", None)
            cell.set(OFFICE_NAME + "value-type", "string")
            ElementTree.SubElement(cell, TEXT + "p").text = text
        tree.write(self.path("book.fods"), encoding="utf-8", xml_declaration=True)

    def test_an_export_changes_nothing(self):
        self.assertEqual(self.import_book("book.fods"), [])
        self.assertEqual(self.read("disc.bin"), self.image)

    def test_edits_arrive(self):
        self.edit("players", {("t10p03", "name"): "De Rossi", ("t10p03", "foot"): "Ambi"})
        self.edit("teams", {("t63", "short"): "\"\""})
        changes = self.import_book("book.fods", "--dry-run")
        self.assertEqual(self.read("disc.bin"), self.image)
        self.assertEqual([line.split(":")[0] for line in changes], ["t10p03 name", "t10p03 foot", "t63 short"])
        self.assertTrue(changes[0].endswith("-> De Rossi"))
        self.assertEqual(self.import_book("book.fods"), changes)
        self.assertEqual(self.import_book("book.fods", "--force"), [])

    def test_broken_workbooks_are_refused(self):
        whole = self.read("book.fods")
        bomb = whole.replace(b"<table:table-row>", b'<table:table-row table:number-rows-repeated="1000000">')
        deep = whole.replace(b"<text:p>t00p01</text:p>",
                             b"<text:p>" + b"<text:span>" * 5000 + b"t00p01" + b"</text:span>" * 5000 + b"</text:p>")
        entities = b'<?xml version="1.0"?><!DOCTYPE a [<!ENTITY b "' + b"c" * 1000 + b'">]>' + whole[whole.index(b"\n"):]
        for name, book in (("cut", whole[:len(whole) // 2]), ("bomb", bomb), ("deep", deep), ("not UTF-8", b"<\xff/>"),
                           ("another document", b"<html/>"), ("entities", re.sub(rb"(office:value-type=.string.><text:p>)Portiere", rb"\1&b;", entities, count=1))):
            with self.subTest(name):
                self.write("broken.fods", book)
                result = self.run_program("import", "disc.bin", "broken.fods")
                self.assertEqual((result.returncode, result.stdout), (1, b""))
                self.assertTrue(result.stderr.startswith(b"kalcoctl import: broken.fods:"), result.stderr[:200])
                self.assertLess(len(result.stderr), 1000)
                self.assertEqual(self.read("disc.bin"), self.image)

    @unittest.skipUnless(OFFICE, "no spreadsheet is installed")
    def test_a_spreadsheet_saves_it_again(self):
        self.assertEqual(self.import_book(self.saved_again("book.fods")), [])
        self.assertEqual(self.read("disc.bin"), self.image)

    @unittest.skipUnless(OFFICE, "no spreadsheet is installed")
    def test_edits_survive_a_spreadsheet(self):
        self.edit("players", {("t10p03", "name"): "De Rossi", ("t10p04", "role"): "Portiere"})
        self.edit("links", {("c00", "s1"): "m462"})
        changes = self.import_book("book.fods", "--dry-run")
        self.assertEqual(len(changes), 3)
        self.assertEqual(self.import_book(self.saved_again("book.fods")), changes)

    def saved_again(self, name):
        """Opens a workbook and saves it in its own format."""
        os.mkdir(self.path("saved"))
        subprocess.run([OFFICE, "-env:UserInstallation=file://" + self.path("profile"), "--headless", "--convert-to",
                        "fods:OpenDocument Spreadsheet Flat XML", "--outdir", self.path("saved"), self.path(name)],
                       check=True, capture_output=True, timeout=300, env={**os.environ, "HOME": self.home})
        return os.path.join("saved", name)
