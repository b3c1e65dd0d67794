"""The check of the includes has to find what is wrong in invented trees."""

import unittest

import includes


def found(files):
    return "\n".join(includes.check(files))


class Includes(unittest.TestCase):
    def test_a_tree_that_runs_downwards_is_right(self):
        self.assertEqual(found({
            "od/base/OdString.h": "#include <string>\n",
            "mtext/parse.cpp": '#include "od/base/OdString.h"\n',
            "mtext/entity/bridge.cpp": '#include "od/db/OdDbMText.h"\n#include "mtext/parse.h"\n',
            "od/db/OdDbMText.h": "",
            "mtext/parse.h": "",
            "desk/window/view.cpp": '#include <QWidget>\n#include "host/prompt.h"\n',
            "host/prompt.h": "",
        }), "")

    def test_an_upward_arrow_between_floors(self):
        self.assertIn("upwards from host to editor",
                      found({"host/a.cpp": '#include "editor/b.h"\n', "editor/b.h": ""}))

    def test_an_upward_arrow_inside_od(self):
        self.assertIn("upwards from od/gi to od/db",
                      found({"od/gi/a.cpp": '# include "od/db/b.h"\n', "od/db/b.h": ""}))

    def test_the_text_library_takes_strings_and_fields_of_od_alone(self):
        self.assertIn("takes od/db into the text library",
                      found({"mtext/a.cpp": '#include "od/db/b.h"\n', "od/db/b.h": ""}))

    def test_the_host_knows_nothing_of_the_text_library(self):
        self.assertIn("upwards from host to mtext", found({"host/a.cpp": '#include "mtext/b.h"\n', "mtext/b.h": ""}))

    def test_the_desk_knows_nothing_of_the_inside_of_the_module(self):
        self.assertIn("from desk to commands", found({"desk/a.cpp": '#include "commands/b.h"\n', "commands/b.h": ""}))

    def test_a_circle_of_folders(self):
        self.assertIn("in a circle: host, host/windowless", found({
            "host/a.h": '#include "host/windowless/b.h"\n',
            "host/windowless/b.h": '#include "host/c.h"\n',
            "host/c.h": "",
        }))

    def test_a_circle_over_three_folders(self):
        self.assertIn("in a circle: desk/a, desk/b, desk/c", found({
            "desk/a/x.h": '#include "desk/b/x.h"\n',
            "desk/b/x.h": '#include "desk/c/x.h"\n',
            "desk/c/x.h": '#include "desk/a/x.h"\n',
        }))

    def test_a_toolkit_below_the_user_interface(self):
        for header in ("QString", "QtGui/QPainter", "X11/Xlib.h", "gtk/gtk.h", "windows.h"):
            for floor in ("od/base", "host", "mtext", "micui", "editor", "commands"):
                self.assertIn("brings in a toolkit", found({f"{floor}/a.cpp": f"#include <{header}>\n"}), header)

    def test_a_path_that_does_not_start_at_the_root(self):
        self.assertIn("is not a path from the root", found({"host/a.cpp": '#include "b.h"\n'}))

    def test_a_file_that_is_not_there(self):
        self.assertIn("names no file", found({"host/a.cpp": '#include "host/gone.h"\n'}))


if __name__ == "__main__":
    unittest.main()
