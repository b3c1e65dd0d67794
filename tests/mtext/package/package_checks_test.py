#!/usr/bin/env python3
"""The checks of the installed library find what is wrong with it."""

import unittest

import documented
import exports
import installed_headers

HEADERS = {"mtext/parse.h": '#include <string>\n#include "mtext/part.h"\nbool parse(int a);\n', "mtext/part.h": ""}


class InstalledHeaders(unittest.TestCase):
    def test_headers_that_include_each_other_are_whole(self):
        self.assertEqual([], installed_headers.check(HEADERS))

    def test_an_include_of_what_is_not_installed_is_found(self):
        self.assertEqual(["mtext/part.h is included and not installed"],
                         installed_headers.check({"mtext/parse.h": HEADERS["mtext/parse.h"]}))

    def test_a_header_that_nothing_needs_is_found(self):
        self.assertEqual(["od/base/OdArray.h is installed and of no use"],
                         installed_headers.check({**HEADERS, "od/base/OdArray.h": ""}))

    def test_a_header_of_another_library_is_found(self):
        wrong = installed_headers.check({"mtext/part.h": "#include <unicode/ustring.h>\n#include <boost/optional.hpp>\n"})
        self.assertEqual(["mtext/part.h includes <unicode/ustring.h>, which is neither Boost nor standard"], wrong)


class Exports(unittest.TestCase):
    def test_what_is_declared_is_exported_and_the_inside_is_not(self):
        self.assertEqual([], exports.check({"mtext::parse(int)", "mtext::inside(int)"}, {"mtext::parse(int)"}, HEADERS))

    def test_a_declared_function_that_is_hidden_is_found(self):
        self.assertEqual(["declared and not exported: mtext::parse(int)"],
                         exports.check({"mtext::parse(int)"}, set(), HEADERS))

    def test_an_exported_function_of_the_inside_is_found(self):
        self.assertEqual(["exported and not declared: mtext::inside(int)"],
                         exports.check(set(), {"mtext::inside(int)"}, HEADERS))

    def test_names_are_read_without_marks_of_the_compiler(self):
        self.assertEqual("encode", exports.short_name("mtext::encode[abi:cxx11](int)"))
        self.assertEqual("operator==", exports.short_name("mtext::format::operator==(int, int)"))
        self.assertIsNone(exports.short_name("vtable for mtext::part"))


class Documented(unittest.TestCase):
    def test_a_comment_above_or_behind_tells(self):
        self.assertEqual([], documented.undocumented("/// Reads.\nbool parse(int a);\nint count;  ///< of parts\n"))

    def test_a_comment_tells_of_what_stands_right_below_too(self):
        self.assertEqual([], documented.undocumented("/// Reads.\nbool parse(int a);\nbool parse(long a);\n"))

    def test_a_function_that_nothing_is_said_about_is_found(self):
        self.assertEqual([4], documented.undocumented("/// Reads.\nbool parse(int a);\n\nSCRIBE_EXPORT bool write(int a);\n"))

    def test_a_member_that_nothing_is_said_about_is_found(self):
        text = "/// A part.\nstruct part {\n  int count;\n  part(int a) {}\n  int type() const override;\n private:\n  int x;\n};\n"
        self.assertEqual([3], documented.undocumented(text))


if __name__ == "__main__":
    unittest.main()
