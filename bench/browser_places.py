"""Where the benchmarks of the pages find the tests' helpers and the built program: BUILD is their first word."""

import os
import pathlib
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(SOURCE / "tests/browser"))


def use(build):
    build = pathlib.Path(build).resolve()
    os.environ["HOOPTAB_CLI"] = str(build / "bin/hooptab-cli")
    os.environ["HOOPTAB_SAMPLES"] = str(build / "share/hooptab/samples")
    os.environ["HOOPTAB_SOURCE"] = str(SOURCE)


def share(values, part):
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, int(part * len(ordered)))]
