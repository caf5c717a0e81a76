"""The program in its window records a game and shares it by its own dialog; pages that are open all the time follow."""

import os
import re
import select
import subprocess
import time
import unittest

import shown
from support import BrowserCase, box, free_port, setting, skip, tool, wait_until_same

HALTS = 6
LONGEST = 240  # seconds between two words of the replay
SIZE = (1024, 768)


class Replay:
    """The driver that records the game on a display of its own; it halts until it is told to go on."""

    def __init__(self, port):
        driver = os.path.join(setting("HOOPTAB_SOURCE"), "tools/replay/replay.sh")
        self.process = subprocess.Popen(
            [driver, setting("HOOPTAB_REPLAY"), setting("HOOPTAB_PROGRAM"), setting("HOOPTAB_GAME"),
             "--share", str(port), "--halts", str(HALTS)],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)

    def word(self):
        """The next word and what is said with it; empty at the end."""
        readable, _, _ = select.select([self.process.stdout], [], [], LONGEST)
        if not readable:
            raise AssertionError("the replay says nothing")
        word, _, rest = self.process.stdout.readline().rstrip("\n").partition(" ")
        return word, rest

    def go_on(self):
        self.process.stdin.write("\n")
        self.process.stdin.flush()

    def end(self):
        self.process.stdin.close()
        said = self.process.stdout.read()
        self.process.stdout.close()
        return self.process.wait(), said


def is_listening(port):
    said = subprocess.run([tool("ss"), "-ltnH"], capture_output=True, text=True, check=True).stdout
    return any(re.search(rf":{port}$", line.split()[3]) for line in said.splitlines())


class Window(BrowserCase):
    def setUp(self):
        self.port = free_port()
        self.replay = Replay(self.port)
        self.addCleanup(self.kill)
        self.windows = {}

    def kill(self):
        if self.replay.process.poll() is None:
            self.replay.end()  # nobody follows any more: it takes its program and its display down

    def open_pages(self, address):
        for page, ready in (("?lang=en", ".half, [data-key=details], .empty"), ("box?lang=en#0", "main > *"),
                            ("bench?team=1&lang=en", "main > *")):
            self.windows[page.partition("?")[0]] = self.browser.open_window(address + page, ready, SIZE)

    def check_numbers(self, path):
        game = box(path)
        wanted = shown.score_wanted(game)

        def score():
            found = shown.score(self.browser)
            return found and {name: found[name] for name in wanted}

        self.browser.switch(self.windows[""])
        wait_until_same(self, wanted, score)
        self.browser.switch(self.windows["box"])
        rows = {number: (name, self.still(cells)) for number, (name, cells)
                in shown.box_wanted(game["teams"][0]).items()}
        wait_until_same(self, rows, lambda: self.without_newcomers(rows, {
            number: (name, self.still(cells)) for number, (name, cells)
            in (shown.box_shown(self.browser) or {}).items()}, lambda row: row[1]))
        self.browser.switch(self.windows["bench"])
        benches = {number: [cells[0], *cells[2:]] for number, cells
                   in shown.bench_wanted(game["teams"][1]).items()}
        wait_until_same(self, benches, lambda: self.without_newcomers(benches, {
            number: [cells[0], *cells[2:]] for number, cells
            in (shown.bench_shown(self.browser) or {}).items()}, lambda row: row))

    @staticmethod
    def without_newcomers(wanted, found, cells_of):
        """Who has just come in has a line of nothing, and no second yet by which the file tells that he played."""
        return {number: row for number, row in found.items()
                if number in wanted or set(cells_of(row)) - {"0", "0/0", "–", ""}}

    @staticmethod
    def still(cells):
        """Without the minutes, which go on in the window while the file waits for the next event."""
        return cells[1:]

    def test_a_recorded_game_is_followed(self):
        word, path = self.replay.word()
        if word == "skipped:":
            skip(path)
        self.assertEqual("ready", word, path)
        self.assertFalse(is_listening(self.port), "something listens before it is asked to")
        self.replay.go_on()
        word, address = self.replay.word()
        self.assertEqual("shared", word, address)
        self.assertTrue(is_listening(self.port))
        self.assertEqual(f"http://127.0.0.1:{self.port}/", address)
        self.open_pages(address)
        self.replay.go_on()
        halts = 0
        while (told := self.replay.word())[0] == "halted":
            with self.subTest(halt=halts):
                self.check_numbers(path)
            halts += 1
            self.replay.go_on()
        self.assertEqual("unshared", told[0], told[1])
        self.assertGreaterEqual(halts, HALTS)
        end = time.monotonic() + 5
        while is_listening(self.port) and time.monotonic() < end:
            time.sleep(0.05)
        self.assertFalse(is_listening(self.port), "something listens still")
        self.replay.go_on()
        status, said = self.replay.end()
        self.assertEqual(0, status, said)


if __name__ == "__main__":
    for name in ("HOOPTAB_PROGRAM", "HOOPTAB_REPLAY"):
        if not os.path.exists(setting(name)):
            skip(f"{setting(name)} is not built")
    tool("Xvfb")
    unittest.main()
