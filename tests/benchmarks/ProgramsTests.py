"""The programs of ./bench on a few records: they run, find what is there, and tell all that the table asks for."""

import os
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "benchmarks" / "runner"))

import data  # noqa: E402
import programs  # noqa: E402

ROWS = 2000
FOLDER = pathlib.Path(os.environ["PROGRAMS"])


class Programs(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.records = data.make_database(pathlib.Path(cls.folder.name) / "records.db", ROWS)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def told(self, *words):
        return programs.run([FOLDER / words[0], *words[1:]])

    def test_sheet_and_bare_loop_find_the_same(self):
        sheet, bare = self.told("bench_load", "sheet", self.records), self.told("bench_load", "bare", self.records)
        self.assertEqual(sheet["rows"], ROWS)
        self.assertEqual((sheet["rows"], sheet["checksum"]), (bare["rows"], bare["checksum"]))

    def test_walk_asks_for_all_that_the_sheet_asks_for(self):
        walk = self.told("bench_load", "walk", self.records)
        self.assertEqual(walk["rows"], ROWS)
        # The shortest names and cities alone have as many characters.
        self.assertGreater(walk["used"], 11 * ROWS)

    @unittest.skipIf(os.environ["QT"] == "0", "built without Qt")
    def test_sheet_and_loop_find_the_same_in_a_query_of_qts(self):
        wanted = self.told("bench_load", "sheet", self.records)["checksum"]
        for words in (("sheet", "forward"), ("sheet", "back"), ("bare", "forward"), ("bare", "back")):
            with self.subTest(words):
                told = self.told("bench_query_load", *words, self.records)
                self.assertEqual((told["rows"], told["checksum"]), (ROWS, wanted))

    @unittest.skipIf(os.environ["QT"] == "0", "built without Qt")
    def test_sheet_in_a_window_does_all_that_is_measured(self):
        told = self.told("bench_sheet", "records", self.records)
        self.assertEqual(told["rows"], ROWS)
        for figure in ("seconds", "jump", "seenJump", "page", "slowestPage", "advance", "stroke"):
            self.assertGreater(told[figure], 0, figure)

    @unittest.skipIf(os.environ["QT"] == "0", "built without Qt")
    def test_sheets_of_other_shapes_do_all_that_is_measured(self):
        for words, figure in ((("cells", self.records), "read"), (("rows", self.records), "addFirst"),
                              (("bands", self.records), "views"), (("content", self.records), "with"),
                              (("progress", self.records), "with"),
                              (("columns",), "advance"), (("width", "10"), "jump")):
            with self.subTest(words[0]):
                self.assertGreater(self.told("bench_sheet", *words)[figure], 0)


if __name__ == "__main__":
    unittest.main()
