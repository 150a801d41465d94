"""The databases that are measured on: the same ten mixed fields in every size."""

import pathlib
import sqlite3

BYTES_A_ROW = 140  # On the disk, with room to spare.

FAMILY_NAMES = """Abbott Andersen Bianchi Brandt Carvalho Castillo Dubois Eriksson Fairbanks Ferrari Fischer García
    Hansen Hoffmann Ivanova Jansen Kaya Keller Lindqvist MacLeod Martin Moreau Müller Nakamura Nguyen Okafor Olsen
    Pereira Petit Quinn Rossi Sandberg Schröder Silva Tanaka Thornton Vasquez Virtanen Weber Whitfield""".split()
GIVEN_NAMES = """Ada Björn Chloé Daniel Fatima Grace Hugo Inês Jonas Kenji Lucía Mara Noor Oskar Petra Rafael Sofia
    Wanda""".split()
CITIES = """Amsterdam Århus Barcelona Bergen Birmingham Chicago Dublin Gdańsk Genève Glasgow Göteborg Hamburg Helsinki
    Köln Lyon Madrid Melbourne Milano Montréal München Nagoya Portland Porto Seattle Wien Zürich Θεσσαλονίκη""".split()
NOTES = ["", "", "", "Deliver to the back door.", "Please ring twice; the bell is faint.", "Paid in advance",
         "Second reminder sent, third one on the first of the month", "Fragile", "Ask for a receipt, please",
         "Holiday in July: hold until they are back"]

# A row is made from its number alone; the factors are odd, so that neighbours differ in every field.
FILL = """
WITH RECURSIVE numbers(n) AS (SELECT 0 UNION ALL SELECT n + 1 FROM numbers LIMIT :rows),
    drawn AS (SELECT n, (n * 2654435761 + 97) % 4294967296 AS a, (n * 1597334677 + 11) % 4294967291 AS b FROM numbers)
INSERT INTO records
SELECT n + 1,
    (SELECT text FROM words WHERE id = 1000 + a / 7 % :given) || ' ' ||
        (SELECT text FROM words WHERE id = 2000 + a / 1000 % :family),
    b % 500 + 1,
    a % 90000 / 1000.0,
    date(2451545 + b / 3 % 9000),
    b / 5 % 3 > 0,
    a / 11 % 10000000 / 100.0,
    (SELECT text FROM words WHERE id = 3000 + b / 13 % :cities),
    (SELECT text FROM words WHERE id = 4000 + a / 17 % :notes),
    datetime(2451545 + b / 3 % 9000 + a % 86400 / 86400.0)
FROM drawn"""


def make_database(path: pathlib.Path, rows: int) -> pathlib.Path:
    """Nobody sees the file before it is whole, so it needs neither journal nor waiting for the disk."""
    connection = sqlite3.connect(path, isolation_level=None)
    connection.executescript("""
        PRAGMA journal_mode = OFF;
        PRAGMA synchronous = OFF;
        PRAGMA locking_mode = EXCLUSIVE;
        CREATE TABLE records (
            id INTEGER PRIMARY KEY,
            customer VARCHAR(40),
            quantity INTEGER,
            weight REAL,
            ordered DATE,
            paid BOOLEAN,
            amount DECIMAL(12, 2),
            city VARCHAR(30),
            note TEXT,
            changed TIMESTAMP);
        CREATE TEMPORARY TABLE words (id INTEGER PRIMARY KEY, text TEXT);
        BEGIN""")
    for first, words in ((1000, GIVEN_NAMES), (2000, FAMILY_NAMES), (3000, CITIES), (4000, NOTES)):
        connection.executemany("INSERT INTO words VALUES (?, ?)", enumerate(words, first))
    connection.execute(FILL, {"rows": rows, "given": len(GIVEN_NAMES), "family": len(FAMILY_NAMES),
                              "cities": len(CITIES), "notes": len(NOTES)})
    connection.execute("COMMIT")
    connection.close()
    return path
