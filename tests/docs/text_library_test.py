#!/usr/bin/env python3
"""The comparison of guide and examples finds what has drifted."""

import unittest

import text_library

FILES = {"examples/a.cpp": "int a;\n\nint b;\n"}


def document(*bodies, name="examples/a.cpp"):
    return "Words.\n\n" + "\n".join(f"```cpp {name}\n{body}```\n" for body in bodies)


class TextLibrary(unittest.TestCase):
    def test_blocks_that_make_up_the_file_are_right(self):
        self.assertEqual([], text_library.check(document("int a;\n\nint b;\n"), FILES))
        self.assertEqual([], text_library.check(document("int a;\n", "int b;\n"), FILES))

    def test_a_changed_line_is_found(self):
        self.assertIn("not what comes next", text_library.check(document("int a;\n", "int c;\n"), FILES)[0])

    def test_a_line_that_is_not_shown_is_found(self):
        self.assertIn("goes on behind", text_library.check(document("int a;\n"), FILES)[0])

    def test_blocks_in_the_wrong_order_are_found(self):
        self.assertIn("not what comes next", text_library.check(document("int b;\n", "int a;\n"), FILES)[0])

    def test_a_file_that_is_not_shown_is_found(self):
        self.assertIn("goes on behind", text_library.check("Words.\n", FILES)[0])

    def test_code_of_no_file_is_found(self):
        shown = document("int a;\n\nint b;\n") + document("int x;\n", name="examples/b.cpp")
        self.assertEqual(1, len(text_library.check(shown, FILES)))


if __name__ == "__main__":
    unittest.main()
