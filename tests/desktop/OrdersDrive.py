"""A user at the real window: mouse, keys, wheel, another size, another window and back; and what the cells hold."""

import os
import re
import shutil
import sqlite3
import unittest

from desktop import Desktop
from orders_program import PICTURES, PROGRAM, ProgramTest, cells_of, wait_for

CUSTOMER, CITY, ORDERED, AMOUNT, CURRENCY, PAID, STATE, PHONE, NOTES, SLIP = range(2, 12)
ROW_HEIGHT = 21


class Session:
    """The orders program, and what its log says."""

    def __init__(self, desktop, folder):
        self.log = folder / "log"
        self.program = desktop.start([PROGRAM, "--log", str(self.log)], cwd=folder)
        wait_for("the load", lambda: self.log.exists() and self.heard("loaded 2,000 rows"))

    def lines(self):
        return self.log.read_text(encoding="utf-8").split("\n")[:-1]

    def heard(self, start, since=0):
        return any(line.startswith(start) for line in self.lines()[since:])

    def now(self):
        return len(self.lines())

    def wait(self, start, since=0):
        return wait_for(f"the event {start}", lambda: self.heard(start, since))

    def entered(self, since):
        """Row, column and text of the cell entered last."""
        for line in reversed(self.lines()[since:]):
            if found := re.match(r"EnterCell (\d+), (\d+): (.*)", line):
                return int(found[1]), int(found[2]), found[3]
        return None


class OrdersLoadThatFails(ProgramTest):
    @staticmethod
    def other_than(first, window):
        return window if window != first else ""

    def test_is_told_in_a_box_and_ends_nothing(self):
        path = self.folder / "failing.db"
        with sqlite3.connect(path) as database:
            database.executescript("""
                CREATE TABLE n(i); INSERT INTO n VALUES (1), (2), (-9223372036854775807 - 1), (4);
                CREATE VIEW orders AS SELECT rowid AS id, 'Ada' AS customer, 'Bergen' AS city, '2024-01-01' AS ordered,
                    abs(i) AS amount, 'NOK' AS currency, 1 AS paid, 0 AS shipped, '' AS phone, '' AS notes FROM n""")
        desktop = Desktop({**self.environment, "QT_QPA_PLATFORM": "xcb", "XDG_RUNTIME_DIR": str(self.folder)})
        self.addCleanup(desktop.close)
        program = desktop.start([PROGRAM, "--database", str(path), "--log", "log"], cwd=self.folder)
        log = self.folder / "log"
        first = desktop.window("Orders")
        wait_for("the box in front", lambda: desktop.ask("getactivewindow") not in ("", first))
        desktop.save_picture(PICTURES / "orders-load-that-fails.png")
        # Both the walk that counts and the walk that reads fail, and one box tells it.
        box = wait_for("a box in front", lambda: self.other_than(first, desktop.ask("getactivewindow")))
        desktop.key("Return")
        wait_for("the end of the box", lambda: desktop.ask("getactivewindow") not in ("", box))
        wait_for("the window in front", lambda: desktop.ask("getactivewindow") == first)
        wait_for("the telling of the host", lambda: "integer overflow" in log.read_text(encoding="utf-8"))
        self.assertIsNone(program.poll())
        desktop.key("alt+F4")
        wait_for("the end of the program", lambda: program.poll() is not None)
        self.assertEqual(program.returncode, 0)
        self.assertEqual(cells_of(log)[2, 2], "Ada")


class OrdersDrive(ProgramTest):
    def setUp(self):
        super().setUp()
        self.desktop = Desktop({**self.environment, "QT_QPA_PLATFORM": "xcb", "XDG_RUNTIME_DIR": str(self.folder)})
        self.addCleanup(self.desktop.close)
        self.orders = Session(self.desktop, self.folder)
        self.window = self.desktop.window("2,000 orders")
        self.desktop.activate(self.window)
        database = next((self.folder / "home").rglob("*.db"))
        shutil.copy(database, self.folder / "orders.db")
        self.expected = {}
        with sqlite3.connect(database) as records:
            for row, record in enumerate(records.execute(
                    "SELECT id, customer, city, ordered, amount, currency, paid, iif(shipped, 'Shipped', 'Open'), phone,"
                    " notes, 'Copy', id FROM orders ORDER BY id"), 1):
                for column, value in enumerate(record, 1):
                    self.expected[row, column] = self.text_of(column, value)

    @staticmethod
    def text_of(column, value):
        if column == PAID:
            return "True" if value else "False"
        if value is None:
            return ""
        return f"{value:.15g}" if isinstance(value, float) else str(value)

    def click(self, x, y):
        """Clicks at a place of the window, and gives the cell that was entered by it, with its text."""
        left, top, _, _ = self.desktop.geometry(self.window)
        before = self.orders.now()
        self.desktop.click(left + x, top + y)
        return wait_for("the entry of a cell", lambda: self.orders.entered(before))

    def goes_to(self, row, column, *keys):
        before = self.orders.now()
        self.desktop.key(*keys)
        wait_for(f"{keys} to row {row}, column {column}",
                 lambda: (self.orders.entered(before) or ())[:2] == (row, column))

    def types(self, row, column, text, result):
        """Types in the editor of that cell, and waits until the cell holds the result."""
        before = self.orders.now()
        self.desktop.type(text)
        self.orders.wait(f"EditorChange {row}, {column}: {result}", before)
        self.expected[row, column] = result

    def test_user_at_the_window(self):
        # A click, and typing in front of what is there.
        row, column, text = self.click(200, 140)
        self.assertEqual(column, CUSTOMER)
        self.assertEqual(text, self.expected[row, CUSTOMER])
        self.types(row, CUSTOMER, "Ada ", "Ada " + text)

        # Enter leads along the row, through each kind of editor, and into the next.
        self.goes_to(row, CITY, "Return")
        self.desktop.key("ctrl+a")
        self.desktop.type("Bergen")
        self.expected[row, CITY] = "Bergen"
        self.goes_to(row, ORDERED, "Return")
        before = self.orders.now()
        self.desktop.key("Up")
        date = self.expected[row, ORDERED]
        self.expected[row, ORDERED] = f"{int(date[:4]) + 1}{date[4:]}"
        self.orders.wait(f"EditorChange {row}, {ORDERED}: {self.expected[row, ORDERED]}", before)
        self.goes_to(row, AMOUNT, "Return")
        self.goes_to(row, CURRENCY, "Return")
        self.desktop.type("sek")
        self.expected[row, CURRENCY] = "SEK"
        self.goes_to(row, PAID, "Return")
        self.desktop.key("space")
        paid = "False" if self.expected[row, PAID] == "True" else "True"
        self.expected[row, PAID] = paid
        self.goes_to(row, STATE, "Return")
        self.desktop.type("r")
        self.expected[row, STATE] = "Returned"
        self.goes_to(row, PHONE, "Return")
        self.goes_to(row, NOTES, "Return")
        self.desktop.save_picture(PICTURES / "orders-notes.png")
        self.goes_to(row, SLIP, "Return")
        self.goes_to(row + 1, CUSTOMER, "Return")

        # Esc brings back what was there; F2 enters again.
        text = self.expected[row + 1, CUSTOMER]
        self.types(row + 1, CUSTOMER, "gone ", "gone " + text)
        self.expected[row + 1, CUSTOMER] = text
        self.desktop.key("Escape")
        self.goes_to(row + 1, CUSTOMER, "F2")
        wait_for("the old text", lambda: self.orders.entered(0)[2] == text)

        # The arrows: down and up; right leaves only from the end of the text, left only from its start.
        self.goes_to(row + 2, CUSTOMER, "Down")
        self.goes_to(row + 1, CUSTOMER, "Up")
        self.goes_to(row + 2, CUSTOMER, "Down")
        self.desktop.key("End")
        self.types(row + 2, CUSTOMER, "!", self.expected[row + 2, CUSTOMER] + "!")
        self.goes_to(row + 2, CITY, "Right")
        self.goes_to(row + 2, ORDERED, "Return")
        self.goes_to(row + 2, AMOUNT, "Return")
        self.goes_to(row + 2, ORDERED, "Left")

        # The wheel takes the editor down and the rows three at a time along; the click finds the row that is there now.
        left, top, _, _ = self.desktop.geometry(self.window)
        before = self.orders.now()
        self.desktop.click(left + 200, top + 140, button=5)
        self.orders.wait("Scroll", before)
        entered = self.click(200, 140)
        self.assertEqual(entered[:2], (row + 3, CUSTOMER))
        self.assertEqual(self.click(200, 140 + 5 * ROW_HEIGHT)[:2], (row + 8, CUSTOMER))

        # Another size, with the editor up: typing goes on in it.
        self.desktop.do("windowsize", self.window, 900, 500)
        wait_for("the other size", lambda: self.desktop.geometry(self.window)[2:] == (900, 500))
        self.types(row + 8, CUSTOMER, "Eve ", "Eve " + self.expected[row + 8, CUSTOMER])

        # Another window comes to the front, gets keys of its own, and goes; the editor has the focus again, its caret at
        # the start of the text.
        before = self.orders.now()
        other = self.desktop.start([os.environ["README_HOST"]], cwd=self.folder)
        wait_for("the other window", lambda: self.desktop.ask("getactivewindow") not in ("", self.window))
        self.desktop.type("nobody gets this")
        self.desktop.save_picture(PICTURES / "orders-two-windows.png")
        self.desktop.key("alt+F4")
        wait_for("the end of the other program", lambda: other.poll() is not None)
        self.assertEqual(other.returncode, 0)
        self.desktop.activate(self.window)
        self.assertFalse(self.orders.heard("EditorChange", before))
        self.assertFalse(self.orders.heard("EditorValidate", before))
        self.types(row + 8, CUSTOMER, "Bob, ", "Bob, " + self.expected[row + 8, CUSTOMER])
        self.desktop.save_picture(PICTURES / "orders-drive.png")
        self.assertGreater(len(set().union(*map(set, zip(*[iter(b"".join(self.desktop.pixels()[100:400]))] * 3)))), 20)

        # The end: every cell is as it was, but for what was typed.
        self.desktop.key("alt+F4")
        wait_for("the end of the program", lambda: self.orders.program.poll() is not None)
        self.assertEqual(self.orders.program.returncode, 0)
        cells = cells_of(self.orders.log)
        self.assertEqual(len(cells), 2000 * 12)
        self.assertEqual({place: text for place, text in cells.items() if text != self.expected[place]}, {})


if __name__ == "__main__":
    unittest.main()
