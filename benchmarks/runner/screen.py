"""An X server with a window manager, for what is painted."""

import mmap
import os
import pathlib
import shutil
import struct
import subprocess
import tempfile
import time
import zlib

from programs import CannotMeasure


class Screen:
    SIZE = (1400, 900)

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="bench-screen-"))
        self.programs = []
        try:
            self._start()
        except BaseException:
            self.close()
            raise

    def _start(self):
        reading, writing = os.pipe()
        width, height = self.SIZE
        self._run(["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{width}x{height}x24", "-noreset", "-nolisten",
                   "tcp", "-fbdir", str(self.folder)], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as told:
            number = told.readline().strip()
        if not number:
            raise CannotMeasure("Xvfb did not start")
        with open(self.folder / "Xvfb_screen0", "rb") as file:
            self.pixels = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        # Plain widgets, the same on every desktop; nothing that would look for a session.
        self.environment = {**os.environ, "DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb", "QT_STYLE_OVERRIDE": "fusion",
                            "GDK_BACKEND": "x11", "NO_AT_BRIDGE": "1", "XDG_RUNTIME_DIR": str(self.folder),
                            "XDG_CACHE_HOME": str(self.folder)}
        self.environment.pop("WAYLAND_DISPLAY", None)
        self._run(["openbox", "--sm-disable"], env=self.environment)
        deadline = time.monotonic() + 10
        while not self._has_manager():
            if time.monotonic() > deadline:
                raise CannotMeasure("the window manager did not start")
            time.sleep(0.05)

    def _run(self, command, **how):
        self.programs.append(subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                              stderr=subprocess.DEVNULL, **how))

    def _has_manager(self):
        return subprocess.run(["xdotool", "get_desktop"], env=self.environment, capture_output=True).returncode == 0

    def lines(self):
        """The pixels of every eighth line of the screen, in one number."""
        header = struct.unpack(">25I", self.pixels[:100])
        size, height, line, colours = (header[at] for at in (0, 5, 12, 19))
        begin = size + colours * 12
        sum = 0
        for row in range(0, height, 8):
            sum = zlib.adler32(self.pixels[begin + row * line:begin + (row + 1) * line], sum)
        return sum

    def _wait_until_still(self):
        while True:
            before = self.lines()
            time.sleep(0.2)
            if self.lines() == before:
                return before

    def seconds_until_still(self, command, still=0.4, most=20):
        """Starts a program, and tells how long the screen changed; the program is ended then."""
        empty = last = self._wait_until_still()
        start = changed = time.monotonic()
        program = subprocess.Popen([str(word) for word in command], env=self.environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            while time.monotonic() - start < most:
                now = self.lines()
                if now != last:
                    last, changed = now, time.monotonic()
                elif last != empty and time.monotonic() - changed > still:
                    return changed - start
                time.sleep(0.004)
        finally:
            program.terminate()
            program.wait()
        raise CannotMeasure(f"the window of {command[0]} did not come to rest")

    def close(self):
        for program in reversed(self.programs):
            program.terminate()
            try:
                program.wait(5)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()
        shutil.rmtree(self.folder, ignore_errors=True)
