"""The seeds of the fuzz targets have to be there for each of them, and to be what they say."""

import pathlib
import re
import tempfile
import unittest

import drawing_seeds
import font_seeds
import make_corpus
import text_seeds

FUZZ = pathlib.Path(make_corpus.__file__).parent


class MakeCorpus(unittest.TestCase):
    def test_every_target_has_seeds(self):
        targets = re.findall(r"^scribe_fuzz_target\((\w+)", (FUZZ / "CMakeLists.txt").read_text(), re.MULTILINE)
        self.assertEqual(sorted(targets), sorted(make_corpus.SEEDS))

    def test_seeds_are_written_once_each(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "target"
            self.assertEqual(make_corpus.write(path, [b"a", b"b", b"a"]), 2)
            self.assertEqual(sorted(file.read_bytes() for file in path.iterdir()), [b"a", b"b"])

    def test_texts_come_from_arguments_and_results_of_the_vectors(self):
        texts = text_seeds.texts()
        self.assertGreater(len(texts), 1000)
        self.assertIn(b"a\\~b", texts)

    def test_a_text_in_pieces_is_the_text(self):
        text = "Höhe ¼ \U0001F600 und mehr als vierzig Bytes davon".encode()
        self.assertEqual(b"".join(text_seeds.pieces(text)), text)
        self.assertLessEqual(max(map(len, text_seeds.pieces(text))), 40)

    def test_small_drawings_hold_each_kind_of_record_and_end(self):
        drawings = list(drawing_seeds.dxf_read())
        for kind in (b"MTEXT", b"LAYER", b"STYLE", b"BLOCK"):
            self.assertTrue(any(b"\n" + kind + b"\n" in drawing for drawing in drawings), kind)
        self.assertTrue(all(b"EOF" in drawing for drawing in drawings))

    def test_a_binary_drawing_has_a_value_in_the_width_of_its_code(self):
        groups = [(0, b"LINE"), (10, b"1.5"), (62, b"-2"), (90, b"3"), (290, b"1"), (310, b"0AFF")]
        self.assertEqual(drawing_seeds.as_binary(groups)[len(drawing_seeds.BINARY_HEAD):],
                         b"\0\0LINE\0" b"\x0a\0" + bytes(6) + b"\xf8\x3f" b"\x3e\0\xfe\xff" b"\x5a\0\3\0\0\0"
                         b"\x22\1\1" b"\x36\1\2\x0a\xff")

    def test_there_are_shape_files_of_every_kind(self):
        kinds = [file.split(b" ")[1] for file in font_seeds.shape_files()]
        self.assertEqual(set(kinds), {b"shapes", b"unifont", b"bigfont"})


if __name__ == "__main__":
    unittest.main()
