"""The check of the wording has to find every forbidden word, and no other."""

import unittest

import wording


class Wording(unittest.TestCase):
    def test_every_forbidden_word_is_found_with_its_line(self):
        for bad in ("/work" + "/main/x", "see /root" + "/notes", "/home" + "/me/x", "// TO" + "DO: more", "GTEST_" + "SKIP();",
                    "TEST(A, DISABLED" + "_b)", "as Part" + " 1.3 tells", "spec" + ".md", "deb." + "debian.org"):
            self.assertEqual(len(wording.check("a.cpp", "fine\n" + bad)), 1, bad)
            self.assertIn("a.cpp:2: ", wording.check("a.cpp", "fine\n" + bad)[0])

    def test_ordinary_words_pass(self):
        self.assertEqual(wording.check("a.cpp", "Part of the work/life, a todo list, /usr/share/fonts, net/home/x, Part 1"), [])


if __name__ == "__main__":
    unittest.main()
