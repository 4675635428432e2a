"""An office that is killed, stopped, told to end, or made to ask, at random moments of an export."""

import os
import re
import subprocess

from program import PATIENCE, Skipped

ROUNDS = 50
EXPORTS = 10  # of a round, which ends within some minutes on a busy machine too


def chaos(program):
    tests = program.build / "tests/spreadsheet/office_chaos_tests"
    if not tests.exists():
        raise Skipped("there is no office to test with")
    happened = 0
    rounds = 1 if program.short else ROUNDS
    for seed in range(1, rounds + 1):
        run = subprocess.run([program.top / "tests/desktop/run_under_display", tests],
                             env={**os.environ, "CHAOS_EXPORTS": str(EXPORTS),
                                  "CHAOS_SEED": str(seed)},
                             timeout=PATIENCE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                             text=True, check=False)
        if run.returncode != 0:
            raise AssertionError(f"round {seed} ends with {run.returncode}: {run.stdout[-2000:]}")
        happened += int(re.search(r"in (\d+) of them", run.stdout).group(1))
    return f"{rounds * EXPORTS} exports, {happened} hit: the program and its lines live on"


WORLDS = [("chaos", chaos)]
