"""What the rows of the table need: sizes, programs, databases and a screen."""

import contextlib
import pathlib
import shutil
import sys
import tempfile

import data
import programs
import screen


class Bench:
    def __init__(self, root: pathlib.Path, quick: bool):
        self.root = root
        self.programs = root / "build" / "bin"
        self.quick = quick
        self.many = 100_000 if quick else 1_000_000
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="bench-"))
        self.databases = {}
        self.display = None
        self.in_windows = None  # What the windows of records told.

    def close(self):
        with contextlib.suppress(Exception):
            if self.display:
                self.display.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def heavy(self):
        """How often the large ones run."""
        return 1 if self.quick else 3

    def light(self):
        return 2 if self.quick else 5

    def database(self, rows):
        if rows not in self.databases:
            needed = rows * data.BYTES_A_ROW
            free = shutil.disk_usage(self.folder).free
            if free < needed:
                raise programs.CannotMeasure(f"{self.folder} has {free:,} bytes free; {rows:,} rows take {needed:,}")
            print(f"Making {rows:,} rows ...", file=sys.stderr, flush=True)
            self.databases[rows] = data.make_database(self.folder / f"{rows}.db", rows)
        return self.databases[rows]

    def program(self, name, *arguments):
        return [self.programs / name, *arguments]

    def environment(self):
        """That of programs which paint: on an X server of their own, started when it is first needed."""
        if self.display is None:
            self.display = screen.Screen()
        return self.display.environment
