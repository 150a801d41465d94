"""An X server with a window manager, for what is painted."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time


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
            raise RuntimeError("Xvfb did not start")
        # Plain widgets, the same on every desktop; nothing that would look for a session.
        self.environment = {**os.environ, "DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb", "QT_STYLE_OVERRIDE": "fusion",
                            "GDK_BACKEND": "x11", "NO_AT_BRIDGE": "1", "XDG_CACHE_HOME": str(self.folder)}
        self.environment.pop("WAYLAND_DISPLAY", None)
        self._run(["openbox", "--sm-disable"], env=self.environment)
        deadline = time.monotonic() + 10
        while not self._has_manager():
            if time.monotonic() > deadline:
                raise RuntimeError("the window manager did not start")
            time.sleep(0.05)

    def _run(self, command, **how):
        self.programs.append(subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                              stderr=subprocess.DEVNULL, **how))

    def _has_manager(self):
        return subprocess.run(["xdotool", "get_desktop"], env=self.environment, capture_output=True).returncode == 0

    def close(self):
        for program in reversed(self.programs):
            program.terminate()
            try:
                program.wait(5)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()
        shutil.rmtree(self.folder, ignore_errors=True)
