#!/usr/bin/env python3
"""Counts the faults that the tests catch: changes one place of the sources at a time (a sign, a bound, a branch, a
forgotten call), builds, runs the tests until one fails, and puts the place back.

    cmake --preset dev && cmake --build --preset dev
    tools/mutate/mutate.py build/dev [--core 200] [--windows 60] [--seed 1] [--places FILE] [--tests REGEX]

The places come from the seed. Each is printed with what became of it: caught (by which test), missed, or no program
(the compiler refused it; another place is taken instead). --places writes them to FILE, or, where it is there, takes
them from it, so that two suites are asked for the same faults: a place is found again by its line's words. The tree must
be clean, and is left as it was, also after Ctrl+C."""
import argparse
import json
import os
import random
import re
import subprocess
import sys

# What is written, what it becomes; blanks around a sign keep templates and references out.
SIGNS = [(" < ", " <= "), (" <= ", " < "), (" > ", " >= "), (" >= ", " > "), (" == ", " != "), (" != ", " == "),
         (" + ", " - "), (" - ", " + "), (" += ", " -= "), (" -= ", " += "), (" && ", " || "), (" || ", " && ")]
BRANCH = re.compile(r"^(\s*)(else if|if|while) \((?![^()]*;)(.*)\)( \{)?$")
BOUND = re.compile(r"^(constexpr \w[\w:]* k\w+ = )(\d+)(;.*)$")
ANSWER = re.compile(r"^(\s*return )(true|false)(;)$")
CALL = re.compile(r"^(\s+)([a-zA-Z_][\w.:]*(?:->\w+)*\([^;]*\));$")
SLOW = "torture|replay|acceptance|docs|architecture|FormTruth|FormFaults"


def changes(line):
    """All that one line may become."""
    code = line.split("//")[0].rstrip()
    if not code or code.lstrip().startswith(("#", "*", "template", "static_assert", "using", "case", "EXPECT")) or '"' in code:
        return
    for sign, other in SIGNS:
        for found in re.finditer(re.escape(sign), code):
            yield "sign", code[:found.start()] + other + code[found.end():]
    if (found := BRANCH.match(code)) and found[3].count("(") == found[3].count(")"):
        yield "branch", f"{found[1]}{found[2]} (!({found[3]})){found[4] or ''}"
    if found := BOUND.match(code):
        yield "bound", f"{found[1]}{int(found[2]) + 1}{found[3]}"
    if found := ANSWER.match(code):
        yield "answer", found[1] + ("false" if found[2] == "true" else "true") + found[3]
    if (found := CALL.match(code)) and not found[2].startswith(("return", "throw", "delete", "co_")):
        yield "call", found[1] + ";"


def sources(root):
    """The listed sources of each level, as the rooms' lists have them."""
    levels = {"core": [], "windows": []}
    for folder in sorted(os.listdir(os.path.join(root, "src"))):
        path = os.path.join(root, "src", folder, "CMakeLists.txt")
        if not os.path.isfile(path) or folder in ("simulator", "resources"):
            continue
        level = None
        for word in open(path, encoding="utf-8").read().replace(")", " ").split():
            level = {"CORE": "core", "WINDOWS": "windows"}.get(word, level)
            if level and word.endswith(".cpp") and os.path.isfile(os.path.join(root, "src", folder, word)):
                levels[level].append(f"src/{folder}/{word}")
    return levels


def all_places(root, files):
    for file in files:
        lines = open(os.path.join(root, file), encoding="utf-8").read().split("\n")
        for number, line in enumerate(lines):
            for kind, changed in changes(line):
                yield {"file": file, "kind": kind, "line": line, "changed": changed,
                       "copy": lines[:number].count(line)}


class Mutation:
    """One place, changed for as long as the block lasts."""

    def __init__(self, root, place):
        self.path = os.path.join(root, place["file"])
        self.text = open(self.path, encoding="utf-8").read()
        lines = self.text.split("\n")
        found = [number for number, line in enumerate(lines) if line == place["line"]]
        self.is_there = place["copy"] < len(found)
        if self.is_there:
            lines[found[place["copy"]]] = place["changed"]
        self.changed = "\n".join(lines)

    def __enter__(self):
        open(self.path, "w", encoding="utf-8").write(self.changed)
        return self

    def __exit__(self, *_):
        open(self.path, "w", encoding="utf-8").write(self.text)


def judge(build, place, root, tests):
    with Mutation(root, place) as mutation:
        if not mutation.is_there:
            return "gone", ""
        # A warning that the change brings about is no fault of the program's.
        made = subprocess.run(["cmake", "--build", build], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if made.returncode != 0:
            return "no program", ""
        words = ["ctest", "--test-dir", build, "-j2", "--stop-on-failure", "--timeout", "120", "-E", SLOW]
        if tests:
            words += ["-R", tests]
        ran = subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        failed = re.search(r"^\s*\d+ - (.*) \(.*\)$", ran.stdout.split("The following tests FAILED:")[-1], re.M)
        return ("missed", "") if ran.returncode == 0 else ("caught", failed[1] if failed else "?")


def main():
    words = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    words.add_argument("build")
    words.add_argument("--core", type=int, default=200)
    words.add_argument("--windows", type=int, default=60)
    words.add_argument("--seed", type=int, default=1)
    words.add_argument("--places")
    words.add_argument("--tests")
    asked = words.parse_args()
    root = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
    if subprocess.run(["git", "-C", root, "status", "--porcelain", "src"], capture_output=True, text=True).stdout:
        sys.exit("mutate: src has changes; commit or put them back first")
    kept = asked.places and os.path.isfile(asked.places)
    given = json.load(open(asked.places, encoding="utf-8")) if kept else None
    print(f"seed {asked.seed}", flush=True)
    taken, counts = {"core": [], "windows": []}, {}
    for level, files in sources(root).items():
        wanted = getattr(asked, level)
        candidates = given[level] if given else list(all_places(root, files))
        if not given:
            random.Random(f"{asked.seed} {level}").shuffle(candidates)
        for place in candidates:
            if len(taken[level]) == wanted:
                break
            fate, test = judge(asked.build, place, root, asked.tests)
            if fate == "no program" and not given:
                continue
            taken[level].append(place)
            counts[level, fate] = counts.get((level, fate), 0) + 1
            print(f"{level} {len(taken[level])} {fate} {test} | {place['kind']} {place['file']}: "
                  f"{place['line'].strip()} -> {place['changed'].strip()}", flush=True)
    subprocess.run(["cmake", "--build", asked.build], stdout=subprocess.DEVNULL)
    if asked.places and not given:
        json.dump(taken, open(asked.places, "w", encoding="utf-8"), indent=1)
    for (level, fate), number in sorted(counts.items()):
        print(f"{level}: {number} {fate}")


if __name__ == "__main__":
    main()
