"""Texts that no customer should have are shown, kept and come out as they went in; and the picture is a picture."""

import sqlite3
import struct
import unittest

from orders_program import ProgramTest, cells_of

ODD_TEXTS = [
    "embedded\0zero\0",
    "lone \ud800 high and \udc00 low",
    "pair \U0001f600 of surrogates",
    "lines\nof\r\nseveral\rkinds\u2028and\u2029more",
    "x" * 100_000,
    "שלום עולם and مرحبا",
    "\u202eturned round\u202c",
    "e\u0301\u0302\u0303" * 50,
    "tab\tand\x01control\x1f\x7f",
    "<b>no markup</b> &amp; %1 %n",
    "\ufeff\ufffe\uffff",
]


class OrdersOddTexts(ProgramTest):
    def setUp(self):
        super().setUp()
        self.path = self.folder / "odd.db"

    def make_database(self, texts):
        connection = sqlite3.connect(self.path)
        connection.execute("CREATE TABLE orders(id INTEGER PRIMARY KEY, customer TEXT, city TEXT, ordered DATE, "
                           "amount DECIMAL(12, 2), currency TEXT, paid BOOLEAN, shipped BOOLEAN, phone TEXT, notes TEXT)")
        # As bytes, for a text that is no proper UTF-8 cannot be bound as one.
        for text in texts:
            coded = text.encode("utf-8", "surrogatepass")
            connection.execute("INSERT INTO orders VALUES (NULL, CAST(? AS TEXT), 'Bergen', '2024-02-29', 12.5, 'NOK', "
                               "1, 0, NULL, CAST(? AS TEXT))", (coded, coded))
        connection.commit()
        connection.close()

    def cells_and_picture(self, *arguments, **environment):
        result = self.run_program("--picture", "a.png", "--log", "log", *arguments, **environment)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result)
        picture = (self.folder / "a.png").read_bytes()
        self.assertEqual(picture[:8], b"\x89PNG\r\n\x1a\n")
        return cells_of(self.folder / "log"), struct.unpack(">II", picture[16:24]), result.stdout

    def test_odd_texts_are_kept(self):
        # The fourth is under the editor of the picture.
        for under_the_editor in range(len(ODD_TEXTS)):
            with self.subTest(text=ODD_TEXTS[under_the_editor][:20]):
                texts = ODD_TEXTS[under_the_editor:] + ODD_TEXTS[:under_the_editor]
                texts = texts[-3:] + texts[:-3]
                self.path.unlink(missing_ok=True)
                self.make_database(texts)
                cells, _, _ = self.cells_and_picture("--database", self.path)
                for row, text in enumerate(texts, 1):
                    self.assertEqual(cells[row, 10], text)
                    if row != 4:
                        self.assertEqual(cells[row, 2], text)
                self.assertEqual(cells[1, 4], "2024-02-29")
                self.assertEqual((cells[1, 7], cells[1, 8]), ("True", "Open"))

    def test_picture_has_the_size_of_the_window(self):
        cells, size, printed = self.cells_and_picture("--rows", "50")
        self.assertEqual(size, (1200, 650))
        self.assertEqual(max(row for row, _ in cells), 50)
        self.assertIn("Daughters", cells[4, 2])
        self.assertIn("bare loop", printed)
        self.assertIn("50 orders", printed)
        _, size, _ = self.cells_and_picture("--rows", "50", QT_SCALE_FACTOR="2", DISPLAY=":65432")
        self.assertEqual(size, (2400, 1300))

    def test_no_orders_are_a_sheet_too(self):
        self.make_database([])
        self.cells_and_picture("--database", self.path)


if __name__ == "__main__":
    unittest.main()
