#!/usr/bin/env python3
"""Counts the faults that the tests catch: changes one place of the sources at a time (a sign, a bound, a branch, a
forgotten call) and runs the test programs until one fails.

    cmake --preset mutate && cmake --build --preset mutate
    tools/mutate/mutate.py build/mutate [--core 200] [--windows 60] [--seed 1] [--places FILE] [--jobs 1]

The rooms of that preset are shared libraries, so that only the changed file is compiled, to a library that takes the place of
its functions; nothing is linked anew, and the tree stays as it is. Each case is run once first and tells which lines it runs
(trace.cpp): only those that run a place are asked about it. The places come from the seed. Each is printed with what
became of it: caught (by which case), missed, or gone (its line is no longer there). Those that the compiler refuses are
passed over. --places writes them to FILE with their fates, or, where it is there, takes them from it, so that two suites are
asked for the same faults: a place is found again by its line's words, and the case that caught it is asked first."""
import argparse
import concurrent.futures
import json
import os
import random
import re
import shlex
import subprocess
import sys
import tempfile
import time

# What is written, what it becomes; blanks around a sign keep templates and references out.
SIGNS = [(" < ", " <= "), (" <= ", " < "), (" > ", " >= "), (" >= ", " > "), (" == ", " != "), (" != ", " == "),
         (" + ", " - "), (" - ", " + "), (" += ", " -= "), (" -= ", " += "), (" && ", " || "), (" || ", " && ")]
BRANCH = re.compile(r"^(\s*)(else if|if|while) \((?![^()]*;)(.*)\)( \{)?$")
BOUND = re.compile(r"^(constexpr \w[\w:]* k\w+ = )(\d+)(;.*)$")
ANSWER = re.compile(r"^(\s*return )(true|false)(;)$")
CALL = re.compile(r"^(\s+)([a-zA-Z_][\w.:]*(?:->\w+)*\([^;]*\));$")
# Too slow to be asked hundreds of times: they read thousands of drawn pages.
SLOW = {"form_truth_tests"}


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


class Suite:
    """The test programs' cases: how long each takes, and which lines of the rooms it runs."""

    def __init__(self, build, jobs):
        self.folder = os.path.abspath(os.path.join(build, "bin"))
        names = [name for name in sorted(os.listdir(self.folder)) if name.endswith("_tests") and name not in SLOW]
        with tempfile.TemporaryDirectory() as traces, concurrent.futures.ThreadPoolExecutor(jobs) as workers:
            asked = [(name, case) for name in names for case in self.cases(name)]
            self.seconds = dict(zip(asked, workers.map(lambda one: self.traced(*one, traces), asked)))
            failing = [case for (_, case), seconds in self.seconds.items() if seconds is None]
            print(f"fail as they are, and are not asked: {failing}", flush=True)
            self.seconds = {one: seconds for one, seconds in self.seconds.items() if seconds is not None}
            self.lines = lines_of(traces)
        print(f"{len(names)} programs, {len(self.seconds)} cases, {sum(self.seconds.values()):.0f} s", flush=True)

    def cases(self, name):
        listed = subprocess.run([os.path.join(self.folder, name), "--gtest_list_tests"], capture_output=True, text=True,
                                env=dict(os.environ, QT_QPA_PLATFORM="offscreen"), check=True).stdout
        group = ""
        for line in listed.split("\n"):
            word = line.split("#")[0].rstrip()
            if word.startswith("  "):
                yield group + word.strip()
            elif word.endswith("."):
                group = word

    def run(self, name, cases, seconds, **more):
        """Whether they fail."""
        with tempfile.TemporaryDirectory() as folder:
            words = [os.path.join(self.folder, name), "--gtest_fail_fast", "--gtest_brief=1", "--gtest_filter=" + ":".join(cases)]
            surroundings = dict(os.environ, QT_QPA_PLATFORM="offscreen", TMPDIR=folder, **more)
            with subprocess.Popen(words, env=surroundings, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, cwd=folder,
                                  start_new_session=True) as ran:
                try:
                    return ran.wait(seconds) != 0
                except subprocess.TimeoutExpired:
                    os.killpg(ran.pid, 9)
                    return True

    def traced(self, name, case, traces):
        start = time.monotonic()
        failed = self.run(name, [case], 300, HOOPTAB_TRACE=os.path.join(traces, f"{name} {case.replace('/', '|')}"))
        return None if failed else time.monotonic() - start

    def reaching(self, file, number):
        """The cases that run the line, or the nearest before it that any case runs: a block begins there."""
        lines = self.lines.get(file, {})
        ran = [line for line in lines if line <= number]
        return lines[max(ran)] if ran else set()

    def catches(self, library, place, number):
        room = place["file"].split("/")[1]
        reaching = sorted(self.reaching(place["file"], number) & set(self.seconds),
                          key=lambda one: (one[1] != place.get("test"), not one[0].startswith(room), self.seconds[one]))
        # The likely ones first, a few at a time; then program by program.
        groups = [[one] for one in reaching[:1]]
        rest = reaching[1:]
        for name in dict.fromkeys(name for name, _ in rest):
            of_program = [one for one in rest if one[0] == name]
            groups += [of_program[:20], of_program[20:]]
        for group in filter(None, groups):
            seconds = 3 * sum(self.seconds[one] for one in group) + 20
            if self.run(group[0][0], [case for _, case in group], seconds, LD_PRELOAD=library):
                return group[0][1] if len(group) == 1 else self.which(group, library)
        return None

    def which(self, group, library):
        for name, case in group:
            if self.run(name, [case], 3 * self.seconds[name, case] + 20, LD_PRELOAD=library):
                return case
        return "several together"


def lines_of(traces):
    """By file and line: the cases that run it."""
    offsets, of_case = {}, {}
    for trace in os.listdir(traces):
        name, case = trace.rsplit(".", 1)[0].replace("|", "/").split(" ", 1)
        with open(os.path.join(traces, trace), encoding="utf-8") as file:
            for line in file:
                library, offset = line.split()
                if "/libhooptab_" in library:
                    offsets.setdefault(library, set()).add(offset)
                    of_case.setdefault((library, offset), set()).add((name, case))
    lines = {}
    for library, found in offsets.items():
        found = sorted(found)
        answer = subprocess.run(["addr2line", "-e", library], input="\n".join(found), capture_output=True, text=True, check=True)
        for offset, place in zip(found, answer.stdout.split("\n")):
            path, _, number = place.split(" ")[0].rpartition(":")
            if number.isdigit() and "/src/" in path:
                file = "src/" + path.rsplit("/src/", 1)[1]
                lines.setdefault(file, {}).setdefault(int(number), set()).update(of_case[library, offset])
    return lines


class Compiler:
    """Makes a library of one changed file, as the build would compile it."""

    def __init__(self, root, build):
        self.root = root
        with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as commands:
            self.commands = {os.path.relpath(os.path.realpath(entry["file"]), os.path.realpath(root)): entry
                             for entry in json.load(commands)}

    def library(self, place, folder):
        """Its path and the line's number; "" where the line is gone, None where the compiler refuses it."""
        with open(os.path.join(self.root, place["file"]), encoding="utf-8") as source:
            lines = source.read().split("\n")
        found = [number for number, line in enumerate(lines) if line == place["line"]]
        if place["copy"] >= len(found) or place["file"] not in self.commands:
            return "", 0
        lines[found[place["copy"]]] = place["changed"]
        changed, result = os.path.join(folder, "changed.cpp"), os.path.join(folder, "changed.so")
        with open(changed, "w", encoding="utf-8") as source:
            source.write("\n".join(lines))
        entry = self.commands[place["file"]]
        words = shlex.split(entry["command"])
        words = words[next(i for i, word in enumerate(words) if word.endswith("c++")):words.index("-o")]
        made = subprocess.run(words + ["-w", "-fno-sanitize-coverage=trace-pc", "-fPIC", "-shared", "-o", result, changed], cwd=entry["directory"],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return result if made.returncode == 0 else None, found[place["copy"]] + 1


def judge(place, suite, compiler):
    with tempfile.TemporaryDirectory() as folder:
        library, number = compiler.library(place, folder)
        if not library:
            return "gone" if library == "" else "no program", ""
        catcher = suite.catches(library, place, number)
        return ("caught", catcher) if catcher else ("missed", "")


def main():
    words = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    words.add_argument("build")
    words.add_argument("--core", type=int, default=200)
    words.add_argument("--windows", type=int, default=60)
    words.add_argument("--seed", type=int, default=1)
    words.add_argument("--places")
    words.add_argument("--jobs", type=int, default=1)
    asked = words.parse_args()
    root = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
    given = None
    if asked.places and os.path.isfile(asked.places):
        with open(asked.places, encoding="utf-8") as places:
            given = json.load(places)
    print(f"seed {asked.seed}", flush=True)
    suite, compiler = Suite(asked.build, asked.jobs), Compiler(root, asked.build)
    taken, counts = {"core": [], "windows": []}, {}
    for level, files in sources(root).items():
        with concurrent.futures.ThreadPoolExecutor(asked.jobs) as workers:
            wanted = getattr(asked, level)
            candidates = given[level] if given else list(all_places(root, files))
            if not given:
                random.Random(f"{asked.seed} {level}").shuffle(candidates)
                candidates = candidates[:2 * wanted] # some are refused
            for place, (fate, test) in zip(candidates, workers.map(lambda place: judge(place, suite, compiler), candidates)):
                if fate == "no program" and not given:
                    continue
                taken[level].append(dict(place, fate=fate, test=test))
                counts[level, fate] = counts.get((level, fate), 0) + 1
                print(f"{level} {len(taken[level])} {fate} {test} | {place['kind']} {place['file']}: "
                      f"{place['line'].strip()} -> {place['changed'].strip()}", flush=True)
                if len(taken[level]) == wanted:
                    workers.shutdown(cancel_futures=True)
                    break
    if asked.places and not given:
        with open(asked.places, "w", encoding="utf-8") as places:
            json.dump(taken, places, indent=1)
    for (level, fate), number in sorted(counts.items()):
        print(f"{level}: {number} {fate}")


if __name__ == "__main__":
    main()
