"""Games whose files change under a server's eyes, as a program that records leaves them: whole, by a rename."""

import os
import pathlib
import re

ENCODING = "cp1252"
PERIOD = re.compile(r"\[PERIODE(\d+)\]")
NUMBERED = re.compile(r"(\d+)=(.*)")


def replace_file(path, text):
    beside = pathlib.Path(f"{path}.new")
    with open(beside, "w", encoding=ENCODING, newline="") as file:
        file.write(text)
        file.flush()
        os.fsync(file.fileno())
    os.replace(beside, path)


class GrowingGame:
    """A copy of a game that holds its first events alone, and gets more, or other ones, by write()."""

    def __init__(self, source, path):
        self.path = pathlib.Path(path)
        self.before = []  # the lines before the first period
        self.events = []  # [period, number, line] in the order of the game
        period = 0
        for line in pathlib.Path(source).read_text(ENCODING).splitlines():
            section = PERIOD.fullmatch(line)
            event = NUMBERED.fullmatch(line)
            if section:
                period = int(section[1])
            elif period == 0:
                self.before.append(line)
            elif event:
                self.events.append([period, int(event[1]), event[2]])
        self.count = 0

    def __len__(self):
        return len(self.events)

    def write(self, count=None):
        """All up to the event at `count`; without it, once more as many as the last time."""
        self.count = self.count if count is None else count
        shown = self.events[:self.count]
        is_whole = self.count >= len(self.events)
        highest = max((number for _, number, _ in shown), default=0)
        lines = [f"EVENUM={highest + 1}" if line.startswith("EVENUM=") else line for line in self.before
                 if is_whole or not line.startswith("TERMINE=")]
        period = 0
        for at, number, line in shown:
            if at != period:
                lines.append(f"[PERIODE{at}]")
                period = at
            lines.append(f"{number}={line}")
        replace_file(self.path, "\r\n".join(lines) + "\r\n")

    def write_to_stop(self, count):
        """Up to the first stop of the clock from there on, where nobody's minutes go on."""
        while count < len(self.events) and ",ARRET" not in self.events[count - 1][2]:
            count += 1
        self.write(count)

    def find(self, pattern, last=True):
        """The place of the last (or first) written event whose line matches."""
        places = [at for at, (_, _, line) in enumerate(self.events[:self.count]) if re.search(pattern, line)]
        return places[-1 if last else 0]

    def correct(self, at, line):
        self.events[at][2] = line
        self.write()

    def delete(self, at):
        """As the format has it: an E in front, the line stays."""
        self.events[at][2] = "E" + self.events[at][2]
        self.write()

    def insert(self, at, line):
        """Before that event, with the number that is next."""
        number = max(number for _, number, _ in self.events) + 1
        self.events.insert(at, [self.events[at][0], number, line])
        self.write(self.count + 1)
