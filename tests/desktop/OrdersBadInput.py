"""What cannot be done is told in one line on standard error with what to do, ends with status 2 and writes nothing."""

import os
import pathlib
import sqlite3
import time
import unittest

from orders_program import ProgramTest


class OrdersBadInput(ProgramTest):
    def database(self, statements, name="orders.db"):
        path = self.folder / name
        connection = sqlite3.connect(path)
        connection.executescript(statements)
        connection.commit()
        connection.close()
        return path

    def test_unknown_option_is_named(self):
        self.assertIn('unknown option "--colour"; --help', self.refused("--colour"))
        self.assertIn('unknown option "--colour"', self.refused("--colour=red"))
        self.assertIn('unknown option "orders.db"', self.refused("orders.db"))
        self.assertIn('unknown option "-platform"', self.refused("-platform", "offscreen"))

    def test_option_without_value_is_named(self):
        for option in "--rows", "--database", "--connection", "--query", "--picture", "--log":
            self.assertIn(f"{option} needs a value", self.refused(option))
            self.assertIn(f"{option} needs a value", self.refused(option + "="))

    def test_number_that_is_none_is_named(self):
        for text in "ten", "-1", "1e6", "2,000", "12x", "10000001", "99999999999999999999", " 5":
            message = self.refused("--picture", "a.png", "--rows", text)
            self.assertIn("a whole number from 0 to 10000000", message)
            self.assertIn(f'"{text}"', message)

    def test_rows_for_a_database_that_is_there_are_refused(self):
        path = self.database("CREATE TABLE orders(id)")
        self.assertIn("say only one of them", self.refused("--rows", "5", "--database", path))

    def test_missing_folder_is_named(self):
        for option in "--picture", "--log":
            message = self.refused(option, "missing/file", QT_QPA_PLATFORM="offscreen")
            self.assertIn("there is no folder missing; make it", message)

    def test_folder_in_place_of_a_file_is_named(self):
        self.assertIn("it is a folder", self.refused("--picture", self.folder))
        self.assertIn("it is a folder", self.refused("--picture", str(self.folder) + "/"))
        self.assertIn("it is a folder", self.refused("--picture", "a.png", "--database", self.folder))

    def test_database_is_never_written_over(self):
        path = self.database("CREATE TABLE orders(id)")
        before = path.read_bytes()
        (self.folder / "link").symlink_to(path)
        for name in "orders.db", "./orders.db", "link":
            self.assertIn("it is the database that is shown", self.refused("--database", path, "--picture", name))
        self.assertIn("name two", self.refused("--picture", "one", "--log", "./one"))
        self.assertEqual(path.read_bytes(), before)

    def test_place_that_may_not_be_written_is_named(self):
        result = self.run_program("--picture", "/proc/a.png", "--rows", "5")
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertRegex(result.stderr, r"\Aorders: --picture cannot write /proc/a.png: .+\n\Z")

    def test_missing_database_is_named_and_not_made(self):
        self.assertIn("there is no such file", self.refused("--picture", "a.png", "--database", "missing.db"))
        self.assertIn("there is no such file", self.refused("--picture", "a.png", "--database", "missing/orders.db"))

    def test_file_that_is_no_database_is_named(self):
        (self.folder / "letter.txt").write_text("Dear customer, " * 100)
        message = self.refused("--picture", "a.png", "--database", "letter.txt")
        self.assertIn("cannot read letter.txt: file is not a database; name a SQLite database", message)
        (self.folder / "empty.db").touch()
        self.assertIn("it is empty", self.refused("--picture", "a.png", "--database", "empty.db"))
        os.mkfifo(self.folder / "pipe")
        self.assertIn("no ordinary file", self.refused("--picture", "a.png", "--database", "pipe"))

    def test_database_without_the_table_is_named(self):
        path = self.database("CREATE TABLE invoices(id)")
        message = self.refused("--picture", "a.png", "--database", path)
        self.assertIn("no such table: orders; name a database with a table of orders", message)
        path = self.database("CREATE TABLE orders(id, customer)", "other.db")
        self.assertIn("no such column: city", self.refused("--picture", "a.png", "--database", path))

    def test_locked_database_is_waited_for_and_named(self):
        self.assertEqual(self.run_program("--picture", "a.png", "--rows", "5").returncode, 0)
        path = next((self.folder / "home").rglob("*.db"))
        lock = sqlite3.connect(path, isolation_level=None)
        lock.execute("BEGIN EXCLUSIVE")
        self.addCleanup(lock.close)
        begin = time.monotonic()
        message = self.refused("--picture", "b.png", "--database", path)
        waited = time.monotonic() - begin
        self.assertIn("locked", message)
        self.assertIn("another program has locked it; end that one", message)
        self.assertTrue(4 < waited < 15, waited)

    def test_query_that_fails_in_the_middle_is_told(self):
        path = self.database("""
            CREATE TABLE n(i); INSERT INTO n VALUES (1), (2), (-9223372036854775807 - 1), (4);
            CREATE VIEW orders AS SELECT rowid AS id, 'Ada' AS customer, 'Bergen' AS city, '2024-01-01' AS ordered,
                abs(i) AS amount, 'NOK' AS currency, 1 AS paid, 0 AS shipped, '' AS phone, '' AS notes FROM n""")
        self.assertIn("integer overflow", self.refused("--picture", "a.png", "--database", path))

    def test_no_display_is_told(self):
        self.assertIn("there is no display", self.refused())
        self.assertIn("the display cannot be used", self.refused(DISPLAY=":65432"))

    def test_no_cache_folder_is_told(self):
        self.assertIn("set HOME or XDG_CACHE_HOME", self.refused("--picture", "a.png", HOME="", XDG_CACHE_HOME=""))
        (self.folder / "file").touch()
        message = self.refused("--picture", "a.png", XDG_CACHE_HOME=str(self.folder / "file"))
        self.assertIn("cannot make the folder", message)

    def test_help_is_said_with_all_options(self):
        result = self.run_program("--help")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        for option in ("--database FILE", "--rows N", "--connection TEXT", "--query", "--picture FILE", "--log FILE",
                       "--help"):
            self.assertIn(option, result.stdout)
        self.assertEqual(self.files(), [])
        root = pathlib.Path(__file__).resolve().parents[2]
        said = (root / "examples/orders/help.txt").read_text(encoding="utf-8")
        self.assertEqual(result.stdout, said.replace("@PROGRAM@", "orders"))


if __name__ == "__main__":
    unittest.main()
