"""Runs the programs that measure, each in a process of its own."""

import json
import subprocess


class CannotMeasure(Exception):
    pass


def run(command, environment=None, timeout=900):
    """What the program told: each line a name and a value."""
    done = subprocess.run([str(word) for word in command], env=environment, stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, timeout=timeout)
    if done.returncode != 0:
        raise CannotMeasure(f"{' '.join(map(str, command))} ended with {done.returncode}: {done.stderr.strip()}")
    figures = {}
    for line in done.stdout.splitlines():
        name, value = line.rsplit(" ", 1)
        figures[name] = float(value)
    return figures


def alternate(runs, commands, environment=None):
    """Runs the commands in turn, as often as asked: A B A B A B. For each, its figures of all runs by name."""
    told = [[] for _ in commands]
    for _ in range(runs):
        for figures, command in zip(told, commands):
            figures.append(run(command, environment))
    return [{name: [figures[name] for figures in each] for name in each[0]} for each in told]


def check_same(name, *sides):
    """All sides must have done the same work."""
    values = {value for side in sides for value in side[name]}
    if len(values) != 1:
        raise CannotMeasure(f"the sides differ in their {name}: {sorted(values)}")


def calls(command, names, repetitions):
    """Runs benchmarks of Google Benchmark in turn. For each, the time of one of the things that it does, of all runs."""
    done = subprocess.run([*map(str, command), f"--benchmark_filter=^({'|'.join(names)})(/|$)",
                           f"--benchmark_repetitions={repetitions}", "--benchmark_enable_random_interleaving=true",
                           "--benchmark_min_time=0.1", "--benchmark_format=json"],
                          stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=900)
    if done.returncode != 0:
        raise CannotMeasure(f"{command[0]} ended with {done.returncode}: {done.stderr.strip()}")
    told = {}
    for entry in json.loads(done.stdout)["benchmarks"]:
        if entry["run_type"] == "iteration":
            name = entry["run_name"].split("/manual_time")[0].split("/iterations")[0].split("/min_warmup")[0]
            told.setdefault(name, []).append(entry["each"])
    return told
