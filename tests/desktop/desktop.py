"""A screen of its own with a window manager, a hand that clicks and types there, and an eye."""

import os
import pathlib
import shutil
import struct
import subprocess
import tempfile
import zlib

from orders_program import wait_for

TOOLS = {"Xvfb": "xvfb", "openbox": "openbox", "xdotool": "xdotool"}


class Desktop:
    SIZE = (1400, 900)

    def __init__(self, environment):
        missing = [package for tool, package in TOOLS.items() if shutil.which(tool) is None]
        if missing:
            raise AssertionError(f"the desktop cannot be driven: install {' '.join(missing)}")
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="screen-"))
        self.programs = []
        self.environment = environment
        try:
            self._start()
        except BaseException:
            self.close()
            raise

    def _start(self):
        reading, writing = os.pipe()
        width, height = self.SIZE
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{width}x{height}x24", "-noreset", "-nolisten", "tcp",
                    "-fbdir", str(self.folder)], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as told:
            number = told.readline().strip()
        if not number:
            raise AssertionError("Xvfb did not start")
        self.environment = {**self.environment, "DISPLAY": f":{number}"}
        self.start(["openbox", "--sm-disable"], stderr=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        wait_for("the window manager", lambda: self.ask("get_desktop"))

    def start(self, command, **how):
        program = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL, **how)
        self.programs.append(program)
        return program

    def close(self):
        for program in reversed(self.programs):
            if program.poll() is None:
                program.terminate()
                try:
                    program.wait(5)
                except subprocess.TimeoutExpired:
                    program.kill()
            program.wait()
        shutil.rmtree(self.folder)

    def ask(self, *words):
        """The answer of xdotool; empty where it has none."""
        done = subprocess.run(["xdotool", *map(str, words)], env=self.environment, text=True, capture_output=True,
                              timeout=30)
        return done.stdout.strip() if done.returncode == 0 else ""

    def do(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True, timeout=30)

    def window(self, name):
        """The window with this in its title, when it is shown."""
        return wait_for(f"a window named {name}",
                        lambda: self.ask("search", "--onlyvisible", "--name", name).split("\n")[0])

    def activate(self, window):
        self.do("windowactivate", window)
        wait_for("the window in front", lambda: self.ask("getactivewindow") == window)

    def geometry(self, window):
        lines = self.ask("getwindowgeometry", "--shell", window).splitlines()
        values = dict(line.split("=") for line in lines)
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def click(self, x, y, button=1):
        self.do("mousemove", x, y, "click", button)

    def key(self, *keys):
        self.do("key", "--clearmodifiers", *keys)

    def type(self, text):
        self.do("type", "--delay", "5", "--", text)

    def pixels(self):
        """The screen as it is: its rows of red, green and blue."""
        dump = (self.folder / "Xvfb_screen0").read_bytes()
        header = struct.unpack(">25I", dump[:100])
        size, width, height, order, line, colours = (header[at] for at in (0, 4, 5, 7, 12, 19))
        begin = size + colours * 12
        rows = []
        for row in range(height):
            four = dump[begin + row * line:begin + row * line + width * 4]
            three = bytearray(width * 3)
            first = 2 if order == 0 else 1
            step = -1 if order == 0 else 1
            for channel in range(3):
                three[channel::3] = four[first + step * channel::4]
            rows.append(bytes(three))
        return rows

    def save_picture(self, path):
        rows = self.pixels()
        width, height = self.SIZE
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0)) +
                         chunk(b"IDAT", zlib.compress(b"".join(b"\0" + row for row in rows))) + chunk(b"IEND", b""))
