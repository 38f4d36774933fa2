#!/usr/bin/python3
"""Measures the first frame of the program with a store of 100,000 changes beside that of an empty Qt
Quick window, turn by turn on one virtual display: first_frame.py BUILD_FOLDER. Prints one JSON object:
medians in milliseconds and mebibytes by name."""
import json
import statistics
import subprocess
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))

from desktop.desktop import Desktop  # noqa: E402

CHANGES = 100_000
ROUNDS = 15
# The software renderer draws the same everywhere, and nothing of OpenGL is looked for before it.
RENDERER = {"QT_QUICK_BACKEND": "software", "QT_XCB_GL_INTEGRATION": "none"}


def environment_of(desktop):
    """That of a desktop without assistive technology, which the harness would look through."""
    environment = desktop.environment | RENDERER
    environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
    return environment


def measure(environment, *words):
    """Milliseconds from start to first frame, mebibytes resident then, and the processors' time."""
    started = {"QUILLMERE_BENCH_STARTED": str(time.monotonic_ns())}
    answer = subprocess.run([str(word) for word in words], env=environment | started, check=True,
                            timeout=120, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    milliseconds, kibibytes, processors = answer.stdout.split()
    return float(milliseconds), float(kibibytes) / 1024, float(processors)


def main(build):
    with Desktop() as desktop:
        folder = desktop.home / "data/group.dev.vantor.quillmere"
        folder.mkdir(mode=0o700)
        ledger = [build / "tools/ledger/ledger", folder / "Quillmere.sqlite"]
        subprocess.run([*ledger, "fill", str(CHANGES)], env=desktop.environment, check=True)
        balance = subprocess.run([*ledger, "balance"], env=desktop.environment, check=True,
                                 stdout=subprocess.PIPE, text=True).stdout.strip()
        environment = environment_of(desktop)
        programs = {"empty window": [build / "benchmarks/app/empty_first_frame"],
                    "program": [build / "benchmarks/app/quillmere_first_frame", balance]}
        figures = {name: [] for name in programs}
        for _ in range(ROUNDS):
            for name, words in programs.items():
                figures[name].append(measure(environment, *words))
    medians = {}
    for name, turns in figures.items():
        frames, memory, processors = zip(*turns[1:])
        medians[f"first frame: {name}"] = statistics.median(frames)
        medians[f"memory at first frame: {name}"] = statistics.median(memory)
        medians[f"processors until first frame: {name}"] = statistics.median(processors)
    print(json.dumps(medians, indent=2))


main(Path(sys.argv[1]).resolve())
