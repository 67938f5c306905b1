#!/usr/bin/env python3
"""The rule of the storeys finds what it must find."""
import unittest

from check_storeys import breaches, own_symbols

EDITOR = """
names.cpp.o:
0000000000000000 T kalco::SAVE_NAME_SQ(kalco::frmKalco&)
0000000000000120 T kalco::frmKalco::reopen_image()
0000000000000040 T kalco::side_file_path(kalco::Platform&, std::string)
                 U kalco::upper[abi:cxx11](std::basic_string_view<char>)
0000000000000000 W std::vector<std::string>::push_back(std::string&&)
0000000000000000 T main
"""

DISC = """
teams.cpp.o:
0000000000000000 T kalco::upper[abi:cxx11](std::basic_string_view<char>)
                 U kalco::Image::read(long, int) const
0000000000000000 W std::vector<std::string>::push_back(std::string&&)
"""


class Storeys(unittest.TestCase):
    def found_with(self, line):
        return breaches(own_symbols(EDITOR), DISC + line + "\n")

    def test_the_editors_own(self):
        self.assertEqual(own_symbols(EDITOR), {"kalco::SAVE_NAME_SQ(kalco::frmKalco&)", "kalco::frmKalco::reopen_image()",
                                               "kalco::side_file_path(kalco::Platform&, std::string)"})

    def test_clean(self):
        self.assertEqual(self.found_with(""), [])

    def test_a_reference(self):
        name = "kalco::frmKalco::reopen_image()"
        self.assertEqual(self.found_with("                 U " + name), [name])

    def test_a_definition(self):
        name = "kalco::SAVE_NAME_SQ(kalco::frmKalco&)"
        self.assertEqual(self.found_with("0000000000000000 T " + name), [name])

    def test_inline_code_of_the_window_model(self):
        name = "kalco::ListBox::items() const"
        self.assertEqual(self.found_with("0000000000000000 W " + name), [name])


if __name__ == "__main__":
    unittest.main()
