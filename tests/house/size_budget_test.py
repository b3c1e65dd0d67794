"""The size budget has to see what is too long."""

import unittest

import functions
import size_budget


def lengths(text):
    return [lines for _, lines in functions.function_lines(text)]


class Functions(unittest.TestCase):
    def test_free_functions_and_methods_in_classes_count(self):
        self.assertEqual(lengths("namespace a {\nint f() { return 1; }\nclass B {\n  int g() {\n    return 2;\n  }\n};\n}\n"),
                         [1, 3])

    def test_a_head_over_several_lines_belongs_to_the_function(self):
        self.assertEqual(lengths("int f(int a,\n      int b) {\n  return a;\n}\n"), [4])

    def test_loops_and_lambdas_inside_are_no_functions_of_their_own(self):
        self.assertEqual(lengths("void f() {\n  for (;;) {\n    g([] {\n    });\n  }\n}\n"), [6])

    def test_member_initialisers_in_braces_belong_to_the_constructor(self):
        self.assertEqual(lengths("A::A(int x) : m_a{x}, m_b{1} {\n  run();\n}\n"), [3])

    def test_braces_in_strings_and_comments_are_no_braces(self):
        self.assertEqual(lengths('void f() {\n  // {\n  g("{{", u\'{\');\n}\n'), [4])

    def test_tables_and_declarations_are_no_functions(self):
        self.assertEqual(lengths("const int k[] = {\n  1,\n  2};\nint f(int);\nstruct A {\n  int x = 0;\n};\n"), [])

    def test_digit_separators_open_no_character(self):
        self.assertEqual(lengths("int f() { return 1'000'000; }\nint g() {\n  return 2;\n}\n"), [1, 3])


class SizeBudget(unittest.TestCase):
    def too_long(self, text):
        return size_budget.measure({"a.cpp": text})[2]

    def test_a_file_of_600_lines_is_the_longest(self):
        self.assertEqual(self.too_long("\n" * 600), [])
        self.assertEqual(len(self.too_long("\n" * 601)), 1)

    def test_a_table_may_be_longer(self):
        self.assertEqual(self.too_long("// A table: every colour.\n" + "\n" * 700), [])

    def test_a_function_of_60_lines_is_the_longest(self):
        self.assertEqual(self.too_long("void f() {\n" + "  g();\n" * 58 + "}\n"), [])
        self.assertIn("a.cpp:1: a function of 61 lines", self.too_long("void f() {\n" + "  g();\n" * 59 + "}\n")[0])


if __name__ == "__main__":
    unittest.main()
