"""The machine on which the figures were measured."""

import os
import re
import subprocess


def _of_file(path, pattern, otherwise):
    try:
        with open(path, encoding="utf-8") as file:
            found = re.search(pattern, file.read(), re.M)
    except OSError:
        found = None
    return found.group(1) if found else otherwise


def _version(*command):
    try:
        told = subprocess.run(command, capture_output=True, text=True).stdout
    except OSError:
        return "unknown"
    return told.strip().splitlines()[0] if told.strip() else "unknown"


def described(build):
    processor = _of_file("/proc/cpuinfo", r"^model name\s*: (.*)$", "unknown processor")
    memory = int(_of_file("/proc/meminfo", r"^MemTotal:\s*(\d+)", "0")) // 1_000_000
    compiler = _of_file(build / "CMakeCache.txt", r"^CMAKE_CXX_COMPILER:\w+=(.*)$", "c++")
    qt = _of_file(build / "CMakeCache.txt", r"^Qt6_DIR:\w+=(.*)$", "")
    qt_version = _of_file(f"{qt}/Qt6ConfigVersionImpl.cmake", r'PACKAGE_VERSION "([^"]+)"', "unknown")
    return (f"{os.cpu_count()} cores, {processor}, {memory} GB; {_version(compiler, '--version')}; Qt {qt_version}; "
            f"load of the machine {os.getloadavg()[0]:.1f}")
