"""Runs the programs that measure, each in a process of its own."""

import json
import subprocess


class CannotMeasure(Exception):
    pass


def output_of(command, environment=None, most=900):
    words = [str(word) for word in command]
    try:
        done = subprocess.run(words, env=environment, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=most)
    except subprocess.TimeoutExpired as late:
        raise CannotMeasure(f"{' '.join(words)} did not end within {most} seconds") from late
    if done.returncode != 0:
        raise CannotMeasure(f"{' '.join(words)} ended with {done.returncode}: {done.stderr.strip()}")
    return done.stdout


def run(command, environment=None):
    """What the program told: each line a name and a value."""
    figures = {}
    for line in output_of(command, environment).splitlines():
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
    output = output_of([*command, f"--benchmark_filter=^({'|'.join(names)})(/|$)",
                        f"--benchmark_repetitions={repetitions}", "--benchmark_enable_random_interleaving=true",
                        "--benchmark_min_time=0.1", "--benchmark_format=json"])
    told = {}
    for entry in json.loads(output)["benchmarks"]:
        if entry["run_type"] == "iteration":
            name = entry["run_name"].split("/manual_time")[0].split("/iterations")[0].split("/min_warmup")[0]
            told.setdefault(name, []).append(entry["each"])
    return told
