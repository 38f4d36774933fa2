#!/usr/bin/python3
"""Measures the action, from a call that makes the bus start the program to its answer after the change
is committed in a store of 100,000 changes, beside programs that only answer, turn by turn on one bus:
activation.py BUILD_FOLDER. Prints one JSON object: medians in milliseconds by name."""
import json
import statistics
import subprocess
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))

from desktop.services import Service  # noqa: E402
from desktop.session import Session  # noqa: E402

CHANGES = 100_000
ROUNDS = 40


def main(build):
    ours = "dev.vantor.quillmere.Actions"
    with Session() as session:
        folder = session.home / "data/group.dev.vantor.quillmere"
        folder.mkdir(mode=0o700)
        ledger = [build / "tools/ledger/ledger", folder / "Quillmere.sqlite"]
        subprocess.run([*ledger, "fill", str(CHANGES)], env=session.environment, check=True)
        services = {
            "program": Service(session, ours, "/dev/vantor/quillmere/Actions", ours,
                               build / "Quillmere/actions/quillmere-actions"),
            "bare sd-bus": Service(session, "bare.SdBus", "/bare", "bare.Interface",
                                   build / "benchmarks/actions/bare_sdbus_service"),
            "bare QtDBus": Service(session, "bare.QtDBus", "/bare", "bare.Interface",
                                   build / "benchmarks/actions/bare_qtdbus_service"),
        }
        figures = {name: [] for name in services}
        for _ in range(ROUNDS):
            for name, service in services.items():
                started = time.monotonic()
                service.call("AdjustTimeBank", "(x)", 30)
                figures[name].append((time.monotonic() - started) * 1000)
                service.end()
    print(json.dumps({f"action: {name}": statistics.median(times[1:])
                      for name, times in figures.items()}, indent=2))


main(Path(sys.argv[1]).resolve())
