"""The orders program as the tests start it: in a folder of its own, with nothing of the user's settings."""

import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ["ORDERS"]
PICTURES = pathlib.Path(os.environ["PICTURES"])
LONGEST = 20.0  # seconds that anything is waited for


def wait_for(what, condition):
    """Asks until the condition gives something that is true, and gives it; a failure names what never came."""
    end = time.monotonic() + LONGEST
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"waited {LONGEST:.0f} seconds in vain for {what}")
        time.sleep(0.01)


def cells_of(log):
    """What the sheet held at the end: {(row, column): text}."""
    cells = {}
    for line in log.read_text(encoding="utf-8").splitlines():
        if line.startswith("cell "):
            _, row, column, text = line.split(" ", 3)
            cells[int(row), int(column)] = json.loads(text)
    return cells


class ProgramTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orders test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        kept = {name: value for name, value in os.environ.items() if name in ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS")}
        self.environment = {**kept, "HOME": str(self.folder / "home"), "LC_ALL": "C.UTF-8",
                            "XDG_CACHE_HOME": str(self.folder / "home" / "cache")}

    def files(self):
        return sorted(str(path.relative_to(self.folder)) for path in self.folder.rglob("*") if path.is_file())

    def run_program(self, *arguments, **environment):
        return subprocess.run([PROGRAM, *map(str, arguments)], cwd=self.folder, text=True, capture_output=True,
                              stdin=subprocess.DEVNULL, env={**self.environment, **environment}, timeout=60)

    def refused(self, *arguments, **environment):
        """The message of a run that can do nothing and leaves nothing behind."""
        before = self.files()
        result = self.run_program(*arguments, **environment)
        self.assertEqual(result.returncode, 2, result)
        self.assertEqual(result.stdout, "")
        self.assertEqual(result.stderr.count("\n"), 1, result.stderr)
        self.assertTrue(result.stderr.startswith("orders: ") and result.stderr.endswith("\n"), result.stderr)
        self.assertEqual(self.files(), before)
        return result.stderr
